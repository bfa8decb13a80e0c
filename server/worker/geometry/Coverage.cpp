// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Coverage.h"

#include "server/worker/pixels/GeneratedPicture.h"

#include <algorithm>
#include <cmath>

namespace BatchWorker {

namespace {

constexpr double halfDiagonal = 0.70710678118654757;

// A square that is cut by four lines has at most eight corners.
struct Polygon
{
    std::array<QPointF, 8> points;
    std::size_t count = 0;

    void Add(const QPointF& point)
    {
        if (count < points.size()) {
            points[count++] = point;
        }
    }
};

double Cross(const QPointF& a, const QPointF& b)
{
    return a.x() * b.y() - a.y() * b.x();
}

double Area(const Polygon& polygon)
{
    double twice = 0;
    for (std::size_t i = 0; i < polygon.count; ++i) {
        twice += Cross(polygon.points[i], polygon.points[(i + 1) % polygon.count]);
    }
    return std::abs(twice) / 2;
}

} // namespace

Coverage::Coverage(const std::array<QPointF, 4>& corners)
{
    const double turn = Cross(corners[1] - corners[0], corners[3] - corners[0]) < 0 ? -1 : 1;
    for (std::size_t i = 0; i < 4; ++i) {
        const QPointF from = corners[i];
        const QPointF along = (corners[(i + 1) % 4] - from) * turn;
        const double length = std::hypot(along.x(), along.y());
        const double normalX = -along.y() / length;
        const double normalY = along.x() / length;
        edges[i] = {normalX, normalY, -(normalX * from.x() + normalY * from.y())};
    }
}

double Coverage::OfPixel(int x, int y) const
{
    bool isInside = true;
    for (const Edge& edge : edges) {
        const double distance = edge.Distance(x + 0.5, y + 0.5);
        if (distance <= -halfDiagonal) {
            return 0;
        }
        isInside = isInside && distance >= halfDiagonal;
    }
    return isInside ? 1 : ClippedArea(x, y);
}

// Columns whose pixels have their middle at least so far on the positive side of all edges.
Coverage::Columns Coverage::Beyond(int y, double distance, Columns within) const
{
    constexpr double isVertical = 1e-9;
    double first = within.first;
    double end = within.end;
    for (const Edge& edge : edges) {
        const double missing = distance - edge.Distance(0.5, y + 0.5);
        if (edge.normalX > isVertical) {
            first = std::max(first, std::ceil(missing / edge.normalX));
        } else if (edge.normalX < -isVertical) {
            end = std::min(end, std::floor(missing / edge.normalX) + 1);
        } else if (missing > 0) {
            end = first;
        }
    }
    return end > first ? Columns{int(first), int(end)} : Columns{within.first, within.first};
}

// What is rounded counts as the careful answer: a little more, and a little less.
Coverage::Columns Coverage::WhollyCovered(int y, Columns within) const
{
    constexpr double more = 1e-3;
    return Beyond(y, halfDiagonal + more, within);
}

Coverage::Columns Coverage::Touched(int y, Columns within) const
{
    constexpr double less = 1e-3;
    return Beyond(y, -halfDiagonal - less, within);
}

double Coverage::ClippedArea(int x, int y) const
{
    Polygon polygon;
    polygon.Add(QPointF(x, y));
    polygon.Add(QPointF(x + 1, y));
    polygon.Add(QPointF(x + 1, y + 1));
    polygon.Add(QPointF(x, y + 1));
    for (const Edge& edge : edges) {
        Polygon kept;
        for (std::size_t i = 0; i < polygon.count; ++i) {
            const QPointF& from = polygon.points[i];
            const QPointF& to = polygon.points[(i + 1) % polygon.count];
            const double fromDistance = edge.Distance(from.x(), from.y());
            const double toDistance = edge.Distance(to.x(), to.y());
            if (fromDistance >= 0) {
                kept.Add(from);
            }
            if ((fromDistance >= 0) != (toDistance >= 0)) {
                kept.Add(from + (to - from) * (fromDistance / (fromDistance - toDistance)));
            }
        }
        polygon = kept;
    }
    return Area(polygon);
}

Picture Coverage::OfFrame(const QSize& size) const
{
    const PictureShape shape{size.width(), size.height(), 1, VIPS_FORMAT_FLOAT, VIPS_INTERPRETATION_MULTIBAND};
    return GeneratePicture(shape, {}, [coverage = *this](VipsRegion* target, const std::vector<VipsRegion*>&) {
        const VipsRect& area = target->valid;
        for (int y = area.top; y < area.top + area.height; ++y) {
            auto* line = PixelAt<float>(target, area.left, y) - area.left;
            const Columns all{area.left, area.left + area.width};
            const Columns covered = coverage.WhollyCovered(y, all);
            const Columns touched = coverage.Touched(y, all);
            for (int x = all.first; x < all.end; ++x) {
                const bool isCovered = covered.first <= x && x < covered.end;
                const bool isTouched = touched.first <= x && x < touched.end;
                line[x] = isCovered ? 1.0F : (isTouched ? static_cast<float>(coverage.OfPixel(x, y)) : 0.0F);
            }
        }
    });
}

} // namespace BatchWorker
