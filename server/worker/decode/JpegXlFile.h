// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Warning.h"
#include "server/protocol/ServerLimits.h"
#include "server/worker/pixels/Picture.h"

namespace BatchWorker {

/// Reads JPEG XL by the codec's own interface, as Loader::read. CMYK comes as inks, spot colours are laid over the
/// others, alpha is straight, and layers form one picture. Of an animation the first picture is used; "n-pages" says
/// how many there are.
Picture ReadJpegXl(int descriptor, int shrink, const BatchProtocol::ServerLimits& limits, BatchJob::Warnings& warnings);

} // namespace BatchWorker
