// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RawStream.h"

namespace BatchWorker {

void RawStream::BeginCount()
{
    bytesInBlocks = 0;
    bytesAlone = 0;
}

bool RawStream::LacksData() const
{
    constexpr qint64 lastBlock = 64 << 10;
    constexpr qint64 lastWords = 32;
    return bytesInBlocks > lastBlock || bytesAlone > lastWords;
}

int RawStream::read(void* target, size_t size, size_t count)
{
    constexpr qint64 smallestBlock = 4096;
    const int got = LibRaw_bigfile_datastream::read(target, size, count);
    if (got == 0) {
        const qint64 wanted = qint64(size) * qint64(count);
        (wanted >= smallestBlock ? bytesInBlocks : bytesAlone) += wanted;
    }
    return got;
}

int RawStream::get_char()
{
    const int value = LibRaw_bigfile_datastream::get_char();
    bytesAlone += value < 0 ? 1 : 0;
    return value;
}

} // namespace BatchWorker
