// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Picture.h"

#include <QSize>
#include <QTransform>

#include <vector>

namespace BatchWorker {

/// `picture` drawn onto a canvas of `size` by `toCanvas`, a rotation with or without a scale, with bicubic
/// interpolation, weighted by opacity. The picture has to be readable in any order.
///
/// Its border pixels are repeated beyond its edges, so that a pixel of the canvas that it covers in part has its whole
/// colour: how much of the pixel it covers is for the caller to weigh in, by Coverage of the corners that `toCanvas`
/// gives. Pixels that it does not touch mean nothing.
Picture Rotated(const Picture& picture, const QTransform& toCanvas, const QSize& size);

/// The same over a canvas of the colour `paint`, a value for each band; what the picture covers in part is mixed.
Picture RotatedOver(const Picture& picture, const QTransform& toCanvas, const QSize& size,
                    const std::vector<double>& paint);

} // namespace BatchWorker
