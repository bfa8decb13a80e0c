// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>
#include <QVector>

#include <vector>

namespace BatchJob {

/// A monotone cubic through points; the slopes are those of Fritsch and Butland (1984), and at the ends those of the
/// straight line to the next point. Safe on any thread.
class MonotoneCurve
{
public:
    /// At least two points, with ascending x.
    explicit MonotoneCurve(const QVector<QPointF>& points);

    /// Beyond the points the curve is level.
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

} // namespace BatchJob
