// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

namespace BatchWorker {

/// Which old columns of a picture make a new one, by the Lanczos filter of three lobes, scaled by the reduction: `taps`
/// of them, from firsts[column] on. Their weights add up to one.
struct ColumnPlan
{
    ColumnPlan(int oldWidth, int newWidth);

    int taps;
    std::vector<int> firsts;
    std::vector<float> weights; ///< `taps` for each new column

    /// The same as whole numbers, which add up to 1 << wholeBits. There are `wholeTaps` for each new column, an even
    /// number; where `taps` is odd the last one is 0.
    static constexpr int wholeBits = 14;
    static constexpr int wholeHalf = 1 << (wholeBits - 1);
    int wholeTaps;
    std::vector<std::int16_t> wholeWeights;

private:
    void AppendWeights(const std::vector<double>& exact);
};

} // namespace BatchWorker
