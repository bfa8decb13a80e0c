// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Jpeg2000File.h"

#include "job/values/Phrase.h"

#include "DecoderWarnings.h"
#include "Jpeg2000Boxes.h"
#include "Jpeg2000Channels.h"
#include "Jpeg2000Codestream.h"
#include "Jpeg2000Decoder.h"
#include "Jpeg2000Rows.h"

#include "server/worker/pixels/CarriedFailure.h"
#include "server/worker/pixels/EmbeddedProfile.h"
#include "server/worker/pixels/GeneratedPicture.h"
#include "server/worker/pixels/PictureFailure.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <list>
#include <memory>
#include <mutex>
#include <new>
#include <vector>

using namespace BatchJob;
using namespace BatchProtocol;

namespace BatchWorker {

namespace {

/// An open file whose pixels are decoded as they are asked for.
class Jpeg2000File
{
public:
    Jpeg2000File(int descriptor, Warnings& warnings)
        : bytes(descriptor)
        , boxes(ReadJpeg2000Boxes(bytes))
        , codestream(bytes, boxes.codestreamBegin, boxes.codestreamEnd)
        , channels(ChannelsOf(boxes, codestream, warnings))
        , rows(codestream, channels, [this](int tileRow) -> const Jpeg2000Band& { return Band(tileRow); })
        , warnings(warnings)
    {
        if (boxes.codestreams > 1) {
            WarnOnce(warnings, WarningKind::OtherPages,
                     Phrase::English("it has %1 pages; only the first is used").arg(boxes.codestreams));
        }
        if (codestream.LacksEnd()) {
            WarnOnce(warnings, WarningKind::Incomplete,
                     Phrase::English("the file lacks its last bytes, but all of the picture is there"));
        }
    }

    const Jpeg2000Codestream& Codestream() const { return codestream; }
    const QByteArray& Profile() const { return channels.profile; }

    PictureShape Shape() const
    {
        const bool isDeep = channels.IsDeep();
        const VipsInterpretation grey = isDeep ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_B_W;
        const VipsInterpretation rgb = isDeep ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB;
        const int colours = channels.ColourCount();
        return {rows.Size().width(), rows.Size().height(), channels.channels.size(),
                isDeep ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR,
                colours == 1   ? grey
                : colours == 4 ? VIPS_INTERPRETATION_CMYK
                               : rgb};
    }

    /// Fills the valid area of `region`.
    void Fill(VipsRegion* region)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (channels.IsDeep()) {
            FillWith<std::uint16_t>(region);
        } else {
            FillWith<std::uint8_t>(region);
        }
    }

private:
    template<typename Value>
    void FillWith(VipsRegion* region)
    {
        const VipsRect& area = region->valid;
        const std::size_t pixel = std::size_t(channels.channels.size()) * sizeof(Value);
        for (int y = area.top; y < area.top + area.height; ++y) {
            std::memcpy(VIPS_REGION_ADDR(region, area.left, y), Line<Value>(y) + std::size_t(area.left) * pixel,
                        std::size_t(area.width) * pixel);
        }
    }

    // Lines are kept, because the library asks for one line in several pieces, and for some lines more than once.
    template<typename Value>
    const std::uint8_t* Line(int y)
    {
        const std::size_t size =
            std::size_t(rows.Size().width()) * std::size_t(channels.channels.size()) * sizeof(Value);
        if (lines.empty()) {
            constexpr std::size_t most = 512;
            constexpr std::size_t least = 16;
            constexpr std::size_t bytes = std::size_t(16) << 20;
            lines.resize(std::clamp(bytes / size, least, most));
        }
        KeptLine& line = lines[std::size_t(y) % lines.size()];
        if (line.y != y) {
            line.y = -1;
            line.values.resize(size);
            rows.Write(y, std::numeric_limits<Value>::max(), reinterpret_cast<Value*>(line.values.data()));
            line.y = y;
        }
        return line.values.data();
    }

    // Two are kept, because pixels between samples of two tile rows need both.
    const Jpeg2000Band& Band(int tileRow)
    {
        const int first = tileRow - tileRow % codestream.RowsAtOnce();
        const auto found = std::find_if(bands.begin(), bands.end(),
                                        [first](const Jpeg2000Band& band) { return band.firstRow == first; });
        if (found != bands.end()) {
            bands.splice(bands.begin(), bands, found);
            return bands.front();
        }
        while (bands.size() > 1) {
            bands.pop_back();
        }
        bands.push_front(DecodeBand(bytes, codestream, first, warnings));
        return bands.front();
    }

    struct KeptLine
    {
        int y = -1;
        std::vector<std::uint8_t> values;
    };

    FileBytes bytes;
    Jpeg2000Boxes boxes;
    Jpeg2000Codestream codestream;
    Jpeg2000Channels channels;
    Jpeg2000Rows rows;
    Warnings& warnings;
    std::mutex mutex;
    std::list<Jpeg2000Band> bands; ///< the last used in front
    std::vector<KeptLine> lines;   ///< by the number of the line, as far as there are places
};

int Generate(VipsRegion* region, void*, void*, void* client, gboolean*)
{
    return ResultOfFilling([client, region] { static_cast<Jpeg2000File*>(client)->Fill(region); });
}

void DeleteFile(gpointer file)
{
    delete static_cast<Jpeg2000File*>(file);
}

void RequireMemory(const Jpeg2000Codestream& codestream, const ServerLimits& limits)
{
    constexpr qint64 ofOtherStages = qint64(128) << 20;
    constexpr int mebibyte = 20;
    const Jpeg2000Memory memory = MemoryFor(codestream);
    if (memory.all + ofOtherStages > limits.workerMemory || memory.band > std::numeric_limits<quint32>::max()) {
        const bool isOneTile = codestream.TileColumns() * codestream.TileRows() == 1;
        throw TooLarge(
            Phrase::English("decoding takes %1 MiB of memory%2; a worker may use %3 MiB")
                .arg((memory.all + ofOtherStages) >> mebibyte)
                .arg(isOneTile ? Phrase::English(", because the picture is not divided into tiles") : QString())
                .arg(limits.workerMemory >> mebibyte));
    }
}

} // namespace

Picture ReadJpeg2000(int descriptor, int, const ServerLimits& limits, Warnings& warnings)
{
    auto file = std::make_unique<Jpeg2000File>(descriptor, warnings);
    RequireMemory(file->Codestream(), limits);
    const PictureShape shape = file->Shape();
    const QByteArray profile = file->Profile();
    VipsImage* image = vips_image_new();
    const Picture result(image);
    Jpeg2000File* const client = file.release();
    g_object_set_data_full(G_OBJECT(image), "file", client, DeleteFile);
    if (vips_image_pipelinev(image, VIPS_DEMAND_STYLE_THINSTRIP, nullptr) != 0) {
        throw vips::VError();
    }
    vips_image_init_fields(image, shape.width, shape.height, shape.bands, shape.format, VIPS_CODING_NONE,
                           shape.interpretation, 1.0, 1.0);
    if (vips_image_generate(image, nullptr, Generate, nullptr, nullptr, client) != 0) {
        throw vips::VError();
    }
    return WithProfile(result, profile);
}

} // namespace BatchWorker
