#pragma once

#include <QHash>
#include <QVector>

#include <array>

/// Numbers, kept by the addresses of objects.
///
/// Objects that stand near each other in memory have their numbers near each other, too: who looks them up one after
/// the other finds the numbers in the processor's cache, where a hash table of a million objects would not be.
class ZTAddressMap
{
public:
    /// The least size of an object: of two that are smaller one might hide the other.
    static constexpr int leastSize = 32;
    static constexpr int none = -1;

    bool IsEmpty() const { return pages.isEmpty(); }
    void Clear();

    /// Sets the number of the object at `address`, 0 or more. An object that overlapped this one and is gone may lose
    /// its number.
    void Insert(const void* address, int number);

    /// The number that an object at `address` was given, `none` without one; or that of an object that is gone and
    /// overlapped this address: the caller knows whom it gave the number to. The address is not looked into.
    int Value(const void* address) const;

private:
    static constexpr int pageSize = 4096;
    using Page = std::array<int, pageSize / leastSize>;

    static quintptr PageOf(const void* address) { return reinterpret_cast<quintptr>(address) / pageSize; }
    static std::size_t SlotOf(const void* address)
    {
        return reinterpret_cast<quintptr>(address) % pageSize / leastSize;
    }

    QVector<Page> pages;
    QHash<quintptr, int> pageNumbers;
    /// The page used last, which is most often the next.
    mutable quintptr lastPage = 0;
    mutable int lastPageNumber = none;
};
