#pragma once

#include "server/worker/pixels/Picture.h"

namespace BatchWorker {

/// How a picture is coded as HEIF.
struct HeifSettings
{
    int quality = 0; ///< 1 to 100
    bool isLossless = false;
    bool keepsFineColour = false; ///< colours have as many pixels as brightness
    int bits = 8;                 ///< of a channel in the file, 8 to 12
    const char* preset = "";      ///< of the encoder: which of its searches it makes
};

/// Writes `picture`, RGB with or without alpha, its profile and its blocks of EXIF and XMP to `target`. Throws
/// vips::VError.
void WriteHeif(const Picture& picture, const HeifSettings& settings, const vips::VTarget& target);

} // namespace BatchWorker
