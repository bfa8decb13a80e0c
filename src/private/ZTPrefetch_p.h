#pragma once

#include <QList>

/// Tells the processor that the object at `address` is going to be read. Never fails, whatever the address.
inline void Prefetch(const void* address)
{
#if defined(__GNUC__) || defined(__clang__)
    __builtin_prefetch(address);
#else
    Q_UNUSED(address)
#endif
}

/// Calls `visit(row, object)` for each row of `list`, which must not change meanwhile. The objects, which stand
/// anywhere in memory, are asked for some rows ahead, so that the memory works on several of them at once.
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
