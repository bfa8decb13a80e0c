// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "HeifWriter.h"

#include "job/values/Phrase.h"

#include "EncoderOptions.h"
#include "RowReader.h"

#include "server/worker/pixels/EmbeddedBlock.h"
#include "server/worker/pixels/EmbeddedProfile.h"
#include "server/worker/pixels/FreeMemory.h"
#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/PixelForms.h"

#include <QThread>

#include <array>
#include <memory>
#include <vector>

namespace BatchWorker {

namespace {

using Context = std::unique_ptr<heif_context, decltype(&heif_context_free)>;
using Encoder = std::unique_ptr<heif_encoder, decltype(&heif_encoder_release)>;
using Image = std::unique_ptr<heif_image, decltype(&heif_image_release)>;
using Handle = std::unique_ptr<heif_image_handle, decltype(&heif_image_handle_release)>;

void Check(const heif_error& error)
{
    if (error.code != heif_error_Ok) {
        vips_error("HEIF", "%s", error.code == heif_error_Memory_allocation_error ? "out of memory" : error.message);
        throw vips::VError();
    }
}

double BytesOfPixel(const HeifSettings& settings, bool hasAlpha)
{
    const EncoderMemory& memory = settings.memory;
    const double ofColours = settings.keepsFineColour ? memory.fineColours : memory.coarseColours;
    const double ofLossless = settings.isLossless ? memory.lossless : 0;
    const double ofAlpha = hasAlpha ? memory.alpha : 0;
    const double deepFactor = settings.bits > 8 ? 1.6 : 1;
    return (ofColours + ofLossless + ofAlpha) * deepFactor;
}

void CheckMemory(const Picture& picture, const HeifSettings& settings)
{
    constexpr qint64 mebibyte = qint64(1) << 20;
    constexpr qint64 ofPipeline = 48 * mebibyte;
    constexpr qint64 ofThread = 10 * mebibyte; // its stack, and what it works on
    const qint64 available = FreeMemory() - ofPipeline - QThread::idealThreadCount() * ofThread;
    const qint64 pixels = qint64(picture.width()) * picture.height();
    if (double(pixels) * BytesOfPixel(settings, picture.bands() > 3) > double(available)) {
        throw TooLarge(BatchJob::Phrase::English("writing %1 x %2 pixels as %3 needs more memory than a worker may use")
                           .arg(picture.width())
                           .arg(picture.height())
                           .arg(QLatin1String(settings.formatName)));
    }
}

void SetParameter(heif_encoder* encoder, const QByteArray& name, const QByteArray& value)
{
    const heif_error error = heif_encoder_set_parameter(encoder, name.constData(), value.constData());
    if (error.subcode != heif_suberror_Unsupported_parameter) {
        Check(error);
    }
}

Encoder NewEncoder(heif_context* context, const HeifSettings& settings)
{
    heif_encoder* found = nullptr;
    Check(heif_context_get_encoder_for_format(context, settings.compression, &found));
    Encoder encoder(found, heif_encoder_release);
    Check(heif_encoder_set_lossy_quality(found, settings.quality));
    Check(heif_encoder_set_lossless(found, settings.isLossless ? 1 : 0));
    Check(heif_encoder_set_parameter_string(found, "chroma", settings.keepsFineColour ? "444" : "420"));
    for (const auto& [name, value] : settings.parameters) {
        SetParameter(found, name, value);
    }
    return encoder;
}

/// The channels of a picture that is coded, each by itself.
class Planes
{
public:
    Planes(const Picture& picture, int bits)
        : bands(picture.bands())
        , width(picture.width())
        , bits(bits)
    {
        heif_image* created = nullptr;
        Check(heif_image_create(width, picture.height(), heif_colorspace_RGB, heif_chroma_444, &created));
        image.reset(created);
        constexpr std::array channels{heif_channel_R, heif_channel_G, heif_channel_B, heif_channel_Alpha};
        for (int band = 0; band < bands; ++band) {
            const heif_channel channel = channels.at(std::size_t(band));
            Check(heif_image_add_plane(created, channel, width, picture.height(), bits));
            Plane plane;
            plane.samples = heif_image_get_plane(created, channel, &plane.lineSize);
            planes.push_back(plane);
        }
    }

    heif_image* Get() const { return image.get(); }

    /// `samples` have 8 bits.
    void SetRow(int row, const std::uint8_t* samples)
    {
        Spread<std::uint8_t>(row, samples, [](std::uint8_t sample) { return sample; });
    }

    /// `samples` have 16 bits; they are rounded to those of the file.
    void SetDeepRow(int row, const std::uint8_t* samples)
    {
        constexpr std::uint32_t mostOfPicture = 65535;
        const std::uint32_t most = (1U << unsigned(bits)) - 1;
        Spread<std::uint16_t>(row, samples, [most](std::uint16_t sample) {
            return std::uint16_t((sample * most + mostOfPicture / 2) / mostOfPicture);
        });
    }

private:
    struct Plane
    {
        std::uint8_t* samples = nullptr;
        int lineSize = 0;
    };

    template<typename Sample, typename Change>
    void Spread(int row, const std::uint8_t* samples, const Change& change)
    {
        for (int band = 0; band < bands; ++band) {
            const Plane& plane = planes[std::size_t(band)];
            const auto* from = reinterpret_cast<const Sample*>(samples) + band;
            auto* to = reinterpret_cast<Sample*>(plane.samples + std::ptrdiff_t(row) * plane.lineSize);
            for (int x = 0; x < width; ++x) {
                to[x] = change(from[std::ptrdiff_t(x) * bands]);
            }
        }
    }

    int bands;
    int width;
    int bits;
    Image image{nullptr, heif_image_release};
    std::vector<Plane> planes;
};

Planes PlanesOf(const Picture& picture, int bits)
{
    Planes planes(picture, bits);
    RowReader reader(picture);
    if (HasSixteenBits(picture)) {
        reader.Next(picture.height(), [&](int row, const std::uint8_t* line) { planes.SetDeepRow(row, line); });
    } else {
        reader.Next(picture.height(), [&](int row, const std::uint8_t* line) { planes.SetRow(row, line); });
    }
    return planes;
}

Handle Coded(heif_context* context, const Picture& picture, const HeifSettings& settings)
{
    const Encoder encoder = NewEncoder(context, settings);
    const Planes planes = PlanesOf(picture, settings.bits);
    const QByteArray profile = ProfileOf(picture);
    if (!profile.isEmpty()) {
        Check(heif_image_set_raw_color_profile(planes.Get(), "prof", profile.constData(), std::size_t(profile.size())));
    }
    heif_image_handle* coded = nullptr;
    Check(heif_context_encode_image(context, planes.Get(), encoder.get(), nullptr, &coded));
    return {coded, heif_image_handle_release};
}

heif_error PassOn(heif_context*, const void* bytes, std::size_t size, void* target)
{
    if (vips_target_write(static_cast<VipsTarget*>(target), bytes, size) == 0) {
        return {heif_error_Ok, heif_suberror_Unspecified, ""};
    }
    return {heif_error_Encoding_error, heif_suberror_Cannot_write_output_data, "the file cannot be written"};
}

} // namespace

HeifSettings HeifSettingsOf(const QJsonObject& options, const Picture& picture)
{
    constexpr int mostBits = 12;
    HeifSettings settings;
    settings.quality = IntegerOption(options, "quality");
    settings.isLossless = TruthOption(options, "lossless");
    settings.keepsFineColour = Subsampling(options) == VIPS_FOREIGN_SUBSAMPLE_OFF;
    settings.bits = HasSixteenBits(picture) ? options[QLatin1String("bitDepth")].toInt(mostBits) : 8;
    return settings;
}

void WriteHeif(const Picture& picture, const HeifSettings& settings, const vips::VTarget& target)
{
    CheckMemory(picture, settings);
    const Context context(heif_context_alloc(), heif_context_free);
    const Handle coded = Coded(context.get(), picture, settings);
    const QByteArray exif = BlockOf(picture, VIPS_META_EXIF_NAME);
    if (!exif.isEmpty()) {
        Check(heif_context_add_exif_metadata(context.get(), coded.get(), exif.constData(), exif.size()));
    }
    const QByteArray xmp = BlockOf(picture, VIPS_META_XMP_NAME);
    if (!xmp.isEmpty()) {
        Check(heif_context_add_XMP_metadata(context.get(), coded.get(), xmp.constData(), xmp.size()));
    }
    constexpr int writerVersion = 1;
    heif_writer writer{writerVersion, PassOn};
    Check(heif_context_write(context.get(), &writer, target.get_target()));
    if (vips_target_end(target.get_target()) != 0) {
        throw vips::VError();
    }
}

} // namespace BatchWorker
