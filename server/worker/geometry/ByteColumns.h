// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace BatchWorker {

struct ReductionPlan;

/// Reduces lines of 8-bit pixels to the new columns `begin` to `end` (exclusive) of a plan, two lines at a time. It
/// calculates with whole numbers: the values are the same on every processor.
class ByteColumns
{
public:
    enum class Unit {
        Plain, ///< on every processor
        Vector ///< two lines side by side, where HasVectorUnit()
    };

    static bool HasVectorUnit();

    ByteColumns(const ReductionPlan& plan, int begin, int end, int bands,
                Unit unit = HasVectorUnit() ? Unit::Vector : Unit::Plain)
        : plan(plan)
        , begin(begin)
        , end(end)
        , bands(bands)
        , unit(unit)
    {
    }

    using Sources = std::array<const std::uint8_t*, 2>;
    using Targets = std::array<std::uint8_t*, 2>;

    /// `sources` are the pixels of the first old column that is needed, plan.firsts[begin], `targets` those of the
    /// column `begin`. Both may name the same line twice.
    void Reduce(const Sources& sources, const Targets& targets);

private:
    void ReducePlainly(const std::uint8_t* source, std::uint8_t* target) const;
    void ReduceSideBySide(const Sources& sources, const Targets& targets);
    template<int count>
    void ReduceBands(const Sources& sources, const Targets& targets);
    template<int count>
    void Load(const Sources& sources, int columns);
    template<int count>
    void Store(int from, int to, const Targets& targets) const;

    const ReductionPlan& plan;
    const int begin;
    const int end;
    const int bands; ///< the distance from one pixel of a line to the next
    const Unit unit;

    /// Of each of the two lines a pixel, up to four bands of it, and its right neighbour, band by band.
    struct alignas(32) Neighbours
    {
        std::array<std::int16_t, 16> values;
    };
    std::vector<Neighbours> neighbours; ///< one for each old column of a part
};

} // namespace BatchWorker
