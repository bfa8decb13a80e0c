// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Lanes.h"

#include <vector>

namespace BatchWorker {

/// The weights of a bilateral filter (Tomasi and Manduchi, 1998), as powers of two.
class BilateralWeights
{
public:
    /// `sigma` in pixels, `strength` in the range of samples; of `colours` channels the mean of the squared differences
    /// counts.
    BilateralWeights(double strength, double sigma, int colours);

    int Radius() const { return radius; }

    /// The exponents of the distances, row by row of a square around the middle.
    const float* Distances() const { return distances.data(); }

    /// What the sum of the squared differences takes off the exponent, for each unit.
    float FallOff() const { return fallOff; }

    /// From this sum on a neighbour weighs nothing.
    float LargestSquares() const { return largestSquares; }

private:
    int radius;
    float fallOff;
    float largestSquares;
    std::vector<float> distances;
};

/// The rows around the one that is smoothed, each as a plane of floats for each channel; opacity, if there is one,
/// comes last and is 0 to 1.
struct RowPlanes
{
    const float* const* rows; ///< 2 * radius + 1
    int distance;             ///< of the planes of a row
    bool hasAlpha;
};

/// How many values SmoothRow() reads and writes at once.
constexpr int smoothedAtOnce = laneCount;

/// The weighted means of the neighbours of `count` pixels that follow each other; opaque ones count most, of others
/// none. The rows of `planes` begin a radius to the left of them. A pixel without neighbours that count stays as it is.
/// `results` has a plane for each of the 1 or 3 `colours`, at the distance of `planes`.
void SmoothRow(const BilateralWeights& weights, const RowPlanes& planes, int colours, int count, float* results);

} // namespace BatchWorker
