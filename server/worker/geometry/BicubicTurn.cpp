// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "BicubicTurn.h"

#include "server/worker/pixels/Lanes.h"
#include "server/worker/pixels/VectorCode.h"

#include <array>

namespace BatchWorker {

namespace {

constexpr int steps = 64;
constexpr int valuesOfPixel = 4;
constexpr int valuesOfStep = 4 * valuesOfPixel;

using Half = float __attribute__((vector_size(16), aligned(4), may_alias));

std::array<double, 4> WeightsAt(double t)
{
    return {((-0.5 * t + 1.0) * t - 0.5) * t, (1.5 * t - 2.5) * t * t + 1.0, ((-1.5 * t + 2.0) * t + 0.5) * t,
            (0.5 * t - 0.5) * t * t};
}

// A place lies between the second and third pixel of the four. It is rounded to the nearest step, of which the last is
// the next pixel.
BATCH_VECTOR_CODE void InterpolateLine(const float* across, const float* down, const PixelBlock& block,
                                       const BicubicTurn::Line& line, int first, int count, float* values)
{
    constexpr unsigned halfSteps = 2 * steps;
    for (int i = first; i < first + count; ++i, values += valuesOfPixel) {
        const auto x = static_cast<unsigned>(static_cast<int>((line.x + i * line.stepX - block.left) * halfSteps));
        const auto y = static_cast<unsigned>(static_cast<int>((line.y + i * line.stepY - block.top) * halfSteps));
        const float* const weightsX = across + (x % halfSteps + 1) / 2 * valuesOfStep;
        const float* const weightsY = down + (y % halfSteps + 1) / 2 * 4;
        const float* row = block.values + std::ptrdiff_t(y / halfSteps - 1) * block.stride +
                           std::ptrdiff_t(x / halfSteps - 1) * valuesOfPixel;
        Lanes left = weightsY[0] * LanesAt(row);
        Lanes right = weightsY[0] * LanesAt(row + laneCount);
        for (int below = 1; below < 4; ++below) {
            row += block.stride;
            left += weightsY[below] * LanesAt(row);
            right += weightsY[below] * LanesAt(row + laneCount);
        }
        Lanes sum = left * LanesAt(weightsX) + right * LanesAt(weightsX + laneCount);
        const auto* const halves = reinterpret_cast<const Half*>(&sum);
        *reinterpret_cast<Half*>(values) = halves[0] + halves[1];
    }
}

} // namespace

BicubicTurn::BicubicTurn()
{
    for (int step = 0; step <= steps; ++step) {
        for (const double weight : WeightsAt(double(step) / steps)) {
            down.push_back(static_cast<float>(weight));
            across.insert(across.end(), valuesOfPixel, static_cast<float>(weight));
        }
    }
}

void BicubicTurn::Interpolate(const PixelBlock& block, const Line& line, int first, int count, float* values) const
{
    InterpolateLine(across.data(), down.data(), block, line, first, count, values);
}

} // namespace BatchWorker
