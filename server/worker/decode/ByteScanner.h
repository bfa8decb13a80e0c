// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <array>
#include <cstdint>

namespace BatchWorker {

/// The bytes of a file, one after the other, past the position that its descriptor has.
class ByteScanner
{
public:
    explicit ByteScanner(int descriptor, qint64 start = 0);

    /// -1 at the end.
    int Next();

    /// Two bytes, the higher one first; -1 at the end.
    int NextWord();

    /// Two bytes, the lower one first; -1 at the end.
    int NextLittleWord();

    void Skip(qint64 count);

    bool IsAtEnd() const { return isAtEnd; }

private:
    bool Fill();

    static constexpr int blockSize = 64 << 10;
    int descriptor;
    qint64 nextBlock; ///< where it begins in the file
    std::array<std::uint8_t, blockSize> block{};
    int filled = 0;
    int taken = 0;
    bool isAtEnd = false;
};

} // namespace BatchWorker
