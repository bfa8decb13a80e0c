#include "PictureColours.h"

#include "Colour.h"

#include "server/worker/pixels/PixelForms.h"

namespace BatchWorker {

namespace {

int DepthOf(const Picture& picture)
{
    return HasSixteenBits(picture) ? 16 : 8;
}

VipsInterpretation KindOf(bool isGrey, int depth)
{
    if (isGrey) {
        return depth == 16 ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_B_W;
    }
    return depth == 16 ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB;
}

Picture WithoutMetadata(const Picture& picture)
{
    const Picture result = picture.copy();
    char** names = vips_image_get_fields(result.get_image());
    for (char** name = names; *name != nullptr; ++name) {
        vips_image_remove(result.get_image(), *name);
    }
    g_strfreev(names);
    return result;
}

} // namespace

bool IsGrey(const Picture& picture)
{
    return picture.bands() < 3;
}

double FullValue(const Picture& picture)
{
    return HasSixteenBits(picture) ? 65535 : 255;
}

Picture ToRgb(const Picture& picture)
{
    if (!IsGrey(picture)) {
        return picture;
    }
    QStringList warnings;
    return InPlainSrgb(picture, warnings).colourspace(KindOf(false, DepthOf(picture)));
}

Picture InSpaceOf(const Picture& picture, const Picture& other, QStringList& warnings)
{
    const int depth = DepthOf(picture);
    const Picture deep = WithDepth(other, depth);
    const QByteArray profile = ProfileOf(picture);
    return WithoutMetadata(profile.isEmpty() ? deep.colourspace(KindOf(IsGrey(picture), depth))
                                             : ConvertedTo(profile, deep, warnings));
}

std::vector<double> ColourInSpaceOf(const Picture& picture, const QColor& colour, QStringList& warnings)
{
    const std::vector<double> values{double(colour.red()), double(colour.green()), double(colour.blue())};
    const Picture pixel = (Picture::black(1, 1) + values)
                              .cast(VIPS_FORMAT_UCHAR)
                              .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
    return InSpaceOf(picture, pixel, warnings).getpoint(0, 0);
}

} // namespace BatchWorker
