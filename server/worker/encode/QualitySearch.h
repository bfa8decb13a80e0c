// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

namespace BatchWorker {

/// The search for the best quality at which a file is small enough, by trying: first the best, then halves of what is
/// left. 1 to 100 takes eight attempts at most. Where a better quality does not always give a larger file, the outcome
/// is a quality that was tried and is small enough, if not always the best of them.
class QualitySearch
{
public:
    /// Both are tried if need be.
    QualitySearch(int least, int best)
        : lowest(least)
        , highest(best)
        , next(best)
    {
    }

    /// The quality to try; nothing when the search is over.
    std::optional<int> Next() const { return lowest <= highest ? std::optional(next) : std::nullopt; }

    /// What has come of the quality Next().
    void Note(bool isSmallEnough)
    {
        (isSmallEnough ? lowest : highest) = isSmallEnough ? next + 1 : next - 1;
        next = lowest + (highest - lowest + 1) / 2;
    }

private:
    int lowest; ///< of those that may still be found
    int highest;
    int next;
};

} // namespace BatchWorker
