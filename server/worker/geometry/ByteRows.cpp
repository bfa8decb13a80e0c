// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ByteRows.h"

#include "ReductionPlan.h"

#include <algorithm>
#include <array>

namespace BatchWorker {

void ByteRows::Reduce(int row, const std::uint8_t* source, std::ptrdiff_t stride, std::uint8_t* target) const
{
    const int done = unit == Unit::Vector ? ReduceSideBySide(row, source, stride, target) : 0;
    ReducePlainly(row, done, source, stride, target);
}

void ByteRows::ReducePlainly(int row, int from, const std::uint8_t* source, std::ptrdiff_t stride,
                             std::uint8_t* target) const
{
    constexpr int atOnce = 256;
    const std::int16_t* const weights = plan.WholeWeights(row);
    std::array<int, atOnce> sums;
    for (int begin = from; begin < count; begin += atOnce) {
        const int size = std::min(atOnce, count - begin);
        sums.fill(ReductionPlan::wholeHalf);
        for (int tap = 0; tap < plan.taps; ++tap) {
            const int weight = weights[tap];
            const std::uint8_t* const old = source + tap * stride + begin;
            for (int i = 0; i < size; ++i) {
                sums[std::size_t(i)] += weight * old[i];
            }
        }
        for (int i = 0; i < size; ++i) {
            const int value = sums[std::size_t(i)] >> ReductionPlan::wholeBits;
            target[begin + i] = std::uint8_t(std::clamp(value, 0, 255));
        }
    }
}

} // namespace BatchWorker
