#include "EmbeddedProfile.h"

namespace BatchWorker {

QByteArray ProfileOf(const Picture& picture)
{
    if (picture.get_typeof(VIPS_META_ICC_NAME) == 0) {
        return {};
    }
    std::size_t size = 0;
    const void* bytes = picture.get_blob(VIPS_META_ICC_NAME, &size);
    return {static_cast<const char*>(bytes), int(size)};
}

Picture WithProfile(const Picture& picture, const QByteArray& profile)
{
    Picture changed = picture.copy();
    changed.remove(VIPS_META_ICC_NAME);
    if (!profile.isEmpty()) {
        vips_image_set_blob_copy(changed.get_image(), VIPS_META_ICC_NAME, profile.constData(),
                                 std::size_t(profile.size()));
    }
    return changed;
}

} // namespace BatchWorker
