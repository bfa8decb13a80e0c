// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RowWindow.h"

#include <algorithm>
#include <memory>

namespace BatchWorker {

namespace {

constexpr std::size_t alignment = 64;

std::size_t RoundedUp(std::size_t size)
{
    return (size + alignment - 1) / alignment * alignment;
}

} // namespace

// Row y lies at y modulo the capacity, so rows that stay need not move.
RowWindow::Range RowWindow::Hold(Range rows, const Layout& newLayout)
{
    if (!(newLayout == layout)) {
        layout = newLayout;
        stride = RoundedUp(layout.bytes + bytesBehind);
        std::size_t size = stride * std::size_t(capacity) + alignment;
        memory.assign(size, 0);
        void* begin = memory.data();
        aligned = static_cast<unsigned char*>(std::align(alignment, size - alignment, begin, size));
        Forget();
    }
    if (rows.first < held.first || rows.first > held.end) {
        held = rows;
        return rows;
    }
    const Range missing{std::min(held.end, rows.end), rows.end};
    held.end = std::max(held.end, rows.end);
    held.first = std::max(held.first, held.end - capacity);
    return missing;
}

void* RowWindow::At(int y)
{
    return aligned + std::size_t(y % capacity) * stride;
}

} // namespace BatchWorker
