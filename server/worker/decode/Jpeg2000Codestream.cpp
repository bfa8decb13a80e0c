// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Jpeg2000Codestream.h"

#include "job/values/Phrase.h"

#include "server/worker/pixels/PictureFailure.h"

#include <QtEndian>

#include <algorithm>
#include <limits>

namespace BatchWorker {

namespace {

enum Marker {
    StartOfCodestream = 0xFF4F,
    Capabilities = 0xFF50,
    ImageSize = 0xFF51,
    CodingStyle = 0xFF52,
    CodingStyleOfComponent = 0xFF53,
    TilePartLengths = 0xFF55,
    Profile = 0xFF56,
    PacketLengths = 0xFF57,
    PacketLengthsOfTile = 0xFF58,
    CorrespondingProfile = 0xFF59,
    Quantization = 0xFF5C,
    QuantizationOfComponent = 0xFF5D,
    RegionOfInterest = 0xFF5E,
    ProgressionChange = 0xFF5F,
    PackedHeaders = 0xFF60,
    PackedHeadersOfTile = 0xFF61,
    Registration = 0xFF63,
    Comment = 0xFF64,
    StartOfTilePart = 0xFF90,
    StartOfData = 0xFF93,
    EndOfCodestream = 0xFFD9
};

constexpr int markerSize = 2;
constexpr int tilePartHeadSize = 12;

PictureFailure DamagedHeader()
{
    return DamagedFile(BatchJob::Phrase::English("the header of the picture data is damaged"));
}

PictureFailure Unsupported(const QString& what)
{
    return DamagedFile(BatchJob::Phrase::English("it uses %1, which is not supported").arg(what));
}

qint64 CeilDivided(qint64 value, qint64 by)
{
    return (value + by - 1) / by;
}

int Number(const QByteArray& bytes, int place, int size)
{
    if (place + size > bytes.size()) {
        throw DamagedHeader();
    }
    int number = 0;
    for (int i = 0; i < size; ++i) {
        number = (number << 8) | quint8(bytes[place + i]);
    }
    return number;
}

qint64 LargeNumber(const QByteArray& bytes, int place)
{
    if (place + 4 > bytes.size()) {
        throw DamagedHeader();
    }
    return qFromBigEndian<quint32>(bytes.constData() + place);
}

void PutLargeNumber(QByteArray& bytes, int place, qint64 number)
{
    qToBigEndian(quint32(number), bytes.data() + place);
}

// Of a segment in the main header or in that of a tile-part.
bool IsNeededByDecoder(int marker)
{
    switch (marker) {
    case Capabilities:
    case CodingStyle:
    case CodingStyleOfComponent:
    case Quantization:
    case QuantizationOfComponent:
    case RegionOfInterest:
    case ProgressionChange:
    case PackedHeaders:
    case PackedHeadersOfTile:
        return true;
    default:
        return false;
    }
}

bool MayBeIgnored(int marker)
{
    switch (marker) {
    case TilePartLengths:
    case Profile:
    case PacketLengths:
    case PacketLengthsOfTile:
    case CorrespondingProfile:
    case Registration:
    case Comment:
        return true;
    default:
        return false;
    }
}

/// How much of a tile is there.
struct TileCompleteness
{
    int parts = 0;
    int stated = 0; ///< parts, 0 while the file does not say
    double missing = 0;
};

double PartOf(const TileCompleteness& tile)
{
    const int all = std::max(tile.stated, tile.parts);
    return all == 0 ? 0.0 : (tile.parts - tile.missing) / all;
}

PictureFailure EndsEarly(double part)
{
    const int percent = std::clamp(int(part * 100), 0, 99);
    return DamagedFile(BatchJob::Phrase::English("the file ends after %1 % of the picture").arg(percent));
}

} // namespace

Jpeg2000Codestream::Area SamplesIn(const Jpeg2000Codestream::Area& area, int dx, int dy)
{
    return {CeilDivided(area.left, dx), CeilDivided(area.top, dy), CeilDivided(area.right, dx),
            CeilDivided(area.bottom, dy)};
}

Jpeg2000Codestream::Jpeg2000Codestream(const FileBytes& file, qint64 begin, qint64 end)
{
    ReadMainHeader(file, begin, std::min(end, file.Size()));
    ReadTileParts(file, end);
    // Packed headers are in the order of all tile-parts.
    rowsAtOnce = hasPackedHeaders ? tileRows : 1;
}

Jpeg2000Codestream::Area Jpeg2000Codestream::Tile(int column, int row) const
{
    const qint64 left = firstTile.left + column * firstTile.Width();
    const qint64 top = firstTile.top + row * firstTile.Height();
    return {std::max(left, image.left), std::max(top, image.top), std::min(left + firstTile.Width(), image.right),
            std::min(top + firstTile.Height(), image.bottom)};
}

qint64 Jpeg2000Codestream::LargestTileBytes() const
{
    qint64 largest = 0;
    qint64 current = 0;
    for (int i = 0; i < parts.size(); ++i) {
        const bool isSameTile = i > 0 && parts[i].tile == parts[i - 1].tile;
        current = parts[i].length + (isSameTile ? current : 0);
        largest = std::max(largest, current);
    }
    return largest;
}

QByteArray Jpeg2000Codestream::HeaderOfRows(int first, int count) const
{
    constexpr int bottomPlace = 10;
    constexpr int topPlace = 18;
    constexpr int tileTopPlace = 34;
    QByteArray size = sizeSegment;
    const qint64 tileTop = firstTile.top + first * firstTile.Height();
    PutLargeNumber(size, bottomPlace, Tile(0, first + count - 1).bottom);
    PutLargeNumber(size, topPlace, Tile(0, first).top);
    PutLargeNumber(size, tileTopPlace, tileTop);
    return QByteArray("\xFF\x4F", markerSize) + size + otherSegments;
}

QVector<Jpeg2000Codestream::TilePart> Jpeg2000Codestream::PartsOfRows(int first, int count) const
{
    const auto isBefore = [](const TilePart& part, int tile) { return part.tile < tile; };
    const auto begin = std::lower_bound(parts.cbegin(), parts.cend(), first * tileColumns, isBefore);
    const auto end = std::lower_bound(begin, parts.cend(), (first + count) * tileColumns, isBefore);
    QVector<TilePart> found;
    std::copy(begin, end, std::back_inserter(found));
    for (TilePart& part : found) {
        part.tile -= first * tileColumns;
    }
    return found;
}

void Jpeg2000Codestream::ReadMainHeader(const FileBytes& file, qint64 begin, qint64 end)
{
    qint64 place = begin + markerSize;
    if (file.At(begin, markerSize) != QByteArray("\xFF\x4F", markerSize)) {
        throw DamagedHeader();
    }
    for (;;) {
        const QByteArray head = file.At(place, 2 * markerSize);
        if (head.size() < 2 * markerSize || place + head.size() > end) {
            throw EndsEarly(0);
        }
        const int marker = Number(head, 0, markerSize);
        if (marker == StartOfTilePart) {
            break;
        }
        const int length = Number(head, markerSize, markerSize);
        const QByteArray segment = file.At(place, markerSize + length);
        if (length < markerSize || marker < 0xFF00 || (sizeSegment.isEmpty() && marker != ImageSize)) {
            throw DamagedHeader();
        }
        if (segment.size() < markerSize + length) {
            throw EndsEarly(0);
        }
        ReadSegment(marker, segment, true);
        place += segment.size();
    }
    if (smallestBlock == 0) {
        throw DamagedHeader(); // no coding style
    }
    firstPart = place;
}

void Jpeg2000Codestream::ReadSegment(int marker, const QByteArray& segment, bool isInMain)
{
    if (marker == ImageSize && isInMain && sizeSegment.isEmpty()) {
        ReadSize(segment);
        return;
    }
    if (marker == CodingStyle) {
        constexpr int transformPlace = 8;
        constexpr int stylePlace = 9;
        hasColourTransform = hasColourTransform || Number(segment, transformPlace, 1) != 0;
        ReadCodingStyle(segment, stylePlace);
    } else if (marker == CodingStyleOfComponent) {
        constexpr int manyComponents = 257;
        ReadCodingStyle(segment, components.size() < manyComponents ? 6 : 7);
    } else if (marker == Registration && isInMain) {
        ReadRegistration(segment);
    }
    hasPackedHeaders = hasPackedHeaders || marker == PackedHeaders;
    if (IsNeededByDecoder(marker)) {
        otherSegments += isInMain ? segment : QByteArray();
    } else if (!MayBeIgnored(marker)) {
        throw Unsupported(BatchJob::Phrase::English("an extension of JPEG 2000 (marker %1)").arg(marker, 4, 16));
    }
}

// The number of levels, and the size and the style of code-blocks, from `first` on.
void Jpeg2000Codestream::ReadCodingStyle(const QByteArray& segment, int first)
{
    constexpr int mostLevels = 32;
    constexpr int isHighThroughput = 0x40;
    constexpr int isMixed = 0x80;
    const int levels = Number(segment, first, 1);
    const int width = Number(segment, first + 1, 1) + 2;
    const int height = Number(segment, first + 2, 1) + 2;
    const int style = Number(segment, first + 3, 1);
    constexpr int largestSide = 10;
    constexpr int largestBlock = 12;
    if (levels > mostLevels || width > largestSide || height > largestSide || width + height > largestBlock) {
        throw DamagedHeader();
    }
    if ((style & isMixed) != 0) {
        throw Unsupported((style & isHighThroughput) != 0
                              ? BatchJob::Phrase::English("two kinds of coding in one picture")
                              : BatchJob::Phrase::English("an unknown kind of coding"));
    }
    const int block = 1 << (width + height);
    smallestBlock = smallestBlock == 0 ? block : std::min(smallestBlock, block);
}

void Jpeg2000Codestream::ReadRegistration(const QByteArray& segment)
{
    constexpr double unitsOfCell = 65536;
    constexpr int entrySize = 4;
    int place = 2 * markerSize;
    for (Component& component : components) {
        component.shiftX = Number(segment, place, 2) / unitsOfCell;
        component.shiftY = Number(segment, place + 2, 2) / unitsOfCell;
        place += entrySize;
    }
}

void Jpeg2000Codestream::ReadSize(const QByteArray& segment)
{
    constexpr int fixedSize = 40;
    constexpr int componentSize = 3;
    constexpr int mostComponents = 32;
    constexpr int mostTiles = 65535;
    constexpr int mostBits = 31; // that the decoder knows
    constexpr int isSigned = 0x80;
    const auto number = [&segment](int index) {
        constexpr int first = 6;
        return LargeNumber(segment, first + 4 * index);
    };
    image = {number(2), number(3), number(0), number(1)};
    firstTile = {number(6), number(7), number(6) + number(4), number(7) + number(5)};
    const bool isImage = image.left < image.right && image.top < image.bottom &&
                         std::max(image.right, image.bottom) <= std::numeric_limits<int>::max();
    const bool isTiled = firstTile.left <= image.left && firstTile.top <= image.top && image.left < firstTile.right &&
                         image.top < firstTile.bottom;
    if (!isImage || !isTiled) {
        throw DamagedHeader();
    }
    const qint64 columns = CeilDivided(image.right - firstTile.left, firstTile.Width());
    const qint64 rows = CeilDivided(image.bottom - firstTile.top, firstTile.Height());
    if (columns > mostTiles || rows > mostTiles || columns * rows > mostTiles) {
        throw DamagedHeader();
    }
    tileColumns = int(columns);
    tileRows = int(rows);
    const int count = Number(segment, fixedSize - 2, 2);
    if (count < 1 || segment.size() != fixedSize + count * componentSize) {
        throw DamagedHeader();
    }
    if (count > mostComponents) {
        throw Unsupported(BatchJob::Phrase::English("%1 channels").arg(count));
    }
    for (int i = 0; i < count; ++i) {
        const int place = fixedSize + i * componentSize;
        const int depth = Number(segment, place, 1);
        Component component;
        component.bits = (depth & ~isSigned) + 1;
        component.isSigned = (depth & isSigned) != 0;
        component.dx = Number(segment, place + 1, 1);
        component.dy = Number(segment, place + 2, 1);
        if (component.dx < 1 || component.dy < 1) {
            throw DamagedHeader();
        }
        if (component.bits > mostBits) {
            throw Unsupported(BatchJob::Phrase::English("%1 bits a channel").arg(component.bits));
        }
        const Area samples = SamplesIn(image, component.dx, component.dy);
        if (samples.Width() < 1 || samples.Height() < 1) {
            throw DamagedHeader();
        }
        components.append(component);
    }
    sizeSegment = segment;
}

void Jpeg2000Codestream::ReadTileParts(const FileBytes& file, qint64 end)
{
    constexpr int lengthPlace = 6;
    constexpr int partsPlace = 11;
    const int tiles = tileColumns * tileRows;
    const qint64 available = std::min(end, file.Size());
    QVector<TileCompleteness> found(tiles);
    bool isEndMarked = false;
    for (qint64 place = firstPart; !isEndMarked;) {
        const QByteArray head = file.At(place, tilePartHeadSize);
        const int marker = head.size() < markerSize ? 0 : Number(head, 0, markerSize);
        isEndMarked = marker == EndOfCodestream;
        if (marker != StartOfTilePart || place + tilePartHeadSize > available) {
            break;
        }
        TilePart part;
        part.tile = Number(head, 4, 2);
        part.begin = place;
        part.length = LargeNumber(head, lengthPlace);
        if (part.length == 0) { // up to the end
            isEndMarked = available - place > tilePartHeadSize &&
                          file.At(available - markerSize, markerSize) == QByteArray("\xFF\xD9", markerSize);
            part.length = available - place - (isEndMarked ? markerSize : 0);
            if (!isEndMarked) {
                throw DamagedFile(BatchJob::Phrase::English("the file ends before the picture does"));
            }
        }
        if (part.tile >= tiles || part.length < tilePartHeadSize + markerSize || found[part.tile].parts > 255) {
            throw DamagedFile(BatchJob::Phrase::English("the picture data are damaged"));
        }
        TileCompleteness& tile = found[part.tile];
        ++tile.parts;
        tile.stated = std::max(tile.stated, Number(head, partsPlace, 1));
        place += part.length;
        if (place > available) {
            tile.missing = double(place - available) / double(part.length);
            break;
        }
        ReadTilePartHeader(file, part);
        parts.append(part);
    }
    double present = 0;
    bool isComplete = true;
    for (const TileCompleteness& tile : found) {
        const bool isWhole = tile.parts > 0 && tile.parts >= tile.stated && tile.missing == 0;
        isComplete = isComplete && isWhole && (tile.stated > 0 || isEndMarked);
        present += PartOf(tile);
    }
    if (!isComplete && isEndMarked) {
        throw DamagedFile(
            BatchJob::Phrase::English("%1 % of the picture are missing").arg(100 - int(present / tiles * 100)));
    }
    if (!isComplete && end > file.Size() && end > firstPart) {
        throw EndsEarly(double(file.Size() - firstPart) / double(end - firstPart));
    }
    if (!isComplete) {
        throw EndsEarly(present / tiles);
    }
    lacksEnd = !isEndMarked;
    const auto isBefore = [](const TilePart& one, const TilePart& other) { return one.tile < other.tile; };
    if (hasPackedHeaders && !std::is_sorted(parts.begin(), parts.end(), isBefore)) {
        throw Unsupported(BatchJob::Phrase::English("packed headers of tiles that are not in order"));
    }
    std::stable_sort(parts.begin(), parts.end(), isBefore);
}

void Jpeg2000Codestream::ReadTilePartHeader(const FileBytes& file, const TilePart& part)
{
    const qint64 end = part.begin + part.length;
    for (qint64 place = part.begin + tilePartHeadSize;;) {
        const QByteArray head = file.At(place, 2 * markerSize);
        const int marker = head.size() < markerSize ? 0 : Number(head, 0, markerSize);
        if (marker == StartOfData && place + markerSize <= end) {
            return;
        }
        const int length = head.size() < 2 * markerSize ? 0 : Number(head, markerSize, markerSize);
        if (length < markerSize || marker < 0xFF00 || place + markerSize + length > end) {
            throw DamagedFile(BatchJob::Phrase::English("the picture data are damaged"));
        }
        constexpr int longestRead = 64;
        ReadSegment(marker, file.At(place, std::min(markerSize + length, longestRead)), false);
        place += markerSize + length;
    }
}

} // namespace BatchWorker
