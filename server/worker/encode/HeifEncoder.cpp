#include "EncoderOptions.h"
#include "FormatEncoder.h"

#include "server/worker/pixels/PixelForms.h"

/// HEIF and AVIF are one container with two ways to pack pixels.
namespace BatchWorker {

namespace {

void SetContainerArguments(vips::VOption* arguments, const QJsonObject& options, const Picture& picture)
{
    constexpr int mostBits = 12;
    const int deepBits = options[QLatin1String("bitDepth")].toInt(mostBits);
    arguments->set("Q", IntegerOption(options, "quality"))
        ->set("lossless", TruthOption(options, "lossless"))
        ->set("bitdepth", HasSixteenBits(picture) ? deepBits : 8)
        ->set("subsample_mode", Subsampling(options));
}

void SetHeifArguments(vips::VOption* arguments, const QJsonObject& options, const Picture& picture)
{
    SetContainerArguments(arguments, options, picture);
    arguments->set("compression", VIPS_FOREIGN_HEIF_COMPRESSION_HEVC);
}

void SetAvifArguments(vips::VOption* arguments, const QJsonObject& options, const Picture& picture)
{
    SetContainerArguments(arguments, options, picture);
    arguments->set("compression", VIPS_FOREIGN_HEIF_COMPRESSION_AV1)->set("effort", Effort(options, 0, 9));
}

} // namespace

FormatEncoder HeifEncoder()
{
    return {"heifsave_target", SetHeifArguments, true};
}

FormatEncoder AvifEncoder()
{
    return {"heifsave_target", SetAvifArguments, true};
}

} // namespace BatchWorker
