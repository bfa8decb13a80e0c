#include "EncoderOptions.h"
#include "FormatEncoder.h"

namespace BatchWorker {

namespace {

void SetArguments(vips::VOption* arguments, const QJsonObject& options, const Picture& picture)
{
    // The library ends the process over anything but three bands to be subsampled.
    const bool isColourOnly = picture.bands() == 3;
    arguments->set("Q", IntegerOption(options, "quality"))
        ->set("lossless", TruthOption(options, "lossless"))
        ->set("subsample_mode", isColourOnly ? Subsampling(options) : VIPS_FOREIGN_SUBSAMPLE_OFF);
}

} // namespace

FormatEncoder Jpeg2000Encoder()
{
    return {"jp2ksave_target", SetArguments};
}

} // namespace BatchWorker
