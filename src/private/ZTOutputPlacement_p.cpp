// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTOutputPlacement_p.h"

#include "ZTDiagnostics_p.h"

#include <QLineF>
#include <QPointF>
#include <QRectF>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr ZTDiagnostics diagnostics("src\\ZTBatchOutput");

bool IsZero(const QPointF& vector)
{
    constexpr double limit = 1e-12;
    return std::abs(vector.x()) <= limit && std::abs(vector.y()) <= limit;
}

/// Rounds half up, as lengths are positive. Clamped to the range of int, which negative margins can exceed.
int Rounded(double length)
{
    constexpr double largest = std::numeric_limits<int>::max();
    return static_cast<int>(std::min(length + 0.5, largest));
}

} // namespace

ZTOutputPlacement::ZTOutputPlacement(const QSize& size, int angle, const QMargins& margins)
    : size(size)
    , angle(angle)
    , margins(margins)
{
    if (size.isEmpty()) {
        outputSize = size;
        return;
    }
    if (FreeWidth() <= 0 || FreeHeight() <= 0) {
        return;
    }

    const QSizeF picture = PictureSize();
    outputSize = QSize(Rounded(picture.width()), Rounded(picture.height()));
    // A picture that fills the frame exactly is neither scaled nor moved to the centre of the free area, so that it
    // stays as sharp as its source. That holds even if margins of opposite signs move the free area.
    transform = outputSize == size ? PlainRotation() : ScaledPlacement(picture.width());
}

QSizeF ZTOutputPlacement::PictureSize() const
{
    if (angle % 180 == 0) {
        return UprightSize();
    }
    if (angle % 90 == 0) {
        return LyingSize();
    }
    return TurnedSize();
}

QSizeF ZTOutputPlacement::UprightSize() const
{
    const double ratio = AspectRatio();
    if (ratio >= 1) {
        const double heightOfFullWidth = FreeWidth() / ratio;
        const double width = heightOfFullWidth > FreeHeight() ? FreeHeight() * ratio : FreeWidth();
        return QSizeF(width, std::min(heightOfFullWidth, FreeHeight()));
    }

    const double width = FreeHeight() * ratio;
    // The limit subtracts the top and bottom margins from the width. That looks wrong, but portraits have always been
    // placed this way, and a job must reproduce its results.
    const double widthLimit = double(size.width()) - margins.top() - margins.bottom();
    if (width > widthLimit) {
        return QSizeF(FreeWidth(), FreeWidth() / ratio);
    }
    return QSizeF(width, FreeHeight());
}

QSizeF ZTOutputPlacement::LyingSize() const
{
    // Only the long side is fitted; with uneven margins the short side may extend into them.
    const double ratio = AspectRatio();
    if (ratio >= 1) {
        return QSizeF(FreeHeight(), FreeHeight() / ratio);
    }
    return QSizeF(FreeWidth() * ratio, FreeWidth());
}

QSizeF ZTOutputPlacement::TurnedSize() const
{
    const double ratio = AspectRatio();
    const double heightOfFullWidth = FreeWidth() / ratio;
    const double boxWidth = heightOfFullWidth > FreeHeight() ? ratio * FreeHeight() : FreeWidth();
    const double boxHeight = std::min(heightOfFullWidth, FreeHeight());

    const double diagonal = FittedDiagonal(boxWidth, boxHeight, angle);
    const double height = diagonal / std::sqrt(ratio * ratio + 1);
    return QSizeF(height * ratio, height);
}

double ZTOutputPlacement::FittedDiagonal(double boxWidth, double boxHeight, int angle)
{
    double left = boxWidth * -0.5;
    double right = -left;
    double bottom = boxHeight * 0.5;
    double top = -bottom;
    if (left > right) {
        left = right = 0;
    }
    if (bottom < top) {
        top = bottom = 0;
    }

    const QTransform rotation = QTransform().rotate(angle, Qt::ZAxis);
    const QPointF falling = rotation.map(QPointF(right, bottom));
    const QPointF rising = rotation.map(QPointF(right, top));
    diagnostics.Assert(!IsZero(falling));
    diagnostics.Assert(!IsZero(rising));

    // The points at which the rotated diagonals, extended, cross the lines of the box edges. A diagonal parallel to an
    // edge yields an infinity or a NaN, which no edge contains.
    QVector<QPointF> crossings;
    const auto addOnHorizontalEdge = [&](const QPointF& point) {
        if (point.x() >= left && point.x() <= right) {
            crossings.append(point);
        }
    };
    const auto addOnVerticalEdge = [&](const QPointF& point) {
        if (point.y() >= top && point.y() <= bottom) {
            crossings.append(point);
        }
    };
    addOnHorizontalEdge(QPointF(falling.x() * bottom / falling.y(), bottom));
    addOnHorizontalEdge(QPointF(falling.x() * top / falling.y(), top));
    addOnVerticalEdge(QPointF(right, falling.y() * right / falling.x()));
    addOnVerticalEdge(QPointF(left, falling.y() * left / falling.x()));
    addOnHorizontalEdge(QPointF(rising.x() * bottom / rising.y(), bottom));
    addOnHorizontalEdge(QPointF(rising.x() * top / rising.y(), top));
    addOnVerticalEdge(QPointF(right, rising.y() * right / rising.x()));
    // On the left edge, but with y calculated for the right edge: the mirrored point has the same distance from the
    // centre, and only that counts below. Do not change the operation, so that results stay the same to the last bit.
    addOnVerticalEdge(QPointF(left, rising.y() * right / rising.x()));
    diagnostics.Assert(!crossings.isEmpty());

    double nearest = std::numeric_limits<double>::max();
    for (const QPointF& crossing : qAsConst(crossings)) {
        nearest = std::min(nearest, QLineF(QPointF(0, 0), crossing).length());
    }
    return 2 * nearest;
}

QTransform ZTOutputPlacement::PlainRotation() const
{
    const double centreX = size.width() / 2.0;
    const double centreY = size.height() / 2.0;
    QTransform rotation;
    rotation.translate(centreX, centreY);
    rotation.rotate(angle, Qt::ZAxis);
    rotation.translate(-centreX, -centreY);
    return rotation;
}

QTransform ZTOutputPlacement::ScaledPlacement(double pictureWidth) const
{
    const double centreX = size.width() / 2.0;
    const double centreY = size.height() / 2.0;
    const QPointF freeCentre =
        QRectF(0, 0, size.width(), size.height())
            .adjusted(margins.left(), margins.top(), -double(margins.right()), -double(margins.bottom()))
            .center();
    // The unrounded width, so that the scale changes smoothly with the size.
    const double scale = pictureWidth / size.width();

    QTransform placement;
    placement.translate(centreX, centreY);
    placement.translate(freeCentre.x() - centreX, freeCentre.y() - centreY);
    placement.scale(scale, scale);
    placement.rotate(angle, Qt::ZAxis);
    placement.translate(-centreX, -centreY);
    return placement;
}

// Double precision represents every sum of these ints exactly, without overflow.

double ZTOutputPlacement::FreeWidth() const
{
    return double(size.width()) - margins.left() - margins.right();
}

double ZTOutputPlacement::FreeHeight() const
{
    return double(size.height()) - margins.top() - margins.bottom();
}

double ZTOutputPlacement::AspectRatio() const
{
    return double(size.width()) / size.height();
}
