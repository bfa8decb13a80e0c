// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

/// Hints to the processor that the object at `address` will be read soon. Any address is safe.
inline void Prefetch(const void* address)
{
#if defined(__GNUC__) || defined(__clang__)
    __builtin_prefetch(address);
#else
    Q_UNUSED(address)
#endif
}

/// Calls `visit(row, object)` for each row of `list`, which must not change meanwhile. Objects are prefetched some rows
/// ahead, so that several cache misses overlap.
template<typename T, typename Visit>
void ForEachPrefetched(const QList<T*>& list, Visit visit)
{
    constexpr int ahead = 8;
    const int count = list.size();
    for (int row = 0; row < count; ++row) {
        if (row + ahead < count) {
            Prefetch(list.at(row + ahead));
        }
        visit(row, list.at(row));
    }
}
