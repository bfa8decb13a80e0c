// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Orientation.h"

namespace BatchWorker {

int OrientationOf(const Picture& picture)
{
    if (picture.get_typeof(VIPS_META_ORIENTATION) != G_TYPE_INT) {
        return 1;
    }
    const int orientation = picture.get_int(VIPS_META_ORIENTATION);
    return orientation >= 1 && orientation <= 8 ? orientation : 1;
}

bool IsTurnedSideways(int orientation)
{
    return orientation >= 5;
}

QSize TurnedSize(const QSize& size, int orientation)
{
    return IsTurnedSideways(orientation) ? size.transposed() : size;
}

QRect StoredRect(const QRect& upright, const QSize& uprightSize, int orientation)
{
    const int fromRight = uprightSize.width() - upright.x() - upright.width();
    const int fromBottom = uprightSize.height() - upright.y() - upright.height();
    switch (orientation) {
    case 2:
        return {QPoint(fromRight, upright.y()), upright.size()};
    case 3:
        return {QPoint(fromRight, fromBottom), upright.size()};
    case 4:
        return {QPoint(upright.x(), fromBottom), upright.size()};
    case 5:
        return {QPoint(upright.y(), upright.x()), upright.size().transposed()};
    case 6:
        return {QPoint(upright.y(), fromRight), upright.size().transposed()};
    case 7:
        return {QPoint(fromBottom, fromRight), upright.size().transposed()};
    case 8:
        return {QPoint(fromBottom, upright.x()), upright.size().transposed()};
    default:
        return upright;
    }
}

QRect UprightRect(const QRect& stored, const QSize& storedSize, int orientation)
{
    // Each orientation is its own inverse, but for the two quarter turns, which are the inverse of each other.
    constexpr int quarterTurn = 6;
    constexpr int otherQuarterTurn = 8;
    if (orientation == quarterTurn) {
        return StoredRect(stored, storedSize, otherQuarterTurn);
    }
    return StoredRect(stored, storedSize, orientation == otherQuarterTurn ? quarterTurn : orientation);
}

BatchJob::Geometry StoredGeometry(const BatchJob::Geometry& upright, const QSize& uprightSize, int orientation)
{
    return {StoredRect(upright.part, uprightSize, orientation), TurnedSize(upright.scaledSize, orientation),
            StoredRect(upright.cut, upright.scaledSize, orientation)};
}

Picture TurnedUpright(const Picture& stored, int orientation)
{
    Picture upright = stored;
    switch (orientation) {
    case 2:
        upright = stored.flip(VIPS_DIRECTION_HORIZONTAL);
        break;
    case 3:
        upright = stored.rot(VIPS_ANGLE_D180);
        break;
    case 4:
        upright = stored.flip(VIPS_DIRECTION_VERTICAL);
        break;
    case 5:
        upright = stored.rot(VIPS_ANGLE_D90).flip(VIPS_DIRECTION_HORIZONTAL);
        break;
    case 6:
        upright = stored.rot(VIPS_ANGLE_D90);
        break;
    case 7:
        upright = stored.rot(VIPS_ANGLE_D270).flip(VIPS_DIRECTION_HORIZONTAL);
        break;
    case 8:
        upright = stored.rot(VIPS_ANGLE_D270);
        break;
    default:
        break;
    }
    upright = upright.copy();
    upright.set(VIPS_META_ORIENTATION, 1);
    return upright;
}

} // namespace BatchWorker
