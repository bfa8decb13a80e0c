#include "AllEffects.h"

#include "../Effects.h"
#include "../VipsText.h"
#include "Kinds.h"
#include "Mark.h"

#include <QFile>

#include <algorithm>
#include <cmath>

namespace BatchServer {

namespace {

/// The file as sRGB of 8 bits, upright, scaled to `width`.
Picture ImageAt(const QString& path, int width)
{
    try {
        const Picture image =
            Picture::thumbnail_source(vips::VSource::new_from_file(QFile::encodeName(path).constData()), width,
                                      Picture::option()
                                          ->set("height", VIPS_MAX_COORD)
                                          ->set("export_profile", "srgb")
                                          ->set("fail_on", VIPS_FAIL_ON_TRUNCATED));
        return image.colourspace(VIPS_INTERPRETATION_sRGB).cast(VIPS_FORMAT_UCHAR).copy_memory();
    } catch (const vips::VError& problem) {
        throw EffectError(QStringLiteral("the file %1 cannot be read: %2").arg(path, TextOf(problem)).toStdString());
    }
}

} // namespace

Picture ApplyWatermarkImage(const Picture& picture, const QJsonObject& parameters)
{
    const int width = std::max(1, static_cast<int>(std::lround(LengthIn(parameters, "size", picture.width()))));
    const Picture image = ImageAt(parameters[QLatin1String("file")].toString(), width);
    const Picture under = HasColour(image) ? AsRgb(picture) : picture;
    return Stamped(under, MarkOf(image, under), parameters);
}

} // namespace BatchServer
