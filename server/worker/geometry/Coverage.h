// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Picture.h"

#include <QPointF>
#include <QSize>

#include <array>

namespace BatchWorker {

/// The area of the pixel whose upper left corner is (x, y) that lies within a rectangle, 0 to 1, exact for rectangles
/// at any angle.
class Coverage
{
public:
    /// `corners` are those of a rectangle, in their order around it.
    explicit Coverage(const std::array<QPointF, 4>& corners);

    double OfPixel(int x, int y) const;

    /// Columns `first` to `end` - 1.
    struct Columns
    {
        int first;
        int end;
    };

    /// Columns of `within` whose pixels in the row `y` are covered wholly; not all of them where that is close. And
    /// columns outside of which no pixel is touched; more than necessary where that is close.
    Columns WhollyCovered(int y, Columns within) const;
    Columns Touched(int y, Columns within) const;

    /// One band of floats, the coverage of each pixel of a frame of `size`.
    Picture OfFrame(const QSize& size) const;

private:
    /// A line with the rectangle on its positive side.
    struct Edge
    {
        double normalX;
        double normalY;
        double offset;

        double Distance(double x, double y) const { return normalX * x + normalY * y + offset; }
    };

    Columns Beyond(int y, double distance, Columns within) const;
    double ClippedArea(int x, int y) const;

    std::array<Edge, 4> edges;
};

} // namespace BatchWorker
