// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Warning.h"
#include "server/protocol/ServerLimits.h"
#include "server/worker/pixels/Picture.h"

namespace BatchWorker {

/// The picture of the JPEG file of `descriptor`. It is what Loader::read describes.
///
/// A file without its end is read, with a warning, when all its pixels are there in all their detail. Else it throws
/// DamagedFile, which says how much is there.
Picture ReadJpeg(int descriptor, int shrink, const BatchProtocol::ServerLimits& limits, BatchJob::Warnings& warnings);

} // namespace BatchWorker
