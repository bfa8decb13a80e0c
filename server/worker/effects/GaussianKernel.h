// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

namespace BatchWorker {

/// One half of a Gaussian, from its middle to where it ends at three sigma; both halves together sum up to 1.
class GaussianKernel
{
public:
    explicit GaussianKernel(double sigma);

    int Radius() const { return static_cast<int>(weights.size()) - 1; }

    /// `count` weighted sums of the values at the same place of 2 * Radius() + 1 rows. Reads and writes whole groups of
    /// `valuesAtOnce`.
    void SumUp(const float* const* rows, float* sums, int count) const;

    static constexpr int valuesAtOnce = 32;

private:
    std::vector<float> weights;
};

} // namespace BatchWorker
