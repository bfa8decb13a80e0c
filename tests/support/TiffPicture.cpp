// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TiffPicture.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

#include <tiffio.h>

namespace {

using Value = std::function<double(int x, int y, int s)>;

/// Samples without gaps, the highest bit first; whole bytes in the order of this machine.
class Samples
{
public:
    explicit Samples(const TiffPicture& picture)
        : picture(picture)
    {
    }

    void Add(double value)
    {
        if (picture.numbers == TiffPicture::Floating) {
            AddFloat(value);
            return;
        }
        const double largest = std::ldexp(1.0, picture.bits) - 1;
        const double whole = std::floor(value * largest + 0.5);
        quint64 bits = whole >= std::ldexp(1.0, 64) ? ~quint64(0) : quint64(whole);
        if (picture.numbers == TiffPicture::Signed) {
            bits ^= quint64(1) << (picture.bits - 1);
        }
        if (picture.bits == 16 || picture.bits == 24 || picture.bits == 32 || picture.bits == 64) {
            AddBytes(&bits, picture.bits / 8);
        } else {
            AddBits(bits, picture.bits);
        }
    }

    void EndRow()
    {
        while (bitsInLast != 0) {
            AddBits(0, 1);
        }
    }

    std::vector<quint8> bytes;

private:
    void AddBytes(const void* number, int size)
    {
        const auto* const first = static_cast<const quint8*>(number);
        bytes.insert(bytes.end(), first, first + size);
    }

    void AddBits(quint64 number, int count)
    {
        for (int bit = count - 1; bit >= 0; --bit) {
            if (bitsInLast == 0) {
                bytes.push_back(0);
            }
            bytes.back() |= quint8(((number >> bit) & 1) << (7 - bitsInLast));
            bitsInLast = (bitsInLast + 1) % 8;
        }
    }

    void AddFloat(double value)
    {
        if (picture.bits == 64) {
            AddBytes(&value, 8);
        } else if (picture.bits == 32) {
            const float single = float(value);
            AddBytes(&single, 4);
        } else {
            const int exponentBits = picture.bits == 16 ? 5 : 7;
            const int fractionBits = picture.bits == 16 ? 10 : 16;
            int exponent = 0;
            const double fraction = std::frexp(value, &exponent) * 2 - 1;
            const int bias = (1 << (exponentBits - 1)) - 1;
            const quint32 bits = value <= 0 ? 0
                                            : (quint32(exponent - 1 + bias) << fractionBits) +
                                                  quint32(std::lround(std::ldexp(fraction, fractionBits)));
            AddBytes(&bits, picture.bits / 8);
        }
    }

    const TiffPicture& picture;
    int bitsInLast = 0;
};

std::vector<quint8> Area(const TiffPicture& picture, const Value& value, int left, int top, int width, int height,
                         int plane)
{
    Samples samples(picture);
    const auto at = [&](int x, int y, int s) {
        return value(std::min(x, picture.width - 1), std::min(y, picture.height - 1), s);
    };
    for (int y = top; y < top + height; y += picture.down) {
        for (int x = left; x < left + width; x += picture.across) {
            if (picture.isPlanar) {
                samples.Add(at(x, y, plane));
                continue;
            }
            // With subsampling, the brightness of a block before its colour differences.
            for (int i = 0; i < picture.across * picture.down; ++i) {
                samples.Add(at(x + i % picture.across, y + i / picture.across, 0));
            }
            for (int s = 1; s < picture.samples; ++s) {
                samples.Add(at(x, y, s));
            }
        }
        samples.EndRow();
    }
    return samples.bytes;
}

void SetFields(TIFF* tiff, const TiffPicture& picture)
{
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, quint32(picture.width));
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, quint32(picture.height));
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, picture.samples);
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, picture.bits);
    TIFFSetField(tiff, TIFFTAG_SAMPLEFORMAT, int(picture.numbers));
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, picture.photometric);
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, picture.isPlanar ? PLANARCONFIG_SEPARATE : PLANARCONFIG_CONTIG);
    TIFFSetField(tiff, TIFFTAG_ORIENTATION, picture.orientation);
    TIFFSetField(tiff, TIFFTAG_COMPRESSION, picture.compression);
    if (picture.inkSet != 1) {
        TIFFSetField(tiff, TIFFTAG_INKSET, picture.inkSet);
    }
    if (picture.compression == COMPRESSION_SGILOG) {
        TIFFSetField(tiff, TIFFTAG_SGILOGDATAFMT, SGILOGDATAFMT_FLOAT);
    }
    if (picture.predictor != 1) {
        TIFFSetField(tiff, TIFFTAG_PREDICTOR, picture.predictor);
    }
    if (!picture.extraSamples.isEmpty()) {
        TIFFSetField(tiff, TIFFTAG_EXTRASAMPLES, picture.extraSamples.size(), picture.extraSamples.data());
    }
    if (!picture.palette.isEmpty()) {
        const quint16* const red = picture.palette.data();
        const int entries = picture.palette.size() / 3;
        TIFFSetField(tiff, TIFFTAG_COLORMAP, red, red + entries, red + 2 * entries);
    }
    if (!picture.profile.isEmpty()) {
        TIFFSetField(tiff, TIFFTAG_ICCPROFILE, quint32(picture.profile.size()), picture.profile.constData());
    }
    if (picture.photometric == PHOTOMETRIC_YCBCR) {
        TIFFSetField(tiff, TIFFTAG_YCBCRSUBSAMPLING, picture.across, picture.down);
        float reference[] = {0, 255, 128, 255, 128, 255};
        TIFFSetField(tiff, TIFFTAG_REFERENCEBLACKWHITE, reference);
    }
    if (picture.tile > 0) {
        TIFFSetField(tiff, TIFFTAG_TILEWIDTH, quint32(picture.tile));
        TIFFSetField(tiff, TIFFTAG_TILELENGTH, quint32(picture.tile));
    } else {
        TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, quint32(picture.rowsOfStrip));
    }
}

void WriteTiles(TIFF* tiff, const TiffPicture& picture, const Value& value)
{
    for (int plane = 0; plane < (picture.isPlanar ? picture.samples : 1); ++plane) {
        for (int y = 0; y < picture.height; y += picture.tile) {
            for (int x = 0; x < picture.width; x += picture.tile) {
                std::vector<quint8> bytes = Area(picture, value, x, y, picture.tile, picture.tile, plane);
                const ttile_t tile = TIFFComputeTile(tiff, quint32(x), quint32(y), 0, quint16(plane));
                TIFFWriteEncodedTile(tiff, tile, bytes.data(), tmsize_t(bytes.size()));
            }
        }
    }
}

void WriteStrips(TIFF* tiff, const TiffPicture& picture, const Value& value)
{
    for (int plane = 0; plane < (picture.isPlanar ? picture.samples : 1); ++plane) {
        for (int y = 0; y < picture.height; y += picture.rowsOfStrip) {
            const int rows = std::min(picture.rowsOfStrip, picture.height - y);
            std::vector<quint8> bytes = Area(picture, value, 0, y, picture.width, rows, plane);
            const tstrip_t strip = TIFFComputeStrip(tiff, quint32(y), quint16(plane));
            TIFFWriteEncodedStrip(tiff, strip, bytes.data(), tmsize_t(bytes.size()));
        }
    }
}

} // namespace

void TiffPicture::Write(const QString& file, const Value& value) const
{
    TIFF* const tiff = TIFFOpen(QFile::encodeName(file).constData(), isBigEndian ? "wb" : "wl");
    if (!tiff) {
        qFatal("%s cannot be written.", qUtf8Printable(file));
    }
    SetFields(tiff, *this);
    if (tile > 0) {
        WriteTiles(tiff, *this, value);
    } else {
        WriteStrips(tiff, *this, value);
    }
    TIFFClose(tiff);
}
