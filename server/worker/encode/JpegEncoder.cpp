// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EncoderOptions.h"
#include "FormatEncoder.h"
#include "JpegWriter.h"

/// The library's own operation makes EXIF up, and hands pixels from thread to thread, which costs the other worker's
/// time.
namespace BatchWorker {

namespace {

void Write(const Picture& picture, const QJsonObject& options, const QByteArray&, const vips::VTarget& target)
{
    JpegSettings settings;
    settings.quality = IntegerOption(options, "quality");
    settings.isProgressive = TruthOption(options, "progressive");
    settings.keepsFineColour = Subsampling(options) == VIPS_FOREIGN_SUBSAMPLE_OFF;
    WriteJpeg(picture, settings, target);
}

} // namespace

FormatEncoder JpegEncoder()
{
    FormatEncoder encoder;
    encoder.write = Write;
    return encoder;
}

} // namespace BatchWorker
