// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <cstddef>
#include <mutex>

/// Memory for very many objects of one size.
///
/// Objects that are allocated one after the other are adjacent, whatever else is allocated in between. A walk in the
/// order of allocation is then sequential in memory, which the processor prefetches. Thread-safe.
class ZTSlabPool
{
public:
    /// For objects of `objectSize` bytes, at most 1 KiB, that need no stricter alignment than a pointer.
    explicit ZTSlabPool(std::size_t objectSize);

    /// All slots must have been freed.
    ~ZTSlabPool();

    /// Throws std::bad_alloc if there is no memory.
    void* Allocate();

    /// `slot` came from Allocate(). The memory goes back to where it came from in slabs, when none of their slots is
    /// taken; one such slab is kept.
    void Free(void* slot) noexcept;

    /// How many slabs there are.
    int SlabCount() const;

private:
    Q_DISABLE_COPY(ZTSlabPool)

    struct FreeSlot
    {
        FreeSlot* next;
    };

    /// At the front of the slab's memory. The slots follow.
    struct Slab
    {
        Slab* previous = nullptr; ///< in the list of those that have free slots
        Slab* next = nullptr;
        FreeSlot* freeSlots = nullptr; ///< that were given back
        std::size_t freshSlots = 0;    ///< offset of those that were never taken
        int usedCount = 0;
    };

    bool HasFreeSlot(const Slab& slab) const;
    Slab* NewSlab() const;
    void AddOpen(Slab* slab);
    void RemoveOpen(Slab* slab);
    void* AllocateFrom(Slab& slab) const;

    const std::size_t slotSize;
    mutable std::mutex mutex;
    Slab* open = nullptr;  ///< those that have both free and taken slots; the first gives the next slot
    Slab* spare = nullptr; ///< without taken slots
    int slabCount = 0;
};
