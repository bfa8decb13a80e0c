// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EncoderOptions.h"
#include "FormatEncoder.h"
#include "Jpeg2000Writer.h"

/// The library's own operation is not there on Windows, and says of differences of colour that they are RGB.
namespace BatchWorker {

namespace {

// Pictures with alpha or an odd side keep all their colours.
bool CanSubsample(const Picture& picture)
{
    return picture.bands() == 3 && picture.width() % 2 == 0 && picture.height() % 2 == 0;
}

void Write(const Picture& picture, const QJsonObject& options, const QByteArray&, const vips::VTarget& target)
{
    Jpeg2000Settings settings;
    settings.quality = IntegerOption(options, "quality");
    settings.isLossless = TruthOption(options, "lossless");
    settings.isSubsampled = CanSubsample(picture) && Subsampling(options) == VIPS_FOREIGN_SUBSAMPLE_ON;
    WriteJpeg2000(picture, settings, target);
}

} // namespace

FormatEncoder Jpeg2000Encoder()
{
    FormatEncoder encoder;
    encoder.write = Write;
    return encoder;
}

} // namespace BatchWorker
