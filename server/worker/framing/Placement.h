// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchOutputSettings.h"

#include <QPointF>
#include <QRect>
#include <QSize>
#include <QTransform>

#include <array>

namespace BatchWorker {

/// Where a picture lies in its frame. Coordinates are pixels from the frame's upper left corner; whole numbers are
/// the borders between pixels.
///
/// The placement starts from the fitted picture: as large as fits into the frame with its ratio kept, and centred. In a
/// frame of the picture's own size that is the picture itself. The margins of the frame are converted to margins of the
/// fitted picture; ZTBatchOutputSettings::CalculateOutputTransformation() gets these, and its result is the
/// placement. In a frame of another ratio these margins can be negative, so that the picture may grow into the room
/// beside the fitted one.
///
/// Margins that leave nothing free have no effect: the picture is laid fitted into the frame, and not turned.
///
/// A picture that is turned by a multiple of 90 degrees has a size of whole pixels and lies on whole pixels, so
/// that its edges are sharp: sizes are rounded by CalculateOutputTransformation(), the upper left corner to the nearest
/// pixel, halves towards the lower right. At any other angle the placement is exact.
struct FramePlacement
{
    FramePlacement(const QSize& picture, const ZTBatchOutputSettings::Transformation& framing);

    QSize frame;
    bool hasRoom = true;            ///< whether the margins leave something free
    QSize drawn;                    ///< the size that the picture is scaled to before it is turned
    int quarterTurns = 0;           ///< clockwise, 0 to 3; -1 at other angles
    QRect upright;                  ///< where the turned picture lies; invalid when quarterTurns is -1
    QTransform toFrame;             ///< from the coordinates of the scaled picture to those of the frame
    std::array<QPointF, 4> corners; ///< of the picture in the frame, clockwise from its own upper left one

    /// Whether the picture hides every pixel of the frame.
    bool CoversFrame() const { return upright.contains(QRect(QPoint(0, 0), frame)); }
};

} // namespace BatchWorker
