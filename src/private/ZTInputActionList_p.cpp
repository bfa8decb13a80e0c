// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTInputActionList_p.h"

#include <algorithm>

bool ZTInputActionList::Contains(const QObject* action) const
{
    return std::any_of(entries.begin(), entries.end(), [action](const Entry& entry) { return entry.action == action; });
}

const QList<QObject*> ZTInputActionList::Actions() const
{
    QList<QObject*> actions;
    actions.reserve(entries.size());
    for (const Entry& entry : entries) {
        actions.append(entry.action);
    }
    return actions;
}

void ZTInputActionList::Insert(int order, QObject* action)
{
    const auto place = std::upper_bound(entries.begin(), entries.end(), order,
                                        [](int value, const Entry& entry) { return value < entry.order; });
    entries.insert(place, Entry{order, action});
}

bool ZTInputActionList::Remove(const QObject* action)
{
    const auto found =
        std::find_if(entries.begin(), entries.end(), [action](const Entry& entry) { return entry.action == action; });
    if (found == entries.end()) {
        return false;
    }
    entries.erase(found);
    return true;
}
