// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "BilateralRow.h"

#include "server/worker/pixels/VectorCode.h"

#include <cmath>
#include <cstddef>

namespace BatchWorker {

namespace {

/// 2 to the power of `exponent`, which becomes the fraction that is left, as long as it is more than -126. A polynomial
/// of the fraction, -0.5 to 0.5, with a relative error of 7e-6 and none at 0; its bits take the whole part.
inline void RaiseTwo(Lanes& exponent, Lanes& power)
{
    // Adding it leaves no bits for fractions, and the whole part in the last ones.
    constexpr float roundsOff = 12'582'912.0F;
    constexpr int exponentBits = 23;
    const Lanes shifted = exponent + roundsOff;
    exponent -= shifted - roundsOff;
    power = 1.0F +
            exponent * (0.69313673F + exponent * (0.24022530F + exponent * (0.055838283F + exponent * 0.0096567103F)));
    auto& bits = reinterpret_cast<WholeLanes&>(power);
    bits += reinterpret_cast<const WholeLanes&>(shifted) << exponentBits;
}

template<int colours, bool hasAlpha>
BATCH_VECTOR_CODE void Smooth(const BilateralWeights& weights, const RowPlanes& planes, int count, float* results)
{
    const int radius = weights.Radius();
    const int side = 2 * radius + 1;
    const std::ptrdiff_t distance = planes.distance;
    for (int first = 0; first < count; first += laneCount) {
        const float* const centre = planes.rows[radius] + radius + first;
        const Lanes none{};
        Lanes total = none;
        Lanes sums[colours] = {};
        const float* exponents = weights.Distances();
        for (int y = 0; y < side; ++y) {
            const float* neighbour = planes.rows[y] + first;
            for (int x = 0; x < side; ++x, ++neighbour, ++exponents) {
                Lanes squares = none;
                for (int band = 0; band < colours; ++band) {
                    const Lanes difference = LanesAt(neighbour + band * distance) - LanesAt(centre + band * distance);
                    squares += difference * difference;
                }
                Lanes exponent = *exponents - squares * weights.FallOff();
                Lanes weight;
                RaiseTwo(exponent, weight);
                reinterpret_cast<WholeLanes&>(weight) &= static_cast<WholeLanes>(squares < weights.LargestSquares());
                if (hasAlpha) {
                    weight *= LanesAt(neighbour + colours * distance);
                }
                total += weight;
                for (int band = 0; band < colours; ++band) {
                    sums[band] += weight * LanesAt(neighbour + band * distance);
                }
            }
        }
        for (int band = 0; band < colours; ++band) {
            LanesAt(results + band * distance + first) =
                total > 0.0F ? sums[band] / total : LanesAt(centre + band * distance);
        }
    }
}

} // namespace

BilateralWeights::BilateralWeights(double strength, double sigma, int colours)
    : radius(static_cast<int>(std::ceil(2.0 * sigma)))
{
    constexpr double largestExponent = 10.0; // exp(-10) is less than a rounding step
    const double perUnit = 1.0 / (2.0 * strength * strength * colours);
    const double log2OfE = 1.0 / std::log(2.0);
    fallOff = static_cast<float>(perUnit * log2OfE);
    largestSquares = static_cast<float>(largestExponent / perUnit);
    for (int y = -radius; y <= radius; ++y) {
        for (int x = -radius; x <= radius; ++x) {
            distances.push_back(static_cast<float>(-(x * x + y * y) / (2.0 * sigma * sigma) * log2OfE));
        }
    }
}

void SmoothRow(const BilateralWeights& weights, const RowPlanes& planes, int colours, int count, float* results)
{
    if (colours == 1) {
        planes.hasAlpha ? Smooth<1, true>(weights, planes, count, results)
                        : Smooth<1, false>(weights, planes, count, results);
    } else {
        planes.hasAlpha ? Smooth<3, true>(weights, planes, count, results)
                        : Smooth<3, false>(weights, planes, count, results);
    }
}

} // namespace BatchWorker
