// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonArray>
#include <QPointF>
#include <QVector>

namespace BatchDesktop {

/// The points of a curve: 2 to 256, with ascending x, within a square.
class CurvePoints
{
public:
    CurvePoints(double low, double high);

    /// Takes over `wanted` if they are as above; others leave the line from corner to corner.
    void Set(const QJsonArray& wanted);
    QJsonArray ToJson() const;

    int Count() const { return points.size(); }
    const QPointF& At(int index) const { return points.at(index); }

    /// The place of the new point; -1 if there is no room for one.
    int Add(const QPointF& wanted);

    /// Between its neighbours: it never passes them.
    void Move(int index, const QPointF& wanted);

    /// Two points stay.
    bool Remove(int index);

    /// The least distance of two points' x.
    double Gap() const;

private:
    QPointF Held(const QPointF& point) const;

    double minimum;
    double maximum;
    QVector<QPointF> points;
};

} // namespace BatchDesktop
