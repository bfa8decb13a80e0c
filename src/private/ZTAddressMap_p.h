// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QVector>

#include <array>

/// Maps addresses of objects to numbers.
///
/// Objects that are close in memory have their numbers close in memory too, so successive lookups hit the processor's
/// cache. The lookups in a hash table of a million objects would not.
class ZTAddressMap
{
public:
    /// The minimum size of an object in bytes: smaller objects could share an entry.
    static constexpr int minimumObjectSize = 32;
    static constexpr int none = -1;

    bool IsEmpty() const { return pages.isEmpty(); }
    void Clear();

    /// Sets the number of the object at `address`, which must be 0 or more. May overwrite the number of a destroyed
    /// object whose memory overlapped.
    void Insert(const void* address, int number);

    /// The number of the object at `address`, or `none`. It may be the number of a destroyed object whose memory
    /// overlapped, so the caller must check which object has the number. The address is not dereferenced.
    int Value(const void* address) const;

private:
    static constexpr int pageSize = 4096;
    using Page = std::array<int, pageSize / minimumObjectSize>;

    static quintptr PageOf(const void* address) { return reinterpret_cast<quintptr>(address) / pageSize; }
    static std::size_t SlotOf(const void* address)
    {
        return reinterpret_cast<quintptr>(address) % pageSize / minimumObjectSize;
    }

    QVector<Page> pages;
    QHash<quintptr, int> pageNumbers;
    /// Cache of the page used last.
    mutable quintptr lastPage = 0;
    mutable int lastPageNumber = none;
};
