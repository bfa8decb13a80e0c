// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectDifference.h"

#include <algorithm>

namespace BatchDesktop {

EffectDifference::EffectDifference(const QVector<Settings::Effect>& before, const QVector<Settings::Effect>& after)
{
    const int shorter = std::min(before.size(), after.size());
    while (first < shorter && before.at(first) == after.at(first)) {
        ++first;
    }
    int behind = 0;
    while (behind < shorter - first && before.at(before.size() - 1 - behind) == after.at(after.size() - 1 - behind)) {
        ++behind;
    }
    oldCount = before.size() - first - behind;
    newCount = after.size() - first - behind;
    if (oldCount != newCount || oldCount < 2) {
        return;
    }
    const auto oldRows = before.begin() + first;
    const auto newRows = after.begin() + first;
    const int last = oldCount - 1;
    if (*oldRows == *(newRows + last) && std::equal(oldRows + 1, oldRows + oldCount, newRows)) {
        isMove = true;
        from = first;
        to = first + last;
    } else if (*(oldRows + last) == *newRows && std::equal(oldRows, oldRows + last, newRows + 1)) {
        isMove = true;
        from = first + last;
        to = first;
    }
}

} // namespace BatchDesktop
