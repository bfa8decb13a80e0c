#include "Encoder.h"

#include "EncoderOptions.h"
#include "FormatEncoder.h"
#include "ResultTarget.h"

#include "job/formats/FormatOptions.h"
#include "server/worker/pixels/EmbeddedProfile.h"
#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/PixelForms.h"

#include <QColor>

using namespace BatchJob;

namespace BatchWorker {

namespace {

bool CarriesBlocks(const Picture& picture)
{
    return picture.get_typeof(VIPS_META_ICC_NAME) != 0 || picture.get_typeof(VIPS_META_XMP_NAME) != 0;
}

// To leave out everything is the only way to keep some encoders from making EXIF up.
bool MustStrip(const FormatSchema& format, const Picture& picture)
{
    switch (format.metadata.exifRemoval) {
    case ExifRemoval::Strip:
        return true;
    case ExifRemoval::StripIfAlone:
        return !CarriesBlocks(picture);
    case ExifRemoval::NotNeeded:
    case ExifRemoval::CutOut:
        break;
    }
    return false;
}

} // namespace

int ResultDepth(const FormatSchema& format, const QJsonObject& options, bool isDeep)
{
    if (BitDepthsFor(format, options).last() == 8) {
        return 8;
    }
    const QJsonValue wanted = options[QLatin1String("bitDepth")];
    const bool isDeepResult = wanted.isDouble() ? wanted.toInt() > 8 : isDeep;
    return isDeepResult ? 16 : 8;
}

Picture ReadyFor(const FormatSchema& format, const QJsonObject& options, const Picture& picture)
{
    Picture ready = picture;
    if (!format.holdsTransparency) {
        constexpr int opaqueColour = 7; // "#rrggbb"; what lies under everything has no use for an alpha
        ready = Flattened(ready, QColor(ChoiceOption(options, "background").left(opaqueColour)));
    }
    return WithDepth(ready, ResultDepth(format, options, HasSixteenBits(ready)));
}

void Encode(const Picture& picture, const FormatSchema& format, const QJsonObject& options, const QByteArray& before,
            bool withoutExif, int descriptor)
{
    const FormatEncoder& encoder = EncoderOf(format);
    const QByteArray profile = encoder.profileBytes ? ProfileOf(picture) : QByteArray();
    const bool isAdded = !profile.isEmpty();
    const ResultTarget result(descriptor, isAdded ? encoder.profileBytes(profile) : AddedBytes{before, 0});
    const Picture bare = isAdded ? WithProfile(picture, {}) : picture;
    vips::VOption* arguments = Picture::option()->set("in", bare)->set("target", result.Target());
    encoder.setArguments(arguments, options, picture);
    if (withoutExif && MustStrip(format, picture)) {
        arguments->set("strip", true);
    }
    const auto checkFile = [&result] {
        if (result.Problem() != 0) {
            vips_error_clear();
            throw OutputFailed(qt_error_string(result.Problem()));
        }
    };
    try {
        Picture::call(encoder.operation, arguments);
    } catch (const vips::VError&) {
        checkFile();
        throw;
    }
    checkFile();
}

} // namespace BatchWorker
