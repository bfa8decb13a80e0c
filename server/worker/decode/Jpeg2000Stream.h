// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Jpeg2000Codestream.h"

#include <vector>

namespace BatchWorker {

/// A codestream of some tile rows, put together from a file: tile by tile whatever the order in the file, and with
/// every length stated. Decoding one after the other needs no more than the data of a few tiles, and no search.
class Jpeg2000Stream
{
public:
    Jpeg2000Stream(const FileBytes& file, const Jpeg2000Codestream& codestream, int firstRow, int rows);

    qint64 Size() const { return size; }
    void Seek(qint64 to) { place = to; }
    qint64 Place() const { return place; }

    /// Copies up to `length` bytes; returns how many there were.
    qint64 Read(void* target, qint64 length);

private:
    /// A piece of the stream, from the file or, where `bytes` has any, from memory.
    struct Piece
    {
        qint64 begin = 0;
        qint64 length = 0;
        qint64 inFile = 0;
        QByteArray bytes;
    };

    void Append(const QByteArray& bytes);
    void Append(qint64 inFile, qint64 length);

    const FileBytes& file;
    std::vector<Piece> pieces;
    qint64 size = 0;
    qint64 place = 0;
};

} // namespace BatchWorker
