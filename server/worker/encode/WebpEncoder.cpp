// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EncoderOptions.h"
#include "FormatEncoder.h"

namespace BatchWorker {

namespace {

void SetArguments(vips::VOption* arguments, const QJsonObject& options, const Picture&)
{
    arguments->set("Q", IntegerOption(options, "quality"))
        ->set("lossless", TruthOption(options, "lossless"))
        ->set("effort", Effort(options, 0, 6));
}

} // namespace

FormatEncoder WebpEncoder()
{
    return {"webpsave_target", SetArguments};
}

} // namespace BatchWorker
