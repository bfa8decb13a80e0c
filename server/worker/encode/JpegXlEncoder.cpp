#include "EncoderOptions.h"
#include "FormatEncoder.h"

namespace BatchWorker {

namespace {

void SetArguments(vips::VOption* arguments, const QJsonObject& options, const Picture&)
{
    arguments->set("Q", IntegerOption(options, "quality"))
        ->set("lossless", TruthOption(options, "lossless"))
        ->set("effort", Effort(options, 3, 9));
}

} // namespace

FormatEncoder JpegXlEncoder()
{
    return {"jxlsave_target", SetArguments};
}

} // namespace BatchWorker
