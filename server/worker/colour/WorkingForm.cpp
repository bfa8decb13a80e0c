// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WorkingForm.h"

#include "job/values/Phrase.h"

#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/PixelForms.h"
#include "server/worker/pixels/VipsText.h"

namespace BatchWorker {

namespace {

bool IsGreyKind(VipsInterpretation interpretation)
{
    return interpretation == VIPS_INTERPRETATION_B_W || interpretation == VIPS_INTERPRETATION_GREY16;
}

bool IsRgbKind(VipsInterpretation interpretation)
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

bool HasPlainColours(const Picture& decoded)
{
    const VipsInterpretation kind = vips_image_guess_interpretation(decoded.get_image());
    return decoded.coding() == VIPS_CODING_NONE &&
           (IsGreyKind(kind) || IsRgbKind(kind) || kind == VIPS_INTERPRETATION_MULTIBAND);
}

// Whole numbers of other kinds: the smallest becomes 0, the largest the largest of 8 or 16 bits.
Picture InPlainDepth(const Picture& decoded)
{
    constexpr double toSixteenBits = 65535.0 / 4294967295.0;
    switch (decoded.format()) {
    case VIPS_FORMAT_UCHAR:
    case VIPS_FORMAT_USHORT:
        return decoded;
    case VIPS_FORMAT_CHAR:
        return decoded.linear(1, 128).cast(VIPS_FORMAT_UCHAR);
    case VIPS_FORMAT_SHORT:
        return decoded.linear(1, 32768).cast(VIPS_FORMAT_USHORT);
    case VIPS_FORMAT_UINT:
        return decoded.linear(toSixteenBits, 0.5).cast(VIPS_FORMAT_USHORT);
    case VIPS_FORMAT_INT:
        return decoded.linear(toSixteenBits, 32768).cast(VIPS_FORMAT_USHORT);
    default:
        throw UnknownFormat(BatchJob::Phrase::English("its values are complex numbers, which are no colours"));
    }
}

// The largest alpha that the library expects beside colours of `kind`.
double LargestAlpha(VipsInterpretation kind)
{
    return kind == VIPS_INTERPRETATION_scRGB ? 1.0 : 255.0;
}

// What the library converts to RGB: device-independent colours, and models of RGB. Its conversion ignores what an alpha
// channel means, which goes another way.
Picture FromOtherColours(const Picture& decoded)
{
    constexpr int colours = 3;
    constexpr double largest = 65535;
    const VipsInterpretation kind = vips_image_guess_interpretation(decoded.get_image());
    const bool isPacked = decoded.coding() != VIPS_CODING_NONE;
    Picture converted;
    try {
        const bool hasAlpha = !isPacked && decoded.bands() > colours;
        const Picture known =
            Named(hasAlpha ? decoded.extract_band(0, Picture::option()->set("n", colours)) : decoded, kind);
        converted = known.colourspace(VIPS_INTERPRETATION_RGB16);
        if (hasAlpha) {
            const Picture alpha =
                decoded.extract_band(colours).linear(largest / LargestAlpha(kind), 0.5).cast(VIPS_FORMAT_USHORT);
            converted = converted.bandjoin(alpha);
        }
    } catch (const vips::VError& problem) {
        throw UnknownFormat(BatchJob::Phrase::English("its kind of colours is not supported: %1").arg(TextOf(problem)));
    }
    if (!HasPlainColours(converted) || converted.format() != VIPS_FORMAT_USHORT) {
        throw UnknownFormat(BatchJob::Phrase::English("its kind of colours is not supported"));
    }
    return converted;
}

} // namespace

bool IsFloatingPoint(const Picture& decoded)
{
    const VipsInterpretation kind = vips_image_guess_interpretation(decoded.get_image());
    const bool isKnown = IsGreyKind(kind) || IsRgbKind(kind) || kind == VIPS_INTERPRETATION_scRGB ||
                         kind == VIPS_INTERPRETATION_MULTIBAND;
    return isKnown && (decoded.format() == VIPS_FORMAT_FLOAT || decoded.format() == VIPS_FORMAT_DOUBLE);
}

Picture InWorkingForm(const Picture& decoded)
{
    if (IsFloatingPoint(decoded)) {
        return FromFloatingPoint(decoded);
    }
    const Picture plain = HasPlainColours(decoded) ? InPlainDepth(decoded) : FromOtherColours(decoded);
    const int colours = ColourBands(plain);
    const Picture lean =
        plain.bands() <= colours + 1 ? plain : plain.extract_band(0, Picture::option()->set("n", colours + 1));
    return Plain(lean, colours == 1);
}

} // namespace BatchWorker
