// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/geometry/Geometry.h"

#include "server/worker/pixels/Picture.h"

#include <QRect>
#include <QSize>

/// EXIF orientations 1 to 8: how a stored picture has to be mirrored and turned to stand upright.
namespace BatchWorker {

/// The orientation that the metadata of `picture` state; 1 (upright) when they state none or an invalid one.
int OrientationOf(const Picture& picture);

/// Whether width and height change places.
bool IsTurnedSideways(int orientation);

/// The size of a picture after turning it upright, or the stored size of an upright one.
QSize TurnedSize(const QSize& size, int orientation);

/// Where `upright`, a rectangle in an upright picture of `uprightSize`, lies in the stored picture.
QRect StoredRect(const QRect& upright, const QSize& uprightSize, int orientation);

/// The reverse: where `stored`, a rectangle in a stored picture of `storedSize`, lies in the upright picture.
QRect UprightRect(const QRect& stored, const QSize& storedSize, int orientation);

/// `upright`, a geometry planned for an upright picture of `uprightSize`, as it applies to the stored picture.
BatchJob::Geometry StoredGeometry(const BatchJob::Geometry& upright, const QSize& uprightSize, int orientation);

/// Turns `stored` upright and sets its orientation to 1. For orientations other than 1 and 2 the picture must be one
/// whose pixels can be read in any order.
Picture TurnedUpright(const Picture& stored, int orientation);

} // namespace BatchWorker
