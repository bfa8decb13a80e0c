// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

namespace BatchWorker {

struct ReductionPlan;

/// Makes new rows of 8-bit values by a plan. It calculates with whole numbers: the values are the same on every
/// processor.
class ByteRows
{
public:
    enum class Unit {
        Plain, ///< on every processor
        Vector ///< 32 values side by side, where HasVectorUnit()
    };

    static bool HasVectorUnit();

    /// `count` values in each row.
    ByteRows(const ReductionPlan& plan, int count, Unit unit = HasVectorUnit() ? Unit::Vector : Unit::Plain)
        : plan(plan)
        , count(count)
        , unit(unit)
    {
    }

    /// `source` is the first old row of those that make the new one `row`; the next ones follow `stride` bytes apart.
    void Reduce(int row, const std::uint8_t* source, std::ptrdiff_t stride, std::uint8_t* target) const;

private:
    void ReducePlainly(int row, int from, const std::uint8_t* source, std::ptrdiff_t stride,
                       std::uint8_t* target) const;
    /// Reduces as many values as fill whole registers. Returns their number.
    int ReduceSideBySide(int row, const std::uint8_t* source, std::ptrdiff_t stride, std::uint8_t* target) const;

    const ReductionPlan& plan;
    const int count;
    const Unit unit;
};

} // namespace BatchWorker
