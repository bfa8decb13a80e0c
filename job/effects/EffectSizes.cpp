// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectSizes.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace BatchJob {

QMargins BorderOf(const QSize& size, const QJsonObject& parameters)
{
    const bool isPercent = parameters[QLatin1String("unit")].toString() == QLatin1String("percent");
    const double unit = isPercent ? std::min(size.width(), size.height()) / 100.0 : 1.0;
    const auto pixels = [&parameters, unit](const char* side) {
        return static_cast<int>(std::lround(parameters[QLatin1String(side)].toDouble() * unit));
    };
    return {pixels("left"), pixels("top"), pixels("right"), pixels("bottom")};
}

QSize SizeWithBorder(const QSize& size, const QJsonObject& parameters)
{
    return size.grownBy(BorderOf(size, parameters));
}

double TurnOf(const QJsonObject& parameters)
{
    const double turn = std::fmod(parameters[QLatin1String("angle")].toDouble(), 360.0);
    return turn < 0.0 ? turn + 360.0 : turn;
}

QSize TurnedCanvas(const QSize& size, const QJsonObject& parameters)
{
    const double degrees = TurnOf(parameters);
    if (std::fmod(degrees, 90.0) == 0.0) {
        return std::fmod(degrees, 180.0) == 0.0 ? size : size.transposed();
    }
    const double c = std::abs(std::cos(degrees * M_PI / 180.0));
    const double s = std::abs(std::sin(degrees * M_PI / 180.0));
    // Rounding errors do not make another pixel.
    constexpr double tolerance = 1e-6;
    return {static_cast<int>(std::ceil(size.width() * c + size.height() * s - tolerance)),
            static_cast<int>(std::ceil(size.width() * s + size.height() * c - tolerance))};
}

} // namespace BatchJob
