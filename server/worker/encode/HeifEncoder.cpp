#include "EncoderOptions.h"
#include "FormatEncoder.h"
#include "HeifWriter.h"

#include "server/worker/pixels/FreeMemory.h"
#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/PixelForms.h"

#include <QThread>

#include <array>

/// The library's own operation cannot say how hard the encoder tries, which takes ten times as long as it need.
namespace BatchWorker {

namespace {

// What x265 calls its efforts; "placebo" is left out, which takes far longer for nothing that can be seen.
constexpr std::array presets{"ultrafast", "superfast", "veryfast", "faster", "fast",
                             "medium",    "slow",      "slow",     "slower", "veryslow"};

// What the encoder holds of a pixel at its peak, as measured with x265 3.5, and a little more.
double BytesOfPixel(const HeifSettings& settings, bool hasAlpha)
{
    const double ofColours = settings.keepsFineColour ? 25 : 18;
    const double ofLossless = settings.isLossless ? 10 : 0;
    const double ofAlpha = hasAlpha ? 4 : 0;
    const double deepFactor = settings.bits > 8 ? 1.6 : 1;
    return (ofColours + ofLossless + ofAlpha) * deepFactor;
}

// The encoder ends the process where memory is short.
void CheckMemory(const Picture& picture, const HeifSettings& settings)
{
    constexpr qint64 mebibyte = qint64(1) << 20;
    constexpr qint64 ofPipeline = 48 * mebibyte;
    constexpr qint64 ofThread = 10 * mebibyte; // its stack, and what it works on
    const qint64 available = FreeMemory() - ofPipeline - QThread::idealThreadCount() * ofThread;
    const qint64 pixels = qint64(picture.width()) * picture.height();
    if (double(pixels) * BytesOfPixel(settings, picture.bands() > 3) > double(available)) {
        throw TooLarge(QStringLiteral("writing %1 x %2 pixels as HEIF needs more memory than a worker may use")
                           .arg(picture.width())
                           .arg(picture.height()));
    }
}

void Write(const Picture& picture, const QJsonObject& options, const QByteArray&, const vips::VTarget& target)
{
    constexpr int mostBits = 12;
    HeifSettings settings;
    settings.quality = IntegerOption(options, "quality");
    settings.isLossless = TruthOption(options, "lossless");
    settings.keepsFineColour = Subsampling(options) == VIPS_FOREIGN_SUBSAMPLE_OFF;
    settings.bits = HasSixteenBits(picture) ? options[QLatin1String("bitDepth")].toInt(mostBits) : 8;
    settings.preset = presets.at(std::size_t(IntegerOption(options, "effort")));
    CheckMemory(picture, settings);
    WriteHeif(picture, settings, target);
}

} // namespace

FormatEncoder HeifEncoder()
{
    FormatEncoder encoder;
    encoder.mayCrashWhenDeep = true;
    encoder.write = Write;
    return encoder;
}

} // namespace BatchWorker
