// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Warning.h"
#include "server/protocol/ServerLimits.h"
#include "server/worker/pixels/Picture.h"

namespace BatchWorker {

/// Reads a JPEG 2000 file, with boxes or without, by OpenJPEG: see Loader::read. The pixels may be read in any order;
/// rows of tiles are decoded when their pixels are asked for. The picture is of whole size whatever `shrink` says.
Picture ReadJpeg2000(int descriptor, int shrink, const BatchProtocol::ServerLimits& limits,
                     BatchJob::Warnings& warnings);

} // namespace BatchWorker
