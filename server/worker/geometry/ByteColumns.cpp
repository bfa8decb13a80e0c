// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ByteColumns.h"

#include "ReductionPlan.h"

#include <algorithm>

namespace BatchWorker {

void ByteColumns::ReducePlainly(const std::uint8_t* source, std::uint8_t* target) const
{
    const int first = plan.firsts[std::size_t(begin)];
    for (int column = begin; column < end; ++column) {
        const std::int16_t* const weights = plan.WholeWeights(column);
        const std::uint8_t* const old = source + std::ptrdiff_t(plan.firsts[std::size_t(column)] - first) * bands;
        for (int band = 0; band < bands; ++band) {
            int sum = ReductionPlan::wholeHalf;
            for (int tap = 0; tap < plan.taps; ++tap) {
                sum += weights[tap] * old[tap * bands + band];
            }
            *target++ = std::uint8_t(std::clamp(sum >> ReductionPlan::wholeBits, 0, 255));
        }
    }
}

void ByteColumns::Reduce(const Sources& sources, const Targets& targets)
{
    if (unit == Unit::Vector) {
        ReduceSideBySide(sources, targets);
    } else {
        ReducePlainly(sources[0], targets[0]);
        ReducePlainly(sources[1], targets[1]);
    }
}

} // namespace BatchWorker
