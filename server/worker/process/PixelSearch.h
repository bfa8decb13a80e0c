#pragma once

#include "server/worker/decode/PictureSource.h"

#include <QRect>
#include <QSize>

/// Crop frames that depend on the pixels. Both read the picture for themselves, and give the frame in the stored
/// picture. They throw what PictureSource throws, and vips::VError.
namespace BatchWorker {

/// What a border of one colour, that of the upright picture's top left corner, leaves of the picture; all of it when
/// it has only that colour. Small differences, as compression leaves them, count as the same colour.
QRect FrameWithoutBorder(PictureSource& source);

/// The frame of the aspect ratio of `ratio`, as large as possible, that draws the eye: edges, skin, saturated colours.
/// `ratio` is that of the stored picture.
QRect FrameOfInterest(PictureSource& source, const QSize& ratio);

} // namespace BatchWorker
