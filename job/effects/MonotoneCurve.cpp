// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "MonotoneCurve.h"

#include <algorithm>
#include <iterator>

namespace BatchJob {

MonotoneCurve::MonotoneCurve(const QVector<QPointF>& points)
{
    for (const QPointF& point : points) {
        knots.push_back({point.x(), point.y(), 0.0});
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

} // namespace BatchJob
