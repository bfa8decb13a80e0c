// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CurvePoints.h"

#include <algorithm>
#include <cmath>

namespace BatchDesktop {

namespace {

constexpr int mostPoints = 256;

bool IsLeftOf(const QPointF& one, const QPointF& other)
{
    return one.x() < other.x();
}

} // namespace

CurvePoints::CurvePoints(double low, double high)
    : minimum(low)
    , maximum(high)
    , points{QPointF(low, low), QPointF(high, high)}
{
}

void CurvePoints::Set(const QJsonArray& wanted)
{
    QVector<QPointF> taken;
    for (const QJsonValue& value : wanted) {
        const QJsonArray pair = value.toArray();
        const QPointF point(pair.at(0).toDouble(), pair.at(1).toDouble());
        if (pair.size() == 2 && point == Held(point) && (taken.isEmpty() || IsLeftOf(taken.last(), point))) {
            taken.append(point);
        }
    }
    const bool isTaken = taken.size() == wanted.size() && taken.size() >= 2 && taken.size() <= mostPoints;
    points = isTaken ? taken : QVector<QPointF>{QPointF(minimum, minimum), QPointF(maximum, maximum)};
}

QJsonArray CurvePoints::ToJson() const
{
    QJsonArray json;
    for (const QPointF& point : points) {
        json.append(QJsonArray{point.x(), point.y()});
    }
    return json;
}

int CurvePoints::Add(const QPointF& wanted)
{
    const QPointF point = Held(wanted);
    const auto behind = std::lower_bound(points.begin(), points.end(), point, IsLeftOf);
    const bool hasRoomBehind = behind == points.end() || behind->x() - point.x() >= Gap();
    const bool hasRoomBefore = behind == points.begin() || point.x() - std::prev(behind)->x() >= Gap();
    if (points.size() >= mostPoints || !hasRoomBehind || !hasRoomBefore) {
        return -1;
    }
    const int index = int(behind - points.begin());
    points.insert(index, point);
    return index;
}

void CurvePoints::Move(int index, const QPointF& wanted)
{
    QPointF point = Held(wanted);
    if (index > 0) {
        point.setX(std::max(point.x(), points.at(index - 1).x() + Gap()));
    }
    if (index + 1 < points.size()) {
        point.setX(std::min(point.x(), points.at(index + 1).x() - Gap()));
    }
    const bool isBetween = (index == 0 || IsLeftOf(points.at(index - 1), point)) &&
                           (index + 1 == points.size() || IsLeftOf(point, points.at(index + 1)));
    // Points of a job may be nearer to each other than this editor puts them.
    points[index] = isBetween ? point : QPointF(points.at(index).x(), point.y());
}

bool CurvePoints::Remove(int index)
{
    if (points.size() <= 2 || index < 0 || index >= points.size()) {
        return false;
    }
    points.remove(index);
    return true;
}

double CurvePoints::Gap() const
{
    constexpr double gaps = 1000;
    return (maximum - minimum) / gaps;
}

QPointF CurvePoints::Held(const QPointF& point) const
{
    return {std::clamp(point.x(), minimum, maximum), std::clamp(point.y(), minimum, maximum)};
}

} // namespace BatchDesktop
