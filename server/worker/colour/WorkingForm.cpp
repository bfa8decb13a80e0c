#include "WorkingForm.h"

namespace BatchWorker {

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

// The values unchanged, with the interpretation that belongs to their depth.
Picture Plain(const Picture& picture, bool isGrey)
{
    const bool isDeep = picture.format() == VIPS_FORMAT_USHORT;
    if (isGrey) {
        return Named(picture, isDeep ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_B_W);
    }
    return Named(picture, isDeep ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB);
}

Picture WholeNumbers(const Picture& floats)
{
    constexpr double largest = 65535;
    return floats.linear(largest, 0.5).cast(VIPS_FORMAT_USHORT);
}

Picture CodedLight(const Picture& light, bool isGrey)
{
    const Picture three = isGrey ? Picture::bandjoin({light, light, light}) : light;
    const Picture coded = Named(three, VIPS_INTERPRETATION_scRGB).colourspace(VIPS_INTERPRETATION_RGB16);
    return isGrey ? coded.extract_band(0) : coded;
}

Picture FromFloatingPoint(const Picture& decoded)
{
    const int colours = decoded.bands() < 3 ? 1 : 3;
    const Picture values = decoded.extract_band(0, Picture::option()->set("n", colours));
    const bool hasProfile = decoded.get_typeof(VIPS_META_ICC_NAME) != 0;
    const Picture coded = hasProfile ? WholeNumbers(values) : CodedLight(values, colours == 1);
    const Picture whole =
        decoded.bands() > colours ? coded.bandjoin(WholeNumbers(decoded.extract_band(colours))) : coded;
    return Plain(whole, colours == 1);
}

} // namespace

bool IsFloatingPoint(const Picture& decoded)
{
    const VipsInterpretation kind = vips_image_guess_interpretation(decoded.get_image());
    const bool isKnown =
        IsGrey(kind) || IsRgb(kind) || kind == VIPS_INTERPRETATION_scRGB || kind == VIPS_INTERPRETATION_MULTIBAND;
    return isKnown && (decoded.format() == VIPS_FORMAT_FLOAT || decoded.format() == VIPS_FORMAT_DOUBLE);
}

Picture InWorkingForm(const Picture& decoded)
{
    const VipsInterpretation kind = vips_image_guess_interpretation(decoded.get_image());
    const bool hasPlainDepth = decoded.format() == VIPS_FORMAT_UCHAR || decoded.format() == VIPS_FORMAT_USHORT;
    const bool isPlain = hasPlainDepth && (IsGrey(kind) || IsRgb(kind) || kind == VIPS_INTERPRETATION_MULTIBAND);
    if (IsFloatingPoint(decoded)) {
        return FromFloatingPoint(decoded);
    }
    if (!isPlain) {
        return InWorkingForm(Named(decoded, kind).colourspace(VIPS_INTERPRETATION_RGB16));
    }
    const int colours = decoded.bands() < 3 ? 1 : 3;
    const Picture lean =
        decoded.bands() <= colours + 1 ? decoded : decoded.extract_band(0, Picture::option()->set("n", colours + 1));
    return Plain(lean, colours == 1);
}

} // namespace BatchWorker
