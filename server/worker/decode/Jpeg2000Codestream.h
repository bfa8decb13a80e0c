// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "FileBytes.h"

#include <QByteArray>
#include <QRect>
#include <QVector>

#include <cstdint>
#include <optional>

namespace BatchWorker {

/// The header of a JPEG 2000 codestream, and where in it the data of each tile are. Nothing is decoded. Source of the
/// layout: ITU-T T.800 (ISO/IEC 15444-1), annexes A and B; of high-throughput coding, T.814 (15444-15).
class Jpeg2000Codestream
{
public:
    struct Component
    {
        int bits = 0;
        bool isSigned = false;
        int dx = 1; ///< every how many columns of the reference grid there is a sample
        int dy = 1;
        /// Where in its cell a sample lies, in cells from the cell's top left; nothing when the file does not say.
        std::optional<double> shiftX;
        std::optional<double> shiftY;
    };

    /// Half-open, on the reference grid or in samples of a component.
    struct Area
    {
        qint64 left = 0;
        qint64 top = 0;
        qint64 right = 0;
        qint64 bottom = 0;

        qint64 Width() const { return right - left; }
        qint64 Height() const { return bottom - top; }
    };

    struct TilePart
    {
        int tile = 0;
        qint64 begin = 0; ///< in the file
        qint64 length = 0;
    };

    /// Reads the header between `begin` and `end` of `file`, where `end` may be behind the end of the file. Throws
    /// PictureFailure for what is damaged, incomplete, or coded in a way that the decoder does not know.
    Jpeg2000Codestream(const FileBytes& file, qint64 begin, qint64 end);

    const QVector<Component>& Components() const { return components; }
    const Area& Image() const { return image; }
    int TileColumns() const { return tileColumns; }
    int TileRows() const { return tileRows; }

    /// The part of the image that the tile of this column and row covers.
    Area Tile(int column, int row) const;

    /// Whether red, green and blue are coded as luma and chroma, which the decoder undoes.
    bool HasColourTransform() const { return hasColourTransform; }

    /// Whether only the mark of the end is missing, behind the last pixels.
    bool LacksEnd() const { return lacksEnd; }

    /// The tile rows that have to be decoded at once, from the one of `row` on: mostly one. How many start where is the
    /// same for every row in the group.
    int RowsAtOnce() const { return rowsAtOnce; }

    /// The smallest number of samples in a code-block, which the decoder keeps a record of.
    int SmallestBlock() const { return smallestBlock; }

    /// The bytes of all parts of the largest tile.
    qint64 LargestTileBytes() const;

    /// The main header for a codestream of these tile rows alone.
    QByteArray HeaderOfRows(int first, int count) const;

    /// The parts of the tiles in these rows, tile by tile, each tile's in their order.
    QVector<TilePart> PartsOfRows(int first, int count) const;

private:
    void ReadMainHeader(const FileBytes& file, qint64 begin, qint64 end);
    void ReadSize(const QByteArray& segment);
    void ReadSegment(int marker, const QByteArray& segment, bool isInMain);
    void ReadCodingStyle(const QByteArray& segment, int first);
    void ReadRegistration(const QByteArray& segment);
    void ReadTileParts(const FileBytes& file, qint64 end);
    void ReadTilePartHeader(const FileBytes& file, const TilePart& part);

    QVector<Component> components;
    Area image;
    Area firstTile; ///< of the grid of tiles; may begin outside the image
    int tileColumns = 0;
    int tileRows = 0;
    bool hasColourTransform = false;
    bool lacksEnd = false;
    bool hasPackedHeaders = false;
    int rowsAtOnce = 1;
    int smallestBlock = 0;
    QByteArray sizeSegment;
    QByteArray otherSegments; ///< those of the main header that decoding needs
    qint64 firstPart = 0;
    QVector<TilePart> parts; ///< sorted by tile
};

/// The cells of `spacing` that begin in `area`: the area of a component's samples.
Jpeg2000Codestream::Area SamplesIn(const Jpeg2000Codestream::Area& area, int dx, int dy);

} // namespace BatchWorker
