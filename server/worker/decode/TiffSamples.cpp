// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TiffSamples.h"

#include "job/values/Phrase.h"

#include "server/worker/pixels/PictureFailure.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include <lcms2.h>

namespace BatchWorker {

namespace {

constexpr double largestByte = 255;
constexpr double largestWord = 65535;

template<typename Number>
double NumberAt(const std::uint8_t* row, int index)
{
    Number number;
    std::memcpy(&number, row + std::size_t(index) * sizeof(Number), sizeof(Number));
    return double(number);
}

// The samples stand without gaps, the highest bit first.
std::uint32_t BitsAt(const std::uint8_t* row, int index, int bits)
{
    const std::size_t first = std::size_t(index) * std::size_t(bits);
    std::uint32_t value = 0;
    for (std::size_t bit = first; bit < first + std::size_t(bits); ++bit) {
        value = (value << 1) | ((row[bit / 8] >> (7 - bit % 8)) & 1U);
    }
    return value;
}

// The decoder brings whole bytes into the order of this machine.
std::uint32_t ThreeBytesAt(const std::uint8_t* row, int index)
{
    const std::uint8_t* const bytes = row + std::size_t(index) * 3;
#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
    return bytes[0] | (std::uint32_t(bytes[1]) << 8) | (std::uint32_t(bytes[2]) << 16);
#else
    return bytes[2] | (std::uint32_t(bytes[1]) << 8) | (std::uint32_t(bytes[0]) << 16);
#endif
}

// Binary floating point of fewer bits than the language has. Source of the layouts: IEEE 754 for 16 bits; Adobe, TIFF
// Technical Note 3, for 24 bits.
double SmallFloat(std::uint32_t bits, int exponentBits, int fractionBits)
{
    const int bias = (1 << (exponentBits - 1)) - 1;
    const int largestExponent = (1 << exponentBits) - 1;
    const int exponent = int(bits >> fractionBits) & largestExponent;
    const double fraction = double(bits & ((1U << fractionBits) - 1)) / double(1U << fractionBits);
    const bool isNegative = (bits >> (exponentBits + fractionBits)) & 1U;
    double value = exponent == 0 ? std::ldexp(fraction, 1 - bias) : std::ldexp(1 + fraction, exponent - bias);
    if (exponent == largestExponent) {
        value = fraction == 0 ? HUGE_VAL : 0;
    }
    return isNegative ? -value : value;
}

double FloatAt(const std::uint8_t* row, int index, int bits)
{
    double value = 0;
    switch (bits) {
    case 16:
        value = SmallFloat(std::uint32_t(NumberAt<std::uint16_t>(row, index)), 5, 10);
        break;
    case 24:
        value = SmallFloat(ThreeBytesAt(row, index), 7, 16);
        break;
    case 32:
        value = NumberAt<float>(row, index);
        break;
    default:
        value = NumberAt<double>(row, index);
        break;
    }
    return std::isnan(value) ? 0 : value;
}

double UnsignedAt(const std::uint8_t* row, int index, int bits)
{
    switch (bits) {
    case 8:
        return row[index];
    case 16:
        return NumberAt<std::uint16_t>(row, index);
    case 24:
        return ThreeBytesAt(row, index);
    case 32:
        return NumberAt<std::uint32_t>(row, index);
    case 64:
        return NumberAt<std::uint64_t>(row, index);
    default:
        return BitsAt(row, index, bits);
    }
}

bool IsLab(TiffColours colours)
{
    return colours == TiffColours::CieLab || colours == TiffColours::IccLab || colours == TiffColours::ItuLab;
}

// Without the sign that a number of 8 or 16 bits may have by its highest bit.
double AsSigned(double value, double largest)
{
    return value > largest / 2 ? value - largest - 1 : value;
}

// Sources: Adobe, TIFF Revision 6.0, section 23 (CieLab); Adobe, TIFF Technical Notes for Photoshop, and ICC.1, 6.3.4.2
// (IccLab); ITU-T T.42, default ranges (ItuLab).
void DecodeLab(double* values, TiffColours colours, int bits)
{
    const double largest = bits == 8 ? largestByte : largestWord;
    const double unit = bits == 8 ? 1 : 256;
    if (colours == TiffColours::CieLab) {
        values[0] *= 100 / largest;
        values[1] = AsSigned(values[1], largest) / unit;
        values[2] = AsSigned(values[2], largest) / unit;
    } else if (colours == TiffColours::IccLab) {
        values[0] *= 100 / (255 * unit);
        values[1] = values[1] / unit - 128;
        values[2] = values[2] / unit - 128;
    } else {
        values[0] *= 100 / largest;
        values[1] = (values[1] - 128 * unit) * 170 / largest;
        values[2] = (values[2] - 96 * unit) * 200 / largest;
    }
}

// To light of the primaries of sRGB. Source: G. Ward Larson, "The LogLuv Encoding for Full Gamut, High Dynamic Range
// Images", 1998; the primaries of ITU-R BT.709 with a white of equal energy.
void DecodeXyz(double* values)
{
    const double x = values[0];
    const double y = values[1];
    const double z = values[2];
    values[0] = 2.690 * x - 1.276 * y - 0.414 * z;
    values[1] = -1.022 * x + 1.978 * y + 0.044 * z;
    values[2] = 0.061 * x - 0.224 * y + 1.163 * z;
}

// Colours relative to the white of each space, as profiles have them.
void* TransformFromLab()
{
    const cmsHPROFILE lab = cmsCreateLab4Profile(nullptr);
    const cmsHPROFILE srgb = cmsCreate_sRGBProfile();
    void* const transform =
        cmsCreateTransform(lab, TYPE_Lab_DBL, srgb, TYPE_RGB_16, INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOCACHE);
    cmsCloseProfile(lab);
    cmsCloseProfile(srgb);
    return transform;
}

template<typename Number>
void Put(double value, int band, std::uint8_t* target)
{
    const Number number = Number(value);
    std::memcpy(target + std::size_t(band) * sizeof(Number), &number, sizeof(Number));
}

// A whole number of 0 to `largest`.
double Whole(double value, double largest)
{
    return std::floor(std::clamp(value, 0.0, largest) + 0.5);
}

} // namespace

TiffSamples::TiffSamples(const TiffHandle& file, const TiffLayout& layout)
    : layout(layout)
    , palette(layout.colours == TiffColours::Palette ? PaletteOf(file, layout) : Palette())
    , format(FormatOf())
    , largest(layout.numbers == TiffNumbers::Floating ? 1 : std::ldexp(1.0, layout.bits) - 1)
{
    if (layout.colours == TiffColours::Palette) {
        this->layout.colourSamples = 3;
    }
    if (IsLab(layout.colours)) {
        fromLab.reset(TransformFromLab());
    }
}

VipsInterpretation TiffSamples::Interpretation() const
{
    const bool isDeep = format == VIPS_FORMAT_USHORT;
    if (layout.colours == TiffColours::Cmyk) {
        return VIPS_INTERPRETATION_CMYK;
    }
    if (layout.colourSamples == 1) {
        return isDeep ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_B_W;
    }
    if (format == VIPS_FORMAT_FLOAT) {
        return VIPS_INTERPRETATION_scRGB;
    }
    return isDeep ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB;
}

bool TiffSamples::IsPlain() const
{
    const bool isOfFormat = layout.numbers == TiffNumbers::Floating
                                ? layout.bits == 32
                                : layout.numbers == TiffNumbers::Unsigned && (layout.bits == 8 || layout.bits == 16);
    const bool isOfColours = layout.colours == TiffColours::Grey || layout.colours == TiffColours::LogGrey ||
                             layout.colours == TiffColours::Rgb || layout.colours == TiffColours::Cmyk;
    return isOfFormat && isOfColours && layout.alpha != TiffAlpha::Premultiplied && layout.samples == Bands();
}

void TiffSamples::Convert(const std::vector<const std::uint8_t*>& planes, int count, std::uint8_t* target) const
{
    const bool hasAlpha = layout.alpha != TiffAlpha::None;
    const bool isPalette = layout.colours == TiffColours::Palette;
    const int stored = isPalette ? 1 : layout.colourSamples;
    double values[5] = {};
    for (int x = 0; x < count; ++x) {
        for (int i = 0; i < stored + (hasAlpha ? 1 : 0); ++i) {
            const int sample = i < stored ? i : layout.alphaSample;
            values[i] =
                layout.isPlanar ? Sample(planes[std::size_t(i)], x) : Sample(planes[0], x * layout.samples + sample);
        }
        if (isPalette) {
            StorePaletteColour(values[0], hasAlpha ? values[1] / largest : 1, target);
        } else {
            Interpret(values);
            Store(values, target);
        }
        target += PixelSize();
    }
}

TiffSamples::Palette TiffSamples::PaletteOf(const TiffHandle& file, const TiffLayout& layout)
{
    quint16* red = nullptr;
    quint16* green = nullptr;
    quint16* blue = nullptr;
    if (TIFFGetField(file.Get(), TIFFTAG_COLORMAP, &red, &green, &blue) != 1 || !red || !green || !blue) {
        throw DamagedFile(BatchJob::Phrase::English("its palette is missing"));
    }
    Palette palette;
    const std::size_t entries = std::size_t(1) << layout.bits;
    for (std::size_t i = 0; i < entries; ++i) {
        palette.colours.insert(palette.colours.end(), {red[i], green[i], blue[i]});
    }
    const auto isByte = [](std::uint16_t value) { return value <= 255; };
    if (std::all_of(palette.colours.begin(), palette.colours.end(), isByte)) {
        // Some writers give 8 bits where 16 belong.
        for (std::uint16_t& value : palette.colours) {
            value = std::uint16_t(value * 257);
        }
    }
    // 8 bits are written as 16 with zeros, or with the byte twice.
    const auto isDeep = [](std::uint16_t value) { return (value & 255U) != 0 && (value & 255U) != value >> 8U; };
    palette.isDeep = std::any_of(palette.colours.begin(), palette.colours.end(), isDeep);
    return palette;
}

VipsBandFormat TiffSamples::FormatOf() const
{
    if (IsLab(layout.colours)) {
        return VIPS_FORMAT_USHORT;
    }
    if (layout.numbers == TiffNumbers::Floating) {
        return VIPS_FORMAT_FLOAT;
    }
    const bool isDeep = layout.colours == TiffColours::Palette ? palette.isDeep : layout.bits > 8;
    return isDeep ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR;
}

int TiffSamples::ValueSize() const
{
    return int(vips_format_sizeof(format));
}

// As an unsigned number of the same range, or as floating point.
double TiffSamples::Sample(const std::uint8_t* row, int index) const
{
    if (layout.numbers == TiffNumbers::Floating) {
        return FloatAt(row, index, layout.bits);
    }
    const double value = UnsignedAt(row, index, layout.bits);
    const bool isShifted =
        layout.numbers == TiffNumbers::Signed && !IsLab(layout.colours) && layout.colours != TiffColours::Palette;
    if (!isShifted) {
        return value;
    }
    const double half = (largest + 1) / 2;
    return value < half ? value + half : value - half;
}

// Colours without premultiplication, alpha from 0 to `largest`.
void TiffSamples::Interpret(double* values) const
{
    const int colours = layout.colourSamples;
    if (IsLab(layout.colours)) {
        if (layout.numbers != TiffNumbers::Floating) {
            DecodeLab(values, layout.colours, layout.bits);
        }
    } else if (layout.colours == TiffColours::LogXyz) {
        DecodeXyz(values);
    }
    if (layout.alpha == TiffAlpha::Premultiplied) {
        const double opacity = values[colours] / largest;
        for (int i = 0; i < colours; ++i) {
            values[i] = opacity > 0 ? values[i] / opacity : 0;
        }
    }
    if (layout.colours == TiffColours::InverseGrey) {
        values[0] = largest - values[0];
    }
}

void TiffSamples::DeleteTransform::operator()(void* transform) const
{
    cmsDeleteTransform(transform);
}

void TiffSamples::StoreLab(const double* values, std::uint8_t* target) const
{
    std::uint16_t colour[3] = {};
    cmsDoTransform(fromLab.get(), values, colour, 1);
    for (int i = 0; i < 3; ++i) {
        Put<std::uint16_t>(colour[i], i, target);
    }
    if (layout.alpha != TiffAlpha::None) {
        Put<std::uint16_t>(Whole(values[3] * largestWord / largest, largestWord), 3, target);
    }
}

void TiffSamples::Store(const double* values, std::uint8_t* target) const
{
    if (fromLab) {
        StoreLab(values, target);
        return;
    }
    for (int i = 0; i < Bands(); ++i) {
        if (format == VIPS_FORMAT_UCHAR) {
            Put<std::uint8_t>(Whole(values[i] * largestByte / largest, largestByte), i, target);
        } else if (format == VIPS_FORMAT_USHORT) {
            Put<std::uint16_t>(Whole(values[i] * largestWord / largest, largestWord), i, target);
        } else {
            constexpr double bound = 1e30; // far from the limits of the type
            Put<float>(std::clamp(values[i], -bound, bound), i, target);
        }
    }
}

void TiffSamples::StorePaletteColour(double index, double alpha, std::uint8_t* target) const
{
    const std::uint16_t* const colour = &palette.colours[std::size_t(index) * 3];
    double values[4] = {double(colour[0]), double(colour[1]), double(colour[2]), alpha * largestWord};
    if (layout.alpha == TiffAlpha::Premultiplied) {
        for (int i = 0; i < 3; ++i) {
            values[i] = alpha > 0 ? values[i] / alpha : 0;
        }
    }
    for (int i = 0; i < Bands(); ++i) {
        if (format == VIPS_FORMAT_UCHAR) {
            // The upper byte, which is the value whichever way 8 bits were made 16.
            Put<std::uint8_t>(std::floor(std::clamp(values[i], 0.0, largestWord) / 256), i, target);
        } else {
            Put<std::uint16_t>(Whole(values[i], largestWord), i, target);
        }
    }
}

} // namespace BatchWorker
