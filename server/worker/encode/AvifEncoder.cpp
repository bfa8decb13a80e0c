#include "EncoderOptions.h"
#include "FormatEncoder.h"

#include "server/worker/pixels/PixelForms.h"

namespace BatchWorker {

namespace {

void SetArguments(vips::VOption* arguments, const QJsonObject& options, const Picture& picture)
{
    constexpr int mostBits = 12;
    const int deepBits = options[QLatin1String("bitDepth")].toInt(mostBits);
    arguments->set("compression", VIPS_FOREIGN_HEIF_COMPRESSION_AV1)
        ->set("Q", IntegerOption(options, "quality"))
        ->set("lossless", TruthOption(options, "lossless"))
        ->set("effort", Effort(options, 0, 9))
        ->set("bitdepth", HasSixteenBits(picture) ? deepBits : 8)
        ->set("subsample_mode", Subsampling(options));
}

} // namespace

FormatEncoder AvifEncoder()
{
    return {"heifsave_target", SetArguments, true};
}

} // namespace BatchWorker
