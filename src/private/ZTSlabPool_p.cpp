// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTSlabPool_p.h"

#include <algorithm>
#include <new>

namespace {

/// A slab is aligned to its size, so that its address follows from the address of a slot.
constexpr std::size_t slabSize = std::size_t{64} * 1024;
constexpr std::align_val_t slabAlignment{slabSize};

constexpr std::size_t RoundedUp(std::size_t size, std::size_t unit)
{
    return (size + unit - 1) / unit * unit;
}

} // namespace

ZTSlabPool::ZTSlabPool(std::size_t objectSize)
    : slotSize(RoundedUp(std::max(objectSize, sizeof(FreeSlot)), alignof(FreeSlot)))
{
}

ZTSlabPool::~ZTSlabPool()
{
    if (spare != nullptr) {
        ::operator delete(spare, slabAlignment);
    }
}

void* ZTSlabPool::Allocate()
{
    const std::lock_guard<std::mutex> lock(mutex);
    if (open == nullptr) {
        if (spare == nullptr) {
            spare = NewSlab();
            ++slabCount;
        }
        AddOpen(spare);
        spare = nullptr;
    }
    Slab* const slab = open;
    void* const slot = AllocateFrom(*slab);
    if (!HasFreeSlot(*slab)) {
        RemoveOpen(slab);
    }
    return slot;
}

void ZTSlabPool::Free(void* slot) noexcept
{
    auto* const slab = reinterpret_cast<Slab*>(reinterpret_cast<quintptr>(slot) / slabSize * slabSize);
    const std::lock_guard<std::mutex> lock(mutex);
    if (!HasFreeSlot(*slab)) {
        AddOpen(slab);
    }
    slab->freeSlots = new (slot) FreeSlot{slab->freeSlots};
    if (--slab->usedCount > 0) {
        return;
    }
    RemoveOpen(slab);
    if (spare == nullptr) {
        // Reinitialised, so that its slots are allocated in the order of their addresses again.
        spare = new (slab) Slab;
        spare->freshSlots = sizeof(Slab);
    } else {
        ::operator delete(slab, slabAlignment);
        --slabCount;
    }
}

int ZTSlabPool::SlabCount() const
{
    const std::lock_guard<std::mutex> lock(mutex);
    return slabCount;
}

bool ZTSlabPool::HasFreeSlot(const Slab& slab) const
{
    return slab.freeSlots != nullptr || slab.freshSlots + slotSize <= slabSize;
}

ZTSlabPool::Slab* ZTSlabPool::NewSlab() const
{
    auto* const slab = new (::operator new(slabSize, slabAlignment)) Slab;
    slab->freshSlots = sizeof(Slab);
    return slab;
}

/// Inserts after the first slab, which continues to provide adjacent slots.
void ZTSlabPool::AddOpen(Slab* slab)
{
    slab->previous = open;
    slab->next = open == nullptr ? nullptr : open->next;
    if (slab->next != nullptr) {
        slab->next->previous = slab;
    }
    (open == nullptr ? open : open->next) = slab;
}

void ZTSlabPool::RemoveOpen(Slab* slab)
{
    (slab->previous == nullptr ? open : slab->previous->next) = slab->next;
    if (slab->next != nullptr) {
        slab->next->previous = slab->previous;
    }
}

void* ZTSlabPool::AllocateFrom(Slab& slab) const
{
    ++slab.usedCount;
    if (slab.freeSlots != nullptr) {
        FreeSlot* const slot = slab.freeSlots;
        slab.freeSlots = slot->next;
        return slot;
    }
    char* const slot = reinterpret_cast<char*>(&slab) + slab.freshSlots;
    slab.freshSlots += slotSize;
    return slot;
}
