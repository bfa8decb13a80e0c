// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Jpeg2000Codestream.h"

#include "job/values/Warning.h"

#include <vector>

namespace BatchWorker {

/// The samples of one decoded tile, component by component.
class Jpeg2000Tile
{
public:
    Jpeg2000Tile(const Jpeg2000Codestream& codestream, const Jpeg2000Codestream::Area& area);

    std::size_t Bytes() const { return samples.size(); }
    std::uint8_t* Data() { return samples.data(); }

    /// Whether the tile has samples of the line `y` of a component.
    bool HasLine(int component, qint64 y) const;

    /// Writes the samples of a line to those in `line`, whose first is at `left`. Those of signed components are raised
    /// so that the least value is 0.
    void CopyLine(int component, qint64 y, qint64 left, double* line) const;

private:
    struct Plane
    {
        Jpeg2000Codestream::Area area;
        std::size_t offset = 0;
        int bytesOfSample = 1;
        bool isSigned = false;
        double least = 0;
    };

    std::vector<Plane> planes;
    std::vector<std::uint8_t> samples;
};

/// Decoded rows of tiles.
struct Jpeg2000Band
{
    int firstRow = 0;
    std::vector<Jpeg2000Tile> tiles;
};

/// The bytes that decoding takes at most at once, and of these the bytes of a decoded band.
struct Jpeg2000Memory
{
    qint64 all = 0;
    qint64 band = 0;
};

Jpeg2000Memory MemoryFor(const Jpeg2000Codestream& codestream);

/// Decodes the tile rows of `codestream` from `firstRow` on that have to be decoded at once. What the decoder warns of
/// goes to `warnings`. Throws PictureFailure when any of the picture cannot be decoded as it was coded.
Jpeg2000Band DecodeBand(const FileBytes& file, const Jpeg2000Codestream& codestream, int firstRow,
                        BatchJob::Warnings& warnings);

} // namespace BatchWorker
