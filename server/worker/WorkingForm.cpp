#include "WorkingForm.h"

namespace BatchServer {

namespace {

bool IsGrey(VipsInterpretation interpretation)
{
    return interpretation == VIPS_INTERPRETATION_B_W || interpretation == VIPS_INTERPRETATION_GREY16;
}

bool IsRgb(VipsInterpretation interpretation)
{
    return interpretation == VIPS_INTERPRETATION_sRGB || interpretation == VIPS_INTERPRETATION_RGB16;
}

Picture Named(const Picture& picture, VipsInterpretation interpretation)
{
    return picture.interpretation() == interpretation
               ? picture
               : picture.copy(Picture::option()->set("interpretation", interpretation));
}

// Colours as they are, under the name that belongs to their depth.
Picture Plain(const Picture& picture, bool isGrey)
{
    const bool isDeep = picture.format() == VIPS_FORMAT_USHORT;
    if (isGrey) {
        return Named(picture, isDeep ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_B_W);
    }
    return Named(picture, isDeep ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB);
}

} // namespace

Picture InWorkingForm(const Picture& decoded)
{
    const VipsInterpretation kind = vips_image_guess_interpretation(decoded.get_image());
    const bool hasPlainDepth = decoded.format() == VIPS_FORMAT_UCHAR || decoded.format() == VIPS_FORMAT_USHORT;
    const bool isPlain = hasPlainDepth && (IsGrey(kind) || IsRgb(kind) || kind == VIPS_INTERPRETATION_MULTIBAND);
    if (!isPlain) {
        return InWorkingForm(Named(decoded, kind).colourspace(VIPS_INTERPRETATION_RGB16));
    }
    const int colours = decoded.bands() < 3 ? 1 : 3;
    const Picture lean =
        decoded.bands() <= colours + 1 ? decoded : decoded.extract_band(0, Picture::option()->set("n", colours + 1));
    return Plain(lean, colours == 1);
}

} // namespace BatchServer
