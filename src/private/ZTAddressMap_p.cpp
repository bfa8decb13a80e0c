// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTAddressMap_p.h"

void ZTAddressMap::Clear()
{
    pages.clear();
    pageNumbers.clear();
    lastPageNumber = none;
}

void ZTAddressMap::Insert(const void* address, int number)
{
    const quintptr page = PageOf(address);
    if (lastPageNumber == none || page != lastPage) {
        const auto known = pageNumbers.constFind(page);
        if (known == pageNumbers.constEnd()) {
            lastPageNumber = pages.size();
            pageNumbers.insert(page, lastPageNumber);
            pages.append(Page());
            pages.last().fill(none);
        } else {
            lastPageNumber = *known;
        }
        lastPage = page;
    }
    pages[lastPageNumber][SlotOf(address)] = number;
}

int ZTAddressMap::Value(const void* address) const
{
    const quintptr page = PageOf(address);
    if (lastPageNumber == none || page != lastPage) {
        const auto known = pageNumbers.constFind(page);
        if (known == pageNumbers.constEnd()) {
            return none;
        }
        lastPage = page;
        lastPageNumber = *known;
    }
    return pages.at(lastPageNumber)[SlotOf(address)];
}
