// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Picture.h"

namespace BatchWorker {

struct JpegSettings
{
    int quality = 0;
    bool isProgressive = false;
    bool keepsFineColour = false; ///< colours are not halved
};

/// Writes `picture`, grey, RGB or CMYK of 8 bits, with its resolution, profile and metadata as they are. Throws
/// vips::VError.
void WriteJpeg(const Picture& picture, const JpegSettings& settings, const vips::VTarget& target);

} // namespace BatchWorker
