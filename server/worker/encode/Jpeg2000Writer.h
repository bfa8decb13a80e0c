// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Picture.h"

namespace BatchWorker {

struct Jpeg2000Settings
{
    int quality = 0; ///< 1 to 100
    bool isLossless = false;
    bool isSubsampled = false; ///< colours have half as many columns and lines; only for three channels
};

/// Writes `picture`, grey or RGB with or without alpha, of 8 or 16 bits, to `target`, which can seek. Metadata and the
/// profile are for the caller to add. Throws PictureFailure when it needs more memory than there is, and vips::VError.
void WriteJpeg2000(const Picture& picture, const Jpeg2000Settings& settings, const vips::VTarget& target);

} // namespace BatchWorker
