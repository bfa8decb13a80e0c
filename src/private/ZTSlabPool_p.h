#pragma once

#include <QtGlobal>

#include <cstddef>
#include <mutex>

/// Memory for a great many objects of one size.
///
/// Objects that are made one after the other stand side by side, whatever else is allocated in between: a walk in the
/// order in which they were made goes straight through the memory, which the processor foresees. Slots may be taken and
/// given back on any thread.
class ZTSlabPool
{
public:
    /// For objects of `objectSize` bytes, at most 1 KiB, that need no stricter alignment than a pointer.
    explicit ZTSlabPool(std::size_t objectSize);

    /// All slots have been given back.
    ~ZTSlabPool();

    /// Throws std::bad_alloc when there is no memory.
    void* Take();

    /// `slot` came from Take(). The memory goes back to where it came from in slabs, when none of their slots is taken;
    /// one such slab is kept.
    void GiveBack(void* slot) noexcept;

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
        int takenCount = 0;
    };

    bool HasFreeSlot(const Slab& slab) const;
    Slab* NewSlab() const;
    void AddOpen(Slab* slab);
    void RemoveOpen(Slab* slab);
    void* TakeFrom(Slab& slab) const;

    const std::size_t slotSize;
    mutable std::mutex mutex;
    Slab* open = nullptr;  ///< those that have both free and taken slots; the first gives the next slot
    Slab* spare = nullptr; ///< without taken slots
    int slabCount = 0;
};
