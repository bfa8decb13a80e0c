// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ByteScanner.h"

#include "server/worker/pixels/FileCalls.h"

namespace BatchWorker {

ByteScanner::ByteScanner(int descriptor, qint64 start)
    : descriptor(descriptor)
    , nextBlock(start)
{
}

int ByteScanner::Next()
{
    return taken < filled || Fill() ? block[std::size_t(taken++)] : -1;
}

int ByteScanner::NextWord()
{
    const int high = Next();
    const int low = Next();
    return low < 0 ? -1 : high * 256 + low;
}

int ByteScanner::NextLittleWord()
{
    const int low = Next();
    const int high = Next();
    return high < 0 ? -1 : high * 256 + low;
}

void ByteScanner::Skip(qint64 count)
{
    const qint64 left = filled - taken;
    if (count <= left) {
        taken += int(count);
        return;
    }
    nextBlock += count - left;
    taken = filled;
}

bool ByteScanner::Fill()
{
    const qint64 count = ReadAt(descriptor, block.data(), qint64(block.size()), nextBlock);
    filled = int(count > 0 ? count : 0);
    taken = 0;
    nextBlock += filled;
    isAtEnd = filled == 0;
    return !isAtEnd;
}

} // namespace BatchWorker
