// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "SliderScale.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>

namespace BatchDesktop {

namespace {

constexpr int widePositions = 500;

bool IsWide(double minimum, double maximum, bool isInteger)
{
    constexpr double manyTimes = 50;
    constexpr double longRange = 1000;
    return minimum > 0 && !isInteger ? maximum / minimum >= manyTimes : maximum - minimum >= longRange;
}

// Where a range begins to be spread evenly by its logarithm: below, it is spread by value.
double Offset(double minimum, double maximum)
{
    constexpr double share = 1000;
    return minimum > 0 ? 0.0 : maximum / share;
}

double Rounded(double value, int digits)
{
    const double unit = value == 0.0 ? 1.0 : std::pow(10.0, std::floor(std::log10(std::abs(value))) - (digits - 1));
    // Dividing by a power of ten keeps the shortest decimal form; multiplying by a fraction does not.
    return unit < 1.0 ? std::round(value / unit) / std::round(1.0 / unit) : std::round(value / unit) * unit;
}

} // namespace

SliderScale::SliderScale(double low, double high, bool isWhole)
    : minimum(low)
    , maximum(std::max(low, high))
    , isInteger(isWhole)
    , isWide(IsWide(low, high, isWhole))
    , isBothWays(isWide && low < 0 && high > 0)
{
    if (isWide) {
        first = isBothWays ? -widePositions : 0;
        last = widePositions;
        return;
    }
    constexpr double enough = 100;
    const double span = maximum - minimum;
    step = span > 0 ? std::pow(10.0, std::floor(std::log10(span / enough))) : 1.0;
    if (isInteger || step > 1.0) {
        step = std::max(1.0, step);
    }
    first = qRound(minimum / step);
    last = qRound(maximum / step);
}

double SliderScale::Stretched(double share) const
{
    const double low = isBothWays ? 0.0 : minimum;
    const double offset = Offset(low, maximum);
    return (low + offset) * std::pow((maximum + offset) / (low + offset), share) - offset;
}

double SliderScale::ValueAt(int position) const
{
    if (position <= first) {
        return minimum;
    }
    if (position >= last) {
        return maximum;
    }
    if (!isWide) {
        const double value = step < 1.0 ? position / std::round(1.0 / step) : position * step;
        return std::clamp(value, minimum, maximum);
    }
    constexpr int digits = 2;
    const double stretched = Stretched(double(std::abs(position)) / widePositions);
    const double value = Rounded(isInteger ? std::round(stretched) : stretched, digits);
    return std::clamp(position < 0 ? -value : value, minimum, maximum);
}

int SliderScale::PositionOf(double value) const
{
    const double held = std::clamp(value, minimum, maximum);
    if (!isWide) {
        return std::clamp(qRound(held / step), first, last);
    }
    const double low = isBothWays ? 0.0 : minimum;
    const double offset = Offset(low, maximum);
    const double share =
        std::log((std::abs(held) + offset) / (low + offset)) / std::log((maximum + offset) / (low + offset));
    const int position = qRound(share * widePositions) * (isBothWays && held < 0 ? -1 : 1);
    // Values are rounded, so a neighbour may stand for a nearer one.
    const auto distance = [&](int other) { return std::abs(ValueAt(other) - held); };
    int nearest = std::clamp(position, first, last);
    for (const int neighbour : {position - 1, position + 1}) {
        if (neighbour >= first && neighbour <= last && distance(neighbour) < distance(nearest)) {
            nearest = neighbour;
        }
    }
    return nearest;
}

} // namespace BatchDesktop
