// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JpegXlFile.h"

#include "job/values/Phrase.h"

#include "DecoderWarnings.h"
#include "JpegXlDecoder.h"

#include "server/worker/pixels/CarriedFailure.h"
#include "server/worker/pixels/FileCalls.h"
#include "server/worker/pixels/FreeMemory.h"
#include "server/worker/pixels/PictureFailure.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <mutex>
#include <new>
#include <unistd.h>
#include <utility>
#include <vector>

using namespace BatchJob;
using namespace BatchProtocol;

namespace BatchWorker {

namespace {

/// An open file whose pixels are decoded when the first of them is asked for.
class JpegXlFile
{
public:
    explicit JpegXlFile(int original)
        : descriptor(DuplicateOf(original))
        , decoder([this](qint64 offset, void* target, qint64 length) { return Read(offset, target, length); })
        , header(decoder.ReadHeader())
    {
    }
    ~JpegXlFile() { close(descriptor); }

    const JpegXlHeader& Header() const { return header; }
    int Frames() { return header.isAnimation ? decoder.CountFrames() : 1; }

    /// Fills the valid area of `region`.
    void Fill(VipsRegion* region)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (pixels.empty()) {
            RequireMemory();
            pixels = decoder.ReadPixels(header);
        }
        const VipsRect& area = region->valid;
        const std::size_t pixelSize = VIPS_REGION_SIZEOF_PEL(region);
        for (int y = area.top; y < area.top + area.height; ++y) {
            const std::size_t place = std::size_t(y) * std::size_t(header.size.width()) + std::size_t(area.left);
            std::memcpy(VIPS_REGION_ADDR(region, area.left, y), &pixels[place * pixelSize],
                        std::size_t(area.width) * pixelSize);
        }
    }

private:
    Q_DISABLE_COPY(JpegXlFile)

    qint64 Read(qint64 offset, void* target, qint64 length) const
    {
        qint64 done = 0;
        while (done < length) {
            const qint64 count = ReadAt(descriptor, static_cast<char*>(target) + done, length - done, offset + done);
            if (count <= 0) {
                break;
            }
            done += count;
        }
        return done;
    }

    // The decoder ends the process where memory is short.
    void RequireMemory() const
    {
        constexpr qint64 ofDecoder = 6; // bytes for each value, seen with libjxl 0.7, beside those of the result
        const qint64 values = qint64(header.size.width()) * header.size.height() * header.Bands();
        if (values * (ofDecoder + header.bits / 8) > FreeMemory()) {
            throw TooLarge(Phrase::English("decoding %1 x %2 pixels takes more than a worker may use")
                               .arg(header.size.width())
                               .arg(header.size.height()));
        }
    }

    int descriptor;
    JpegXlDecoder decoder;
    JpegXlHeader header;
    std::mutex mutex;
    std::vector<std::uint8_t> pixels;
};

int Generate(VipsRegion* region, void*, void* client, void*, gboolean*)
{
    return ResultOfFilling([client, region] { static_cast<JpegXlFile*>(client)->Fill(region); });
}

void DeleteFile(gpointer file)
{
    delete static_cast<JpegXlFile*>(file);
}

VipsInterpretation KindOf(const JpegXlHeader& header)
{
    if (header.black) {
        return VIPS_INTERPRETATION_CMYK;
    }
    if (header.isGrey) {
        return header.bits == 16 ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_B_W;
    }
    return header.bits == 16 ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB;
}

} // namespace

Picture ReadJpegXl(int descriptor, int, const ServerLimits&, Warnings& warnings)
{
    auto file = std::make_unique<JpegXlFile>(descriptor);
    const JpegXlHeader header = file->Header();
    if (header.hasDepth) {
        WarnOnce(warnings, WarningKind::DepthLost, Phrase::English("it has a depth map, which the result lacks"));
    }
    VipsImage* const image = vips_image_new();
    const Picture result(image);
    vips_image_set_int(image, VIPS_META_N_PAGES, file->Frames());
    vips_image_set_int(image, VIPS_META_ORIENTATION, header.orientation);
    JpegXlFile* const client = file.release();
    g_object_set_data_full(G_OBJECT(image), "file", client, DeleteFile);
    if (vips_image_pipelinev(image, VIPS_DEMAND_STYLE_ANY, nullptr) != 0) {
        throw vips::VError();
    }
    vips_image_init_fields(image, header.size.width(), header.size.height(), header.Bands(),
                           header.bits == 16 ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR, VIPS_CODING_NONE, KindOf(header),
                           1.0, 1.0);
    if (vips_image_generate(image, nullptr, Generate, nullptr, client, nullptr) != 0) {
        throw vips::VError();
    }
    return WithColoursOfFile(result, header.colours, warnings);
}

} // namespace BatchWorker
