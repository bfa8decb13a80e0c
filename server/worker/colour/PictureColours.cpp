// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureColours.h"

#include "Colour.h"
#include "ColourProfile.h"

#include "server/worker/pixels/PixelForms.h"

#include <cmath>
#include <cstdint>

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

// Whether two colours differ by more than rounding in a conversion does.
bool AreFarApart(const std::vector<double>& one, const std::vector<double>& other, double largest)
{
    const double nearby = 2.0 * largest / 255.0;
    for (std::size_t band = 0; band < one.size(); ++band) {
        if (std::abs(one[band] - other[band]) > nearby) {
            return true;
        }
    }
    return false;
}

} // namespace

bool HasColour(const QColor& colour)
{
    return colour.red() != colour.green() || colour.green() != colour.blue();
}

bool HasColour(const Picture& image)
{
    const std::vector<std::uint8_t> pixels = BytesOf(WithAlpha(image));
    for (std::size_t i = 0; i < pixels.size(); i += 4) {
        if (pixels[i + 3] > 0 && (pixels[i] != pixels[i + 1] || pixels[i] != pixels[i + 2])) {
            return true;
        }
    }
    return false;
}

Picture AsRgb(const Picture& picture)
{
    if (!IsGrey(picture)) {
        return picture;
    }
    // A profile that cannot be used was reported when the picture was read.
    BatchJob::Warnings warnings;
    const Picture rgb = InPlainSrgb(picture, warnings).colourspace(KindOf(false, DepthOf(picture)));
    return ProfileOf(picture).isEmpty() ? rgb : WithProfile(rgb, BuiltInSrgb());
}

Picture InSpaceOf(const Picture& picture, const Picture& other, BatchJob::Warnings& warnings)
{
    const int depth = DepthOf(picture);
    const Picture deep = WithDepth(other, depth);
    const QByteArray profile = ProfileOf(picture);
    const bool isPlain = profile.isEmpty() || IsSrgb(profile);
    return WithoutMetadata(isPlain ? deep.colourspace(KindOf(IsGrey(picture), depth))
                                   : ConvertedTo(profile, deep, warnings));
}

std::vector<double> ColourInSpaceOf(const Picture& picture, const QColor& colour, BatchJob::Warnings& warnings)
{
    const std::vector<double> values{double(colour.red()), double(colour.green()), double(colour.blue())};
    const Picture pixel = (Picture::black(1, 1) + values)
                              .cast(VIPS_FORMAT_UCHAR)
                              .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
    std::vector<double> converted = InSpaceOf(picture, pixel, warnings).getpoint(0, 0);
    if (IsGrey(picture) && HasColour(colour)) {
        return converted;
    }
    const double largest = LargestValue(picture);
    std::vector<double> asWritten;
    for (std::size_t band = 0; band < converted.size(); ++band) {
        asWritten.push_back(values[band] * (largest / 255.0));
    }
    return AreFarApart(converted, asWritten, largest) ? converted : asWritten;
}

PaintablePicture PaintableWith(const QColor& colour, const Picture& picture)
{
    PaintablePicture paintable{HasColour(colour) ? AsRgb(picture) : picture, {}};
    // A profile that cannot be used was reported when the picture was read.
    BatchJob::Warnings warnings;
    paintable.paint = ColourInSpaceOf(paintable.picture, colour, warnings);
    if (colour.alpha() < 255) {
        paintable.picture = WithAlpha(paintable.picture);
    }
    if (paintable.picture.has_alpha()) {
        paintable.paint.push_back(colour.alpha() * (LargestValue(paintable.picture) / 255.0));
    }
    return paintable;
}

} // namespace BatchWorker
