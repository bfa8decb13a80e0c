// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EncoderOptions.h"
#include "FormatEncoder.h"

namespace BatchWorker {

namespace {

void SetArguments(vips::VOption* arguments, const QJsonObject& options, const Picture&)
{
    arguments->set("effort", Effort(options, 1, 10));
}

} // namespace

FormatEncoder GifEncoder()
{
    return {"gifsave_target", SetArguments};
}

} // namespace BatchWorker
