// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TiffLayout.h"

#include "job/values/Phrase.h"

#include "server/worker/pixels/PictureFailure.h"

#include <algorithm>

using namespace BatchJob;

namespace BatchWorker {

namespace {

// Photometric interpretation of DNG; source: Adobe, "Digital Negative (DNG)", version 1.6.
constexpr quint16 linearRaw = 34892;

// What the imaging library can hold.
constexpr quint32 longestSide = 10'000'000;

void ReadSize(const TiffHandle& file, TiffLayout& layout)
{
    quint32 width = 0;
    quint32 height = 0;
    TIFFGetField(file.Get(), TIFFTAG_IMAGEWIDTH, &width);
    TIFFGetField(file.Get(), TIFFTAG_IMAGELENGTH, &height);
    if (width == 0 || height == 0) {
        throw DamagedFile(Phrase::English("its header gives no size of the picture"));
    }
    if (width > longestSide || height > longestSide) {
        throw TooLarge(Phrase::English("its sides of %1 and %2 pixels are too long").arg(width).arg(height));
    }
    layout.width = int(width);
    layout.height = int(height);
}

void ReadUnits(const TiffHandle& file, TiffLayout& layout)
{
    layout.isPlanar =
        file.Field<quint16>(TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG) == PLANARCONFIG_SEPARATE && layout.samples > 1;
    layout.isTiled = TIFFIsTiled(file.Get()) != 0;
    quint32 width = quint32(layout.width);
    quint32 height = quint32(layout.height);
    if (layout.isTiled) {
        TIFFGetField(file.Get(), TIFFTAG_TILEWIDTH, &width);
        TIFFGetField(file.Get(), TIFFTAG_TILELENGTH, &height);
    } else {
        height = std::min(height, file.Field<quint32>(TIFFTAG_ROWSPERSTRIP, height));
    }
    if (width == 0 || height == 0) {
        throw DamagedFile(Phrase::English("its tiles have no size"));
    }
    if (width > longestSide || height > longestSide) {
        throw TooLarge(Phrase::English("its tiles are too large"));
    }
    layout.unitWidth = int(width);
    layout.unitHeight = int(height);
}

TiffNumbers NumbersOf(quint16 format)
{
    switch (format) {
    case SAMPLEFORMAT_UINT:
    case SAMPLEFORMAT_VOID:
        return TiffNumbers::Unsigned;
    case SAMPLEFORMAT_INT:
        return TiffNumbers::Signed;
    case SAMPLEFORMAT_IEEEFP:
        return TiffNumbers::Floating;
    default:
        throw UnknownFormat(Phrase::English("its values are complex numbers, which are no colours"));
    }
}

void ReadNumbers(const TiffHandle& file, TiffLayout& layout)
{
    layout.samples = file.Field<quint16>(TIFFTAG_SAMPLESPERPIXEL, 1);
    layout.bits = file.Field<quint16>(TIFFTAG_BITSPERSAMPLE, 1);
    layout.numbers = NumbersOf(file.Field<quint16>(TIFFTAG_SAMPLEFORMAT, SAMPLEFORMAT_UINT));
    const bool isWhole = layout.bits >= 1 && (layout.bits <= 32 || layout.bits == 64);
    const bool isFloating = layout.bits == 16 || layout.bits == 24 || layout.bits == 32 || layout.bits == 64;
    if (layout.samples < 1 || !(layout.numbers == TiffNumbers::Floating ? isFloating : isWhole)) {
        throw UnknownFormat(Phrase::English("channels of %1 bits are not supported").arg(layout.bits));
    }
}

// Brightness and colour differences. JPEG streams are converted by their own decoder.
TiffColours ColourDifferences(const TiffHandle& file, quint16 compression, const TiffLayout& layout)
{
    const bool isPlanar = file.Field<quint16>(TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG) == PLANARCONFIG_SEPARATE;
    if (compression == COMPRESSION_JPEG && !isPlanar && layout.bits == 8) {
        TIFFSetField(file.Get(), TIFFTAG_JPEGCOLORMODE, JPEGCOLORMODE_RGB);
        return TiffColours::Rgb;
    }
    return TiffColours::Converted;
}

// The decoder gives light as floating point.
TiffColours Light(const TiffHandle& file, TiffLayout& layout, TiffColours colours)
{
    TIFFSetField(file.Get(), TIFFTAG_SGILOGDATAFMT, SGILOGDATAFMT_FLOAT);
    layout.bits = 32;
    layout.numbers = TiffNumbers::Floating;
    return colours;
}

// Some writers call three channels of colour grey with two more channels, which have no stated meaning then.
bool IsGreyInName(const TiffHandle& file, const TiffLayout& layout)
{
    quint16 count = 0;
    quint16* kinds = nullptr;
    TIFFGetFieldDefaulted(file.Get(), TIFFTAG_EXTRASAMPLES, &count, &kinds);
    const bool isStated =
        kinds && std::any_of(kinds, kinds + count, [](quint16 kind) { return kind != EXTRASAMPLE_UNSPECIFIED; });
    return layout.samples >= 3 && !isStated;
}

TiffColours ColoursOf(const TiffHandle& file, TiffLayout& layout)
{
    const quint16 compression = file.Field<quint16>(TIFFTAG_COMPRESSION, COMPRESSION_NONE);
    if (!TIFFIsCODECConfigured(compression)) {
        throw UnknownFormat(Phrase::English("its compression (number %1) is not supported").arg(compression));
    }
    if (compression == COMPRESSION_JPEG && layout.bits != 8) {
        throw UnknownFormat(Phrase::English("JPEG compression of %1 bits a channel is not supported").arg(layout.bits));
    }
    if (compression == COMPRESSION_OJPEG) {
        return TiffColours::Converted;
    }
    quint16 photometric = layout.samples < 3 ? PHOTOMETRIC_MINISBLACK : PHOTOMETRIC_RGB;
    TIFFGetField(file.Get(), TIFFTAG_PHOTOMETRIC, &photometric);
    switch (photometric) {
    case PHOTOMETRIC_MINISBLACK:
    case PHOTOMETRIC_MASK:
        return IsGreyInName(file, layout) ? TiffColours::Rgb : TiffColours::Grey;
    case PHOTOMETRIC_MINISWHITE:
        return TiffColours::InverseGrey;
    case PHOTOMETRIC_PALETTE:
        return TiffColours::Palette;
    case PHOTOMETRIC_RGB:
        return layout.samples < 3 ? TiffColours::Grey : TiffColours::Rgb;
    case PHOTOMETRIC_SEPARATED:
        return TiffColours::Cmyk;
    case PHOTOMETRIC_CIELAB:
        return TiffColours::CieLab;
    case PHOTOMETRIC_ICCLAB:
        return TiffColours::IccLab;
    case PHOTOMETRIC_ITULAB:
        return TiffColours::ItuLab;
    case PHOTOMETRIC_YCBCR:
        return ColourDifferences(file, compression, layout);
    case PHOTOMETRIC_LOGL:
        return Light(file, layout, TiffColours::LogGrey);
    case PHOTOMETRIC_LOGLUV:
        return Light(file, layout, TiffColours::LogXyz);
    case PHOTOMETRIC_CFA:
    case linearRaw:
        throw UnknownFormat(
            Phrase::English("it holds undeveloped data of a camera; such files are read under the name .dng"));
    default:
        throw UnknownFormat(Phrase::English("its kind of colours (number %1) is not supported").arg(photometric));
    }
}

int ColourSamplesOf(TiffColours colours)
{
    switch (colours) {
    case TiffColours::Grey:
    case TiffColours::InverseGrey:
    case TiffColours::Palette:
    case TiffColours::LogGrey:
        return 1;
    case TiffColours::Cmyk:
        return 4;
    default:
        return 3;
    }
}

void ReadExtraSamples(const TiffHandle& file, TiffLayout& layout, Warnings& warnings)
{
    const int extras = layout.samples - layout.colourSamples;
    quint16 count = 0;
    quint16* kinds = nullptr;
    TIFFGetFieldDefaulted(file.Get(), TIFFTAG_EXTRASAMPLES, &count, &kinds);
    for (int i = 0; i < extras && layout.alpha == TiffAlpha::None; ++i) {
        const int kind = i < count && kinds ? kinds[i] : EXTRASAMPLE_UNSPECIFIED;
        layout.alphaSample = layout.colourSamples + i;
        if (kind == EXTRASAMPLE_ASSOCALPHA) {
            layout.alpha = TiffAlpha::Premultiplied;
        } else if (kind == EXTRASAMPLE_UNASSALPHA || extras == 1) {
            // A single channel without a stated meaning is alpha for most writers.
            layout.alpha = TiffAlpha::Straight;
        }
    }
    const int left = extras - (layout.alpha == TiffAlpha::None ? 0 : 1);
    const Warning warning{
        WarningKind::Decoder,
        Phrase::English("it has %1 channels beside its colours and its transparency, which are left out").arg(left)};
    if (left > 0 && !warnings.contains(warning)) {
        warnings.append(warning);
    }
}

void RequireInks(const TiffHandle& file)
{
    if (file.Field<quint16>(TIFFTAG_INKSET, INKSET_CMYK) != INKSET_CMYK) {
        throw UnknownFormat(
            Phrase::English("it has inks of its own; only cyan, magenta, yellow and black can be read"));
    }
}

void RequireMeaning(const TiffHandle& file, const TiffLayout& layout)
{
    if (layout.samples < layout.colourSamples && layout.colours != TiffColours::Converted) {
        throw DamagedFile(Phrase::English("it has fewer channels than its kind of colours needs"));
    }
    const bool isLab = layout.colours == TiffColours::CieLab || layout.colours == TiffColours::IccLab ||
                       layout.colours == TiffColours::ItuLab;
    const bool isLabDepth = layout.bits == 8 || (layout.bits == 16 && layout.numbers != TiffNumbers::Floating) ||
                            (layout.bits == 32 && layout.numbers == TiffNumbers::Floating);
    if (isLab && !isLabDepth) {
        throw UnknownFormat(Phrase::English("Lab colours of %1 bits a channel are not supported").arg(layout.bits));
    }
    if (layout.colours == TiffColours::Palette && (layout.bits > 16 || layout.numbers == TiffNumbers::Floating)) {
        throw UnknownFormat(Phrase::English("palettes of %1 bits are not supported").arg(layout.bits));
    }
    if (layout.colours == TiffColours::Cmyk) {
        RequireInks(file);
    }
    const quint16 compression = file.Field<quint16>(TIFFTAG_COMPRESSION, COMPRESSION_NONE);
    if (layout.colours == TiffColours::Converted && layout.isTiled && compression == COMPRESSION_NONE) {
        // The decoder takes the size of its buffer for that of the tile.
        throw UnknownFormat(
            Phrase::English("its way of storing colours (colour differences in uncompressed tiles) is not supported"));
    }
    char reason[1024] = "";
    if (layout.colours == TiffColours::Converted && TIFFRGBAImageOK(file.Get(), reason) == 0) {
        throw UnknownFormat(
            Phrase::English("its way of storing colours is not supported: %1").arg(QString::fromLocal8Bit(reason)));
    }
}

} // namespace

TiffLayout LayoutOf(const TiffHandle& file, Warnings& warnings)
{
    TiffLayout layout;
    ReadSize(file, layout);
    ReadNumbers(file, layout);
    layout.colours = ColoursOf(file, layout);
    layout.colourSamples = ColourSamplesOf(layout.colours);
    ReadUnits(file, layout);
    RequireMeaning(file, layout);
    if (layout.colours != TiffColours::Converted) {
        ReadExtraSamples(file, layout, warnings);
    }
    return layout;
}

} // namespace BatchWorker
