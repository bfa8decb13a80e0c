#include "PixelForms.h"

#include <vector>

namespace BatchServer {

namespace {

VipsInterpretation InterpretationOf(const Picture& picture, int bits)
{
    switch (picture.interpretation()) {
    case VIPS_INTERPRETATION_B_W:
    case VIPS_INTERPRETATION_GREY16:
        return bits == 16 ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_B_W;
    case VIPS_INTERPRETATION_sRGB:
    case VIPS_INTERPRETATION_RGB16:
        return bits == 16 ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB;
    default:
        return picture.interpretation();
    }
}

} // namespace

bool HasSixteenBits(const Picture& picture)
{
    return picture.format() == VIPS_FORMAT_USHORT;
}

Picture WithDepth(const Picture& picture, int bits)
{
    const bool isDeep = HasSixteenBits(picture);
    if (isDeep == (bits == 16)) {
        return picture;
    }
    constexpr double factor = 65535.0 / 255.0;
    const Picture scaled = isDeep ? picture.linear(1.0 / factor, 0.5).cast(VIPS_FORMAT_UCHAR)
                                  : picture.linear(factor, 0.0).cast(VIPS_FORMAT_USHORT);
    return scaled.copy(Picture::option()->set("interpretation", InterpretationOf(picture, bits)));
}

Picture Flattened(const Picture& picture, const QColor& background)
{
    if (!picture.has_alpha()) {
        return picture;
    }
    const double largest = HasSixteenBits(picture) ? 65535.0 : 255.0;
    std::vector<double> colour{background.redF() * largest, background.greenF() * largest,
                               background.blueF() * largest};
    if (picture.bands() == 2) {
        colour = {qGray(background.rgb()) / 255.0 * largest};
    }
    return picture.flatten(Picture::option()->set("background", colour)->set("max_alpha", largest));
}

Picture WithoutAlpha(const Picture& picture)
{
    return picture.extract_band(0, Picture::option()->set("n", picture.bands() - 1));
}

Picture AlphaOf(const Picture& picture)
{
    return picture.extract_band(picture.bands() - 1);
}

Picture WithRandomAccess(const Picture& picture)
{
    constexpr guint64 largestInMemory = guint64(256) << 20;
    if (VIPS_IMAGE_SIZEOF_IMAGE(picture.get_image()) <= largestInMemory) {
        return picture.copy_memory();
    }
    const Picture onDisk = Picture::new_temp_file("%s.v");
    picture.write(onDisk);
    return onDisk;
}

} // namespace BatchServer
