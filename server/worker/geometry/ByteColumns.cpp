// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ByteColumns.h"

#include "ColumnPlan.h"

#include <algorithm>

namespace BatchWorker {

ByteColumns::ByteColumns(const ColumnPlan& plan, int begin, int end, int bands, Unit unit)
    : plan(plan)
    , begin(begin)
    , end(end)
    , bands(bands)
    , unit(unit)
{
    if (unit == Unit::Vector) {
        const int old = plan.firsts[std::size_t(end - 1)] + plan.taps - plan.firsts[std::size_t(begin)];
        neighbours.resize(std::size_t(old));
    }
}

void ByteColumns::ReducePlainly(const std::uint8_t* source, std::uint8_t* target) const
{
    const int first = plan.firsts[std::size_t(begin)];
    for (int column = begin; column < end; ++column) {
        const std::int16_t* const weights = &plan.wholeWeights[std::size_t(column) * std::size_t(plan.wholeTaps)];
        const std::uint8_t* const old = source + std::ptrdiff_t(plan.firsts[std::size_t(column)] - first) * bands;
        for (int band = 0; band < bands; ++band) {
            int sum = ColumnPlan::wholeHalf;
            for (int tap = 0; tap < plan.taps; ++tap) {
                sum += weights[tap] * old[tap * bands + band];
            }
            *target++ = std::uint8_t(std::clamp(sum >> ColumnPlan::wholeBits, 0, 255));
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
