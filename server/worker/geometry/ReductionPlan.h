// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

namespace BatchWorker {

/// Which old lines of a picture, its rows or its columns, make a new one, by the Lanczos filter of three lobes, scaled
/// by the reduction: `taps` of them, from firsts[line] on. Their weights add up to one.
struct ReductionPlan
{
    enum class Arithmetic {
        Exact,
        /// That of the imaging library: the middle of a new line lies at a multiple of 1/64 of an old one, and its
        /// whole weights have 12 bits, the rest of which is cut off.
        OfLibrary
    };

    ReductionPlan(int oldCount, int newCount, Arithmetic arithmetic);

    int oldCount;
    Arithmetic arithmetic;
    int taps;
    std::vector<int> firsts;
    std::vector<float> weights; ///< `taps` for each new line

    /// The same as whole numbers; exact ones add up to 1 << wholeBits. There are `wholeTaps` for each new line, an even
    /// number; where `taps` is odd the last one is 0.
    static constexpr int wholeBits = 14;
    static constexpr int wholeHalf = 1 << (wholeBits - 1);
    int wholeTaps;
    std::vector<std::int16_t> wholeWeights;

    const float* Weights(int line) const { return &weights[std::size_t(line) * std::size_t(taps)]; }
    const std::int16_t* WholeWeights(int line) const
    {
        return &wholeWeights[std::size_t(line) * std::size_t(wholeTaps)];
    }

    /// The old line behind the last one that makes `line`.
    int End(int line) const { return firsts[std::size_t(line)] + taps; }

private:
    std::size_t IndexOf(int old) const;
    std::int16_t* LatestWhole() { return wholeWeights.data() + wholeWeights.size() - wholeTaps; }
    void SetWhole(const std::vector<double>& held);
    void SetWholeOfLibrary(const std::vector<double>& all, int start);
};

} // namespace BatchWorker
