// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EmbeddedProfile.h"

#include "EmbeddedBlock.h"

namespace BatchWorker {

QByteArray ProfileOf(const Picture& picture)
{
    return BlockOf(picture, VIPS_META_ICC_NAME);
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
