// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Warning.h"
#include "server/protocol/ServerLimits.h"
#include "server/worker/pixels/Picture.h"

namespace BatchWorker {

/// The first page of the TIFF file of `descriptor`, read in strips and tiles while pixels flow. It is what Loader::read
/// describes.
///
/// The values are those of TiffSamples; Lab becomes sRGB of 16 bits. The metadata has the orientation, the profile,
/// IPTC, XMP and the number of directories.
Picture ReadTiff(int descriptor, int shrink, const BatchProtocol::ServerLimits& limits, BatchJob::Warnings& warnings);

} // namespace BatchWorker
