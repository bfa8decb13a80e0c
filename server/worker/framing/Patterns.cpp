// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Patterns.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace BatchWorker {

namespace {

double Fraction(double value)
{
    return value - std::floor(value);
}

bool IsBrickJoint(double x, double y)
{
    constexpr double joint = 1 / 16.0;
    const bool isLowerRow = y >= 0.5;
    return Fraction(y * 2) < 2 * joint || Fraction(x + (isLowerRow ? 0.5 : 0)) < joint;
}

bool IsFigure(Pattern pattern, double x, double y)
{
    switch (pattern) {
    case Pattern::Checkerboard:
        return (x < 0.5) != (y < 0.5);
    case Pattern::HorizontalStripes:
        return y >= 0.5;
    case Pattern::VerticalStripes:
        return x >= 0.5;
    case Pattern::DiagonalStripes:
        return Fraction(x + y) >= 0.5;
    case Pattern::Grid:
        return x < 1 / 16.0 || y < 1 / 16.0;
    case Pattern::Dots:
        return std::hypot(x - 0.5, y - 0.5) < 0.25;
    case Pattern::Bricks:
        return IsBrickJoint(x, y);
    case Pattern::Waves:
        return Fraction(y + std::sin(2 * M_PI * x) / 8) >= 0.5;
    }
    return false;
}

} // namespace

int PatternTileSide(int percent)
{
    constexpr int side = 32;
    return percent == 0 ? side : std::max(2, qRound(side * percent / 100.0));
}

double PatternValue(Pattern pattern, double x, double y)
{
    return IsFigure(pattern, x, y) ? patternFigure : patternGround;
}

} // namespace BatchWorker
