// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/formats/FormatSchema.h"
#include "server/worker/decode/PictureSource.h"
#include "server/worker/pixels/PictureFailure.h"

namespace BatchWorker {

/// What was to blame for `problem`, which the library reported while pixels flowed from `source` to the file of
/// `format`: all stages run at that time. The source is read once more for it, which tells whether it was damaged.
/// `isProcessed` says whether anything but crop and size happened on the way.
PictureFailure CauseOf(const vips::VError& problem, PictureSource& source, bool isProcessed,
                       const BatchJob::FormatSchema& format);

} // namespace BatchWorker
