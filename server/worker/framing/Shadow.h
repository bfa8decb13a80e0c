// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Placement.h"

#include "server/worker/pixels/Picture.h"

namespace BatchWorker {

/// How far the shadow is moved, in whole pixels: away from the light by the record's distance; not at all for a contact
/// glow.
QPoint ShadowOffset(const ZTBatchOutputSettings::Transformation& framing);

/// How dark the shadow is at each pixel of the frame, one band of floats from 0 to 1: the shape of the placed picture,
/// moved by ShadowOffset() and blurred by a Gaussian whose sigma is the record's shadowSize in pixels.
///
/// The shadow of a rectangle is computed from the Gaussian's integral, at every pixel by itself. That of a picture with
/// alpha is the blurred alpha of `placedPicture`, which has the frame's size and is read a second time for it.
Picture ShadowOfRectangle(const FramePlacement& placement, const ZTBatchOutputSettings::Transformation& framing);
Picture ShadowOfAlpha(const Picture& placedPicture, const Picture& coverage,
                      const ZTBatchOutputSettings::Transformation& framing);

} // namespace BatchWorker
