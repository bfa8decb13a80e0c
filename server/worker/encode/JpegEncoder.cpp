// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EncoderOptions.h"
#include "FormatEncoder.h"

namespace BatchWorker {

namespace {

void SetArguments(vips::VOption* arguments, const QJsonObject& options, const Picture&)
{
    arguments->set("Q", IntegerOption(options, "quality"))
        ->set("interlace", TruthOption(options, "progressive"))
        ->set("subsample_mode", Subsampling(options));
}

} // namespace

FormatEncoder JpegEncoder()
{
    return {"jpegsave_target", SetArguments};
}

} // namespace BatchWorker
