#include "EncoderOptions.h"
#include "FormatEncoder.h"

namespace BatchWorker {

namespace {

void SetArguments(vips::VOption* arguments, const QJsonObject& options, const Picture&)
{
    arguments->set("compression", IntegerOption(options, "compressionLevel"))
        ->set("interlace", TruthOption(options, "progressive"));
}

} // namespace

FormatEncoder PngEncoder()
{
    return {"pngsave_target", SetArguments};
}

} // namespace BatchWorker
