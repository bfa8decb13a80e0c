// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/geometry/Geometry.h"

#include "server/worker/pixels/Picture.h"

namespace BatchWorker {

/// The crop and size stage for `loaded`, the pixels of an upright source, or those loaded smaller than the source is.
/// `sourceSize` is the size of the source, which `geometry` was planned for. Alpha is weighed in: what is transparent
/// does not colour its neighbours.
Picture Resampled(const Picture& loaded, const QSize& sourceSize, const BatchJob::Geometry& geometry);

} // namespace BatchWorker
