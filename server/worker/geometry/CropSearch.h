// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Picture.h"

#include <QRect>
#include <QSize>

#include <vector>

/// Crop frames that depend on the pixels. Both read the whole of `picture`, once from top to bottom, and throw
/// vips::VError when that fails. Pictures have the form that stages hand on.
namespace BatchWorker {

/// What a border of one colour leaves of `picture`; all of it when it has only that colour. `border` is the colour, one
/// value for each channel. Small differences, as compression leaves them, count as the same colour.
QRect FrameWithoutBorder(const Picture& picture, const std::vector<double>& border);

/// The long side in pixels of the copy that FrameOfInterest() looks at: a picture that is loaded smaller, but not
/// smaller than this, gives the same frame.
constexpr double interestSearchSide = 512;

/// The frame of the aspect ratio of `ratio`, as large as possible, that draws the eye: edges, skin, saturated colours.
/// It is a frame in the source, of `sourceSize`, of which `picture` may be a smaller copy.
QRect FrameOfInterest(const Picture& picture, const QSize& sourceSize, const QSize& ratio);

} // namespace BatchWorker
