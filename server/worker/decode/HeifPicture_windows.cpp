// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "HeifPicture.h"

#include "FileBytes.h"

#include "server/worker/pixels/CarriedFailure.h"

#include <libheif/heif.h>

#include <QByteArray>

#include <algorithm>
#include <cstring>
#include <memory>
#include <mutex>
#include <vector>

// The imaging library of this system has no decoder of HEVC. So its pixels are decoded by libheif itself.
namespace BatchWorker {

namespace {

using Context = std::unique_ptr<heif_context, decltype(&heif_context_free)>;
using Handle = std::unique_ptr<heif_image_handle, decltype(&heif_image_handle_release)>;
using Image = std::unique_ptr<heif_image, decltype(&heif_image_release)>;

void Check(const heif_error& error)
{
    if (error.code != heif_error_Ok) {
        vips_error("HEIF", "%s", error.code == heif_error_Memory_allocation_error ? "out of memory" : error.message);
        throw vips::VError();
    }
}

/// An open file whose pixels are decoded when the first of them is asked for.
class Decoder
{
public:
    explicit Decoder(int descriptor)
        : file(descriptor)
    {
        heif_context_set_max_decoding_threads(context.get(), 0);
        Check(heif_context_read_from_reader(context.get(), &reader, this, nullptr));
        heif_image_handle* found = nullptr;
        Check(heif_context_get_primary_image_handle(context.get(), &found));
        handle.reset(found);
    }

    int Width() const { return heif_image_handle_get_width(handle.get()); }
    int Height() const { return heif_image_handle_get_height(handle.get()); }
    int Bits() const { return heif_image_handle_get_luma_bits_per_pixel(handle.get()); }
    int Bands() const { return heif_image_handle_has_alpha_channel(handle.get()) != 0 ? 4 : 3; }
    int Pictures() const { return heif_context_get_number_of_top_level_images(context.get()); }

    QByteArray Profile() const
    {
        QByteArray profile(int(heif_image_handle_get_raw_color_profile_size(handle.get())), '\0');
        if (!profile.isEmpty()) {
            Check(heif_image_handle_get_raw_color_profile(handle.get(), profile.data()));
        }
        return profile;
    }

    /// The first block of metadata of a type; empty when the picture has no block of it.
    QByteArray Block(const char* type, const char* contentType) const
    {
        std::vector<heif_item_id> ids(std::size_t(heif_image_handle_get_number_of_metadata_blocks(handle.get(), type)));
        heif_image_handle_get_list_of_metadata_block_IDs(handle.get(), type, ids.data(), int(ids.size()));
        for (const heif_item_id id : ids) {
            if (qstrcmp(heif_image_handle_get_metadata_content_type(handle.get(), id), contentType) == 0) {
                QByteArray block(int(heif_image_handle_get_metadata_size(handle.get(), id)), '\0');
                Check(heif_image_handle_get_metadata(handle.get(), id, block.data()));
                return block;
            }
        }
        return {};
    }

    /// Fills the valid area of `region`. False, with a text of the library, when the pixels cannot be decoded.
    bool Fill(VipsRegion* region)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (!image && !Decode()) {
            return false;
        }
        int lineSize = 0;
        const std::uint8_t* const pixels =
            heif_image_get_plane_readonly(image.get(), heif_channel_interleaved, &lineSize);
        const VipsRect& area = region->valid;
        for (int y = area.top; y < area.top + area.height; ++y) {
            CopyLine(pixels + std::ptrdiff_t(y) * lineSize, area, VIPS_REGION_ADDR(region, area.left, y));
        }
        return true;
    }

private:
    Q_DISABLE_COPY(Decoder)

    static Decoder& Of(void* self) { return *static_cast<Decoder*>(self); }

    static int64_t Position(void* self) { return Of(self).position; }

    static int Read(void* target, std::size_t size, void* self)
    {
        Decoder& decoder = Of(self);
        const bool isWhole = decoder.file.Read(decoder.position, target, qint64(size)) == qint64(size);
        decoder.position += qint64(size);
        return isWhole ? 0 : -1;
    }

    static int Seek(int64_t position, void* self)
    {
        Of(self).position = position;
        return 0;
    }

    static heif_reader_grow_status WaitForSize(int64_t size, void* self)
    {
        return size > Of(self).file.Size() ? heif_reader_grow_status_size_beyond_eof
                                           : heif_reader_grow_status_size_reached;
    }

    bool Decode()
    {
        const bool hasAlpha = Bands() > 3;
        const heif_chroma deep = hasAlpha ? heif_chroma_interleaved_RRGGBBAA_LE : heif_chroma_interleaved_RRGGBB_LE;
        const heif_chroma plain = hasAlpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB;
        heif_image* decoded = nullptr;
        try {
            Check(heif_decode_image(handle.get(), &decoded, heif_colorspace_RGB, Bits() > 8 ? deep : plain, nullptr));
            image.reset(decoded);
            if (heif_image_get_width(decoded, heif_channel_interleaved) != Width() ||
                heif_image_get_height(decoded, heif_channel_interleaved) != Height()) {
                image.reset();
                vips_error("HEIF", "%s", "the decoded picture has another size than its header says");
            }
        } catch (const vips::VError&) {
            image.reset(); // The text is where the library keeps it.
        }
        return image != nullptr;
    }

    // Values of 10 and 12 bits become those of 16, white the largest one.
    void CopyLine(const std::uint8_t* line, const VipsRect& area, VipsPel* target) const
    {
        const std::size_t samples = std::size_t(area.width) * std::size_t(Bands());
        const std::size_t first = std::size_t(area.left) * std::size_t(Bands());
        if (Bits() <= 8) {
            std::memcpy(target, line + first, samples);
            return;
        }
        const unsigned bits = unsigned(Bits());
        const auto* const from = reinterpret_cast<const std::uint16_t*>(line) + first;
        auto* const to = reinterpret_cast<std::uint16_t*>(target);
        std::transform(from, from + samples, to, [bits](std::uint16_t value) {
            const unsigned raised = unsigned(value) << (16 - bits);
            return std::uint16_t(raised | (raised >> bits));
        });
    }

    static constexpr heif_reader reader{1, Position, Read, Seek, WaitForSize};

    FileBytes file;
    qint64 position = 0;
    Context context{heif_context_alloc(), heif_context_free};
    Handle handle{nullptr, heif_image_handle_release};
    std::mutex mutex;
    Image image{nullptr, heif_image_release};
};

int Generate(VipsRegion* region, void*, void* client, void*, gboolean*)
{
    bool isFilled = false;
    const int result =
        ResultOfFilling([client, region, &isFilled] { isFilled = static_cast<Decoder*>(client)->Fill(region); });
    return isFilled ? result : -1;
}

void DeleteDecoder(gpointer decoder)
{
    delete static_cast<Decoder*>(decoder);
}

void SetBlock(VipsImage* image, const char* name, const QByteArray& bytes)
{
    if (!bytes.isEmpty()) {
        vips_image_set_blob_copy(image, name, bytes.constData(), std::size_t(bytes.size()));
    }
}

} // namespace

Picture ReadHeif(int descriptor, int, const BatchProtocol::ServerLimits&, BatchJob::Warnings&)
{
    constexpr int exifOffsetSize = 4; // where the entries begin, before the block itself
    auto decoder = std::make_unique<Decoder>(descriptor);
    VipsImage* const image = vips_image_new();
    const Picture result(image);
    const int width = decoder->Width();
    const int height = decoder->Height();
    const int bands = decoder->Bands();
    const bool isDeep = decoder->Bits() > 8;
    vips_image_set_int(image, VIPS_META_N_PAGES, decoder->Pictures());
    vips_image_set_int(image, VIPS_META_ORIENTATION, 1); // the decoder turns it
    SetBlock(image, VIPS_META_ICC_NAME, decoder->Profile());
    SetBlock(image, VIPS_META_EXIF_NAME, decoder->Block("Exif", "").mid(exifOffsetSize));
    SetBlock(image, VIPS_META_XMP_NAME, decoder->Block("mime", "application/rdf+xml"));
    Decoder* const client = decoder.release();
    g_object_set_data_full(G_OBJECT(image), "decoder", client, DeleteDecoder);
    if (vips_image_pipelinev(image, VIPS_DEMAND_STYLE_ANY, nullptr) != 0) {
        throw vips::VError();
    }
    vips_image_init_fields(image, width, height, bands, isDeep ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR,
                           VIPS_CODING_NONE, isDeep ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB, 1.0, 1.0);
    if (vips_image_generate(image, nullptr, Generate, nullptr, client, nullptr) != 0) {
        throw vips::VError();
    }
    return result;
}

} // namespace BatchWorker
