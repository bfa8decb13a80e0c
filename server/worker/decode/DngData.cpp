// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DngData.h"

#include "TiffHandle.h"

#include "server/worker/pixels/PictureFailure.h"

#include <QFile>

#include <array>
#include <vector>

namespace BatchWorker {

namespace {

// Source of the numbers: Adobe, "Digital Negative (DNG)", version 1.6.
constexpr quint16 linearRaw = 34892; // of photometric interpretation
constexpr quint16 lossyJpeg = 34892; // of compression

bool HoldsSensorData(const TiffHandle& file)
{
    quint16 photometric = 0;
    return TIFFGetField(file.Get(), TIFFTAG_PHOTOMETRIC, &photometric) == 1 &&
           (photometric == PHOTOMETRIC_CFA || photometric == linearRaw);
}

// Emptied files have zeros there, which decoders take for a black picture.
bool BeginsAsJpeg(TIFF* tiff, bool isTiled, quint32 unit)
{
    std::array<quint8, 2> start{};
    const tmsize_t count = isTiled ? TIFFReadRawTile(tiff, unit, start.data(), tmsize_t(start.size()))
                                   : TIFFReadRawStrip(tiff, unit, start.data(), tmsize_t(start.size()));
    return count == tmsize_t(start.size()) && start[0] == 0xFF && start[1] == 0xD8;
}

// Those of the current directory.
bool LacksData(const TiffHandle& file)
{
    TIFF* const tiff = file.Get();
    const quint64 size = quint64(file.FileSize());
    const bool isTiled = TIFFIsTiled(tiff) != 0;
    const quint32 units = isTiled ? TIFFNumberOfTiles(tiff) : TIFFNumberOfStrips(tiff);
    const quint16 compression = file.Field<quint16>(TIFFTAG_COMPRESSION, COMPRESSION_NONE);
    const bool isJpeg = compression == COMPRESSION_JPEG || compression == lossyJpeg;
    quint64 stored = 0;
    for (quint32 unit = 0; unit < units; ++unit) {
        const quint64 offset = TIFFGetStrileOffset(tiff, unit);
        const quint64 count = TIFFGetStrileByteCount(tiff, unit);
        if (offset == 0 || count == 0 || offset >= size || count > size - offset ||
            (isJpeg && !BeginsAsJpeg(tiff, isTiled, unit))) {
            return true;
        }
        stored += count;
    }
    quint32 height = 0;
    TIFFGetField(tiff, TIFFTAG_IMAGELENGTH, &height);
    const quint64 ofUnit = isTiled ? TIFFTileSize64(tiff) : TIFFScanlineSize64(tiff);
    return compression == COMPRESSION_NONE && stored < ofUnit * (isTiled ? units : height);
}

std::vector<quint64> Subdirectories(const TiffHandle& file)
{
    quint16 count = 0;
    const quint64* offsets = nullptr;
    const bool hasAny = TIFFGetField(file.Get(), TIFFTAG_SUBIFD, &count, &offsets) == 1 && offsets;
    return hasAny ? std::vector<quint64>(offsets, offsets + count) : std::vector<quint64>();
}

bool LacksAnyData(const TiffHandle& file)
{
    const void* version = nullptr;
    if (TIFFGetField(file.Get(), TIFFTAG_DNGVERSION, &version) != 1) {
        return false;
    }
    if (HoldsSensorData(file)) {
        return LacksData(file);
    }
    for (const quint64 offset : Subdirectories(file)) {
        if (TIFFSetSubDirectory(file.Get(), offset) == 1 && HoldsSensorData(file) && LacksData(file)) {
            return true;
        }
    }
    return false;
}

} // namespace

bool LacksDngData(const QString& path)
{
    constexpr qint64 largestAllocation = qint64(64) << 20;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    try {
        return LacksAnyData(TiffHandle(file.handle(), largestAllocation));
    } catch (const PictureFailure&) {
        return false; // not built like a TIFF file
    }
}

} // namespace BatchWorker
