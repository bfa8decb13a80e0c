// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PngChunks.h"

#include <QtEndian>

namespace BatchWorker {

std::optional<PngChunk> NextPngChunk(QFile& file)
{
    constexpr int sizeSize = 4;
    const QByteArray header = file.read(PngChunk::headerSize);
    if (header.size() < PngChunk::headerSize) {
        return std::nullopt;
    }
    PngChunk chunk{header, header.mid(sizeSize), qFromBigEndian<quint32>(header.constData())};
    return chunk.RestSize() <= file.size() - file.pos() ? std::optional(chunk) : std::nullopt;
}

} // namespace BatchWorker
