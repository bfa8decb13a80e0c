// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "TiffSamples.h"

#include "server/worker/pixels/PictureFailure.h"

#include <memory>
#include <mutex>
#include <vector>

namespace BatchWorker {

/// The rows of a TIFF file as the values of a picture. They are decoded when they are asked for, best from top to
/// bottom: no more than a row of tiles or strips is in memory.
class TiffRows
{
public:
    /// Opens the file of `descriptor`, which may be closed then. `warnings` live as long as this. Throws PictureFailure
    /// for what cannot be read, and for a file that needs more than `memory` bytes.
    TiffRows(int descriptor, qint64 memory, BatchJob::Warnings& warnings);
    ~TiffRows();

    const TiffLayout& Layout() const { return layout; }
    const TiffSamples& Samples() const { return *samples; }
    TIFF* File() const { return files.front()->Get(); }
    int PixelSize() const;

    /// Copies the pixels from `left` on of row `y`. Throws PictureFailure when they cannot be decoded.
    void Copy(int left, int y, int count, std::uint8_t* target);

private:
    Q_DISABLE_COPY(TiffRows)

    void OpenPlanes(int descriptor, qint64 memory);
    void Reserve(qint64 memory);
    PictureFailure Failure() const;
    bool LoadBand(int y);
    bool LoadRow(int y);
    bool DecodeRow(int y);
    bool LoadTiles(int y);
    bool LoadConverted(int y);

    TiffLayout layout;
    std::vector<std::unique_ptr<TiffHandle>> files; ///< one for each plane that is used
    std::unique_ptr<TiffSamples> samples;
    std::unique_ptr<TIFFRGBAImage> converter;
    std::mutex mutex;
    bool hasFailed = false;
    int firstRow = 0; ///< of the band in memory
    int rowCount = 0;
    int nextRow = 0; ///< that follows in the decoder, for strips
    std::vector<std::uint8_t> band;
    std::vector<std::vector<std::uint8_t>> stored; ///< a row of a strip, or a tile, of each plane
    std::vector<std::uint32_t> raster;
};

} // namespace BatchWorker
