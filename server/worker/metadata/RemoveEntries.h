// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <iterator>

namespace BatchWorker {

/// Removes the entries of `data`, a container of the metadata library, for which `isUnwanted` holds.
template<typename Data, typename Predicate>
void RemoveIf(Data& data, const Predicate& isUnwanted)
{
    for (auto entry = data.begin(); entry != data.end();) {
        entry = isUnwanted(*entry) ? data.erase(entry) : std::next(entry);
    }
}

} // namespace BatchWorker
