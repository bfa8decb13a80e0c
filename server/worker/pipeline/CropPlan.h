// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/geometry/Geometry.h"
#include "server/worker/decode/PictureSource.h"

#include "ZTBatchOutputSettings.h"

namespace BatchWorker {

/// The crop and the size of the upright picture of `source`. Where the crop depends on the pixels they are read for it,
/// apart from later stages. Throws what PictureSource throws, and vips::VError.
BatchJob::Geometry PlannedGeometry(PictureSource& source, const ZTBatchOutputSettings::Crop& crop,
                                   const ZTBatchOutputSettings::ImageSize& size);

} // namespace BatchWorker
