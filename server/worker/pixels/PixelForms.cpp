// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PixelForms.h"

#include <memory>

namespace BatchWorker {

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

double LargestValue(const Picture& picture)
{
    return HasSixteenBits(picture) ? 65535.0 : 255.0;
}

bool IsGrey(const Picture& picture)
{
    return picture.bands() < 3;
}

int ColourBands(const Picture& picture)
{
    return IsGrey(picture) ? 1 : 3;
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
    const double largest = LargestValue(picture);
    std::vector<double> colour{background.redF() * largest, background.greenF() * largest,
                               background.blueF() * largest};
    if (picture.bands() == 2) {
        colour = {qGray(background.rgb()) / 255.0 * largest};
    }
    return picture.flatten(Picture::option()->set("background", colour)->set("max_alpha", largest));
}

Picture WithAlpha(const Picture& picture)
{
    return picture.has_alpha() ? picture : picture.bandjoin_const({LargestValue(picture)});
}

Picture WithoutAlpha(const Picture& picture)
{
    return picture.extract_band(0, Picture::option()->set("n", picture.bands() - 1));
}

Picture AlphaOf(const Picture& picture)
{
    return picture.extract_band(picture.bands() - 1);
}

std::vector<std::uint8_t> BytesOf(const Picture& picture)
{
    std::size_t size = 0;
    const std::unique_ptr<void, decltype(&g_free)> values(picture.write_to_memory(&size), g_free);
    const auto* const first = static_cast<const std::uint8_t*>(values.get());
    return {first, first + size};
}

} // namespace BatchWorker
