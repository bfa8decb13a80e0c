// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureFacts.h"

namespace BatchJob {

namespace {

constexpr int bestQuality = 100;
constexpr int longestTime = 1000 * 86'400;    ///< the longest that a worker may take, in ms
constexpr qint64 mostBytes = qint64(1) << 53; ///< as far as JSON counts exactly

bool IsWithin(int value, int least, int most)
{
    return value >= least && value <= most;
}

QSize PossibleSize(const QSize& size)
{
    const bool isPossible =
        IsWithin(size.width(), 1, longestPictureSide) && IsWithin(size.height(), 1, longestPictureSide);
    return isPossible ? size : QSize();
}

} // namespace

PictureFacts PossibleFacts(const PictureFacts& facts)
{
    PictureFacts possible;
    possible.inputSize = PossibleSize(facts.inputSize);
    possible.outputSize = PossibleSize(facts.outputSize);
    if (facts.outputBytes >= 0 && facts.outputBytes <= mostBytes) {
        possible.outputBytes = facts.outputBytes;
    }
    if (IsWithin(facts.quality, 1, bestQuality)) {
        possible.quality = facts.quality;
    }
    if (IsWithin(facts.milliseconds, 0, longestTime)) {
        possible.milliseconds = facts.milliseconds;
    }
    return possible;
}

} // namespace BatchJob
