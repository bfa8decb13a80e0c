// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectFunctions.h"

#include "server/worker/pixels/PixelFilter.h"

#include <QJsonArray>

#include <algorithm>

namespace BatchWorker {

namespace {

/// A monotone cubic through points; the slopes are those of Fritsch and Butland (1984), and at the ends those of the
/// straight line to the next point.
class MonotoneCurve
{
public:
    explicit MonotoneCurve(const QJsonArray& points);

    double At(double x) const;

private:
    struct Knot
    {
        double x;
        double y;
        double slope;
    };

    std::vector<Knot> knots;
};

MonotoneCurve::MonotoneCurve(const QJsonArray& points)
{
    for (const QJsonValue& value : points) {
        const QJsonArray point = value.toArray();
        knots.push_back({point[0].toDouble() / 100.0, point[1].toDouble() / 100.0, 0.0});
    }
    const auto secant = [this](size_t i) { return (knots[i + 1].y - knots[i].y) / (knots[i + 1].x - knots[i].x); };
    const size_t last = knots.size() - 1;
    knots[0].slope = secant(0);
    knots[last].slope = secant(last - 1);
    for (size_t i = 1; i < last; ++i) {
        const double before = secant(i - 1);
        const double behind = secant(i);
        if (before * behind > 0.0) {
            const double widthBefore = knots[i].x - knots[i - 1].x;
            const double widthBehind = knots[i + 1].x - knots[i].x;
            const double weightBefore = 2.0 * widthBehind + widthBefore;
            const double weightBehind = widthBehind + 2.0 * widthBefore;
            knots[i].slope = (weightBefore + weightBehind) / (weightBefore / before + weightBehind / behind);
        }
    }
}

double MonotoneCurve::At(double x) const
{
    if (x <= knots.front().x) {
        return knots.front().y;
    }
    if (x >= knots.back().x) {
        return knots.back().y;
    }
    const auto to = std::upper_bound(knots.begin(), knots.end(), x,
                                     [](double wanted, const Knot& knot) { return wanted < knot.x; });
    const auto from = std::prev(to);
    const double width = to->x - from->x;
    const double t = (x - from->x) / width;
    // Hermite's basis.
    const double rise = t * t * (3.0 - 2.0 * t);
    const double slopes = t * (1.0 - t) * ((1.0 - t) * from->slope - t * to->slope) * width;
    return from->y + rise * (to->y - from->y) + slopes;
}

} // namespace

// A curve of one channel leaves a grey picture as it is.
Picture ApplyCurve(const Picture& picture, const QJsonObject& parameters)
{
    const QJsonArray points = parameters[QLatin1String("points")].toArray();
    const QString channel = parameters[QLatin1String("channel")].toString();
    const bool isNeutral = points == QJsonArray{QJsonArray{0, 0}, QJsonArray{100, 100}};
    const bool isForAll = channel == QLatin1String("all");
    if (isNeutral || (!isForAll && ColourBands(picture) == 1)) {
        return picture;
    }
    const MonotoneCurve curve(points);
    const ValueFunction mapped = [curve](double value) { return curve.At(value); };
    if (isForAll) {
        return MapValues(picture, mapped);
    }
    std::array<ValueFunction, 3> functions;
    functions.fill([](double value) { return value; });
    functions[channel == QLatin1String("red") ? 0 : channel == QLatin1String("green") ? 1 : 2] = mapped;
    return MapValues(picture, functions);
}

} // namespace BatchWorker
