// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Warning.h"
#include "server/protocol/ServerLimits.h"
#include "server/worker/pixels/Picture.h"

#include "ZTBatchOutputSettings.h"

#include <QString>

namespace BatchWorker {

/// A picture that the job names beside its inputs, such as a logo or a background: cropped and sized, upright, in plain
/// sRGB of its own depth, held in memory. Throws PictureFailure when it cannot be read whole.
Picture ReadJobPicture(const QString& file, const ZTBatchOutputSettings::Crop& crop,
                       const ZTBatchOutputSettings::ImageSize& size, const BatchProtocol::ServerLimits& limits,
                       BatchJob::Warnings& warnings);

} // namespace BatchWorker
