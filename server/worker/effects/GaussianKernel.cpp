// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "GaussianKernel.h"

#include "server/worker/pixels/Lanes.h"
#include "server/worker/pixels/VectorCode.h"

#include <cmath>

namespace BatchWorker {

namespace {

static_assert(GaussianKernel::valuesAtOnce == 4 * laneCount);

// Rows at the same distance from the middle are added before they are weighted.
BATCH_VECTOR_CODE void SumUpRows(const float* const* rows, const float* weights, int radius, float* sums, int count)
{
    for (int first = 0; first < count; first += GaussianKernel::valuesAtOnce) {
        const float* const middle = rows[radius] + first;
        Lanes sum0 = weights[0] * LanesAt(middle);
        Lanes sum1 = weights[0] * LanesAt(middle + laneCount);
        Lanes sum2 = weights[0] * LanesAt(middle + 2 * laneCount);
        Lanes sum3 = weights[0] * LanesAt(middle + 3 * laneCount);
        for (int distance = 1; distance <= radius; ++distance) {
            const float* const before = rows[radius - distance] + first;
            const float* const behind = rows[radius + distance] + first;
            const float weight = weights[distance];
            sum0 += weight * (LanesAt(before) + LanesAt(behind));
            sum1 += weight * (LanesAt(before + laneCount) + LanesAt(behind + laneCount));
            sum2 += weight * (LanesAt(before + 2 * laneCount) + LanesAt(behind + 2 * laneCount));
            sum3 += weight * (LanesAt(before + 3 * laneCount) + LanesAt(behind + 3 * laneCount));
        }
        LanesAt(sums + first) = sum0;
        LanesAt(sums + first + laneCount) = sum1;
        LanesAt(sums + first + 2 * laneCount) = sum2;
        LanesAt(sums + first + 3 * laneCount) = sum3;
    }
}

} // namespace

GaussianKernel::GaussianKernel(double sigma)
{
    // A little less than exp(-4.5), which is the weight at three sigma.
    constexpr double leastWeight = 0.0111;
    std::vector<double> exact;
    double sum = 0.0;
    for (double weight = 1.0; weight >= leastWeight;) {
        exact.push_back(weight);
        sum += exact.size() == 1 ? weight : 2.0 * weight;
        const auto distance = static_cast<double>(exact.size());
        weight = std::exp(-distance * distance / (2.0 * sigma * sigma));
    }
    for (const double weight : exact) {
        weights.push_back(static_cast<float>(weight / sum));
    }
}

void GaussianKernel::SumUp(const float* const* rows, float* sums, int count) const
{
    SumUpRows(rows, weights.data(), Radius(), sums, count);
}

} // namespace BatchWorker
