// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Warning.h"
#include "server/protocol/ServerLimits.h"
#include "server/worker/pixels/Picture.h"

namespace BatchWorker {

/// Reads HEIF and AVIF, in 8 or 16 bits a channel and upright, see Loader::read.
Picture ReadHeif(int descriptor, int shrink, const BatchProtocol::ServerLimits& limits, BatchJob::Warnings& warnings);

} // namespace BatchWorker
