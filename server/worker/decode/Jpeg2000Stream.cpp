// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Jpeg2000Stream.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace BatchWorker {

namespace {

constexpr int tilePartHeadSize = 12;

// The marker segment that begins a tile-part.
QByteArray TilePartHead(int tile, qint64 length, int index, int count)
{
    constexpr int segmentLength = 10;
    QByteArray head(tilePartHeadSize, '\0');
    qToBigEndian(quint16(0xFF90), head.data());
    qToBigEndian(quint16(segmentLength), head.data() + 2);
    qToBigEndian(quint16(tile), head.data() + 4);
    qToBigEndian(quint32(length), head.data() + 6);
    head[10] = char(index);
    head[11] = char(count);
    return head;
}

} // namespace

Jpeg2000Stream::Jpeg2000Stream(const FileBytes& file, const Jpeg2000Codestream& codestream, int firstRow, int rows)
    : file(file)
{
    Append(codestream.HeaderOfRows(firstRow, rows));
    const QVector<Jpeg2000Codestream::TilePart> parts = codestream.PartsOfRows(firstRow, rows);
    for (int first = 0; first < parts.size();) {
        int end = first;
        while (end < parts.size() && parts[end].tile == parts[first].tile) {
            ++end;
        }
        for (int i = first; i < end; ++i) {
            Append(TilePartHead(parts[i].tile, parts[i].length, i - first, end - first));
            Append(parts[i].begin + tilePartHeadSize, parts[i].length - tilePartHeadSize);
        }
        first = end;
    }
    Append(QByteArray("\xFF\xD9", 2));
}

qint64 Jpeg2000Stream::Read(void* target, qint64 length)
{
    qint64 done = 0;
    const auto isBehind = [](qint64 wanted, const Piece& piece) { return wanted < piece.begin; };
    auto piece = std::upper_bound(pieces.cbegin(), pieces.cend(), place, isBehind);
    for (--piece; piece != pieces.cend() && done < length; ++piece) {
        const qint64 offset = place - piece->begin;
        const qint64 count = std::min(length - done, piece->length - offset);
        if (count <= 0) {
            continue;
        }
        char* const to = static_cast<char*>(target) + done;
        if (!piece->bytes.isEmpty()) {
            std::memcpy(to, piece->bytes.constData() + offset, std::size_t(count));
        } else if (file.Read(piece->inFile + offset, to, count) < count) {
            break; // it has been cut since
        }
        done += count;
        place += count;
    }
    return done;
}

void Jpeg2000Stream::Append(const QByteArray& bytes)
{
    pieces.push_back({size, bytes.size(), 0, bytes});
    size += bytes.size();
}

void Jpeg2000Stream::Append(qint64 inFile, qint64 length)
{
    pieces.push_back({size, length, inFile, {}});
    size += length;
}

} // namespace BatchWorker
