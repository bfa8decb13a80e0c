#include "EffectFunctions.h"
#include "WatermarkPlacement.h"

#include "server/worker/colour/Colour.h"
#include "server/worker/colour/PictureColours.h"
#include "server/worker/pixels/DamageText.h"
#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/PixelForms.h"
#include "server/worker/pixels/VipsText.h"

#include <QFile>

#include <algorithm>
#include <cmath>

namespace BatchWorker {

namespace {

/// The file as sRGB of 8 bits, upright, scaled to `width`.
Picture ImageAt(const QString& path, int width)
{
    vips_error_clear(); // what was said of the picture says nothing of this file
    try {
        const vips::VSource source = vips::VSource::new_from_file(QFile::encodeName(path).constData());
        const Picture scaled = Picture::thumbnail_source(
            source, width, Picture::option()->set("height", VIPS_MAX_COORD)->set("fail_on", VIPS_FAIL_ON_TRUNCATED));
        // Warnings about a logo's profile do not belong into the report on a picture.
        BatchJob::Warnings warnings;
        const Picture plain = InPlainSrgb(InWorkingColours(scaled, false, warnings), warnings);
        return AsRgb(WithDepth(plain, 8)).copy_memory();
    } catch (const vips::VError& problem) {
        const QString text = TextOf(problem);
        throw ProcessingFailed(
            QStringLiteral("the picture %1 cannot be read: %2").arg(path, HeaderDamageText(DamageKindOf(text))), text);
    }
}

/// `image`, sRGB of 8 bits, as a mark, its colours in the profile of `picture`.
Overlay MarkOf(const Picture& image, const Picture& picture)
{
    // A profile that cannot be used was reported when the picture was read.
    BatchJob::Warnings warnings;
    const Picture colours = IsGrey(picture) ? image : WithDepth(InSpaceOf(picture, image, warnings), 8);
    return {image.width(), image.height(), BytesOf(WithAlpha(colours))};
}

} // namespace

// A grey picture becomes RGB for a mark with colour. Throws PictureFailure for a file that cannot be read.
Picture ApplyWatermarkImage(const Picture& picture, const QJsonObject& parameters)
{
    const int width = std::max(1, static_cast<int>(std::lround(LengthIn(parameters, "size", picture.width()))));
    const Picture image = ImageAt(parameters[QLatin1String("file")].toString(), width);
    const Picture under = HasColour(image) ? AsRgb(picture) : picture;
    return Watermarked(under, MarkOf(image, under), parameters);
}

} // namespace BatchWorker
