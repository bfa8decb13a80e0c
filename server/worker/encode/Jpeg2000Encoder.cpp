// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EncoderOptions.h"
#include "FormatEncoder.h"

namespace BatchWorker {

namespace {

// The library ends the process over anything but three bands, and writes noise into the last column or line of colours
// where a side is odd.
bool CanSubsample(const Picture& picture)
{
    return picture.bands() == 3 && picture.width() % 2 == 0 && picture.height() % 2 == 0;
}

void SetArguments(vips::VOption* arguments, const QJsonObject& options, const Picture& picture)
{
    arguments->set("Q", IntegerOption(options, "quality"))
        ->set("lossless", TruthOption(options, "lossless"))
        ->set("subsample_mode", CanSubsample(picture) ? Subsampling(options) : VIPS_FOREIGN_SUBSAMPLE_OFF);
}

} // namespace

FormatEncoder Jpeg2000Encoder()
{
    return {"jp2ksave_target", SetArguments};
}

} // namespace BatchWorker
