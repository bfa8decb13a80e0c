// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Jpeg2000Decoder.h"

#include "job/values/Phrase.h"

#include "DecoderWarnings.h"
#include "Jpeg2000Stream.h"

#include "server/worker/pixels/PictureFailure.h"

#include <openjpeg.h>

#include <algorithm>
#include <cstring>
#include <memory>

using namespace BatchJob;

namespace BatchWorker {

namespace {

using Area = Jpeg2000Codestream::Area;

struct CodecDeleter
{
    void operator()(opj_codec_t* codec) const { opj_destroy_codec(codec); }
};

struct StreamDeleter
{
    void operator()(opj_stream_t* stream) const { opj_stream_destroy(stream); }
};

struct ImageDeleter
{
    void operator()(opj_image_t* image) const { opj_image_destroy(image); }
};

// As the decoder hands them over.
int BytesOfSample(int bits)
{
    return bits <= 8 ? 1 : bits <= 16 ? 2 : 4;
}

/// What the decoder says while it works.
struct DecoderMessages
{
    QStringList errors;
    QStringList warnings;
};

void Note(QStringList& messages, const char* message)
{
    constexpr int most = 3;
    const QString text = QString::fromLocal8Bit(message).trimmed();
    if (messages.size() < most && !messages.contains(text)) {
        messages.append(text);
    }
}

// Said of files that break a rule, but not of lost pixels.
bool IsHarmless(const QString& warning)
{
    return warning.startsWith(QLatin1String("Non conformant codestream TPsot==TNsot"));
}

PictureFailure FailureOf(const DecoderMessages& messages)
{
    const QString text = (messages.errors + messages.warnings).join(QStringLiteral("; "));
    if (text.contains(QLatin1String("memory"), Qt::CaseInsensitive)) {
        return TooLarge(Phrase::English("out of memory while decoding (%1)").arg(text));
    }
    if (text.contains(QLatin1String("not support")) || text.contains(QLatin1String("Unsupported"))) {
        return DamagedFile(Phrase::English("it is coded in a way that is not supported (%1)").arg(text));
    }
    return DamagedFile(text.isEmpty() ? Phrase::English("the picture data are damaged")
                                      : Phrase::English("the picture data are damaged (%1)").arg(text));
}

/// OpenJPEG over a stream of ours, from the header to the last tile.
class TileReader
{
public:
    explicit TileReader(Jpeg2000Stream& source)
        : stream(opj_stream_default_create(OPJ_TRUE))
        , codec(opj_create_decompress(OPJ_CODEC_J2K))
    {
        if (!stream || !codec) {
            throw std::bad_alloc();
        }
        Connect(source);
        opj_dparameters_t parameters;
        opj_set_default_decoder_parameters(&parameters);
        opj_image_t* header = nullptr;
        const bool isRead = opj_setup_decoder(codec.get(), &parameters) != OPJ_FALSE &&
                            opj_decoder_set_strict_mode(codec.get(), OPJ_TRUE) != OPJ_FALSE &&
                            opj_read_header(stream.get(), codec.get(), &header) != OPJ_FALSE;
        image.reset(header);
        Require(isRead && opj_set_decode_area(codec.get(), header, 0, 0, 0, 0) != OPJ_FALSE);
    }

    /// The number of the next tile and the size of its samples; nothing when there is no further tile.
    std::optional<std::pair<OPJ_UINT32, OPJ_UINT32>> Next()
    {
        OPJ_UINT32 tile = 0;
        OPJ_UINT32 bytes = 0;
        OPJ_INT32 area[4];
        OPJ_UINT32 components = 0;
        OPJ_BOOL isTile = OPJ_FALSE;
        Require(opj_read_tile_header(codec.get(), stream.get(), &tile, &bytes, &area[0], &area[1], &area[2], &area[3],
                                     &components, &isTile) != OPJ_FALSE);
        return isTile != OPJ_FALSE ? std::optional(std::make_pair(tile, bytes)) : std::nullopt;
    }

    void Decode(OPJ_UINT32 number, Jpeg2000Tile& tile)
    {
        Require(opj_decode_tile_data(codec.get(), number, tile.Data(), OPJ_UINT32(tile.Bytes()), stream.get()) !=
                OPJ_FALSE);
    }

    /// The messages that no failure came from.
    const QStringList& Warnings() const { return messages.warnings; }

private:
    void Connect(Jpeg2000Stream& source)
    {
        const auto read = [](void* target, OPJ_SIZE_T length, void* self) {
            const qint64 count = static_cast<Jpeg2000Stream*>(self)->Read(target, qint64(length));
            return count > 0 ? OPJ_SIZE_T(count) : OPJ_SIZE_T(-1);
        };
        const auto seek = [](OPJ_OFF_T to, void* self) -> OPJ_BOOL {
            auto* const target = static_cast<Jpeg2000Stream*>(self);
            const bool isInside = to >= 0 && to <= target->Size();
            target->Seek(isInside ? to : target->Place());
            return isInside ? OPJ_TRUE : OPJ_FALSE;
        };
        const auto skip = [](OPJ_OFF_T count, void* self) -> OPJ_OFF_T {
            auto* const target = static_cast<Jpeg2000Stream*>(self);
            const qint64 skipped = std::clamp<qint64>(count, 0, target->Size() - target->Place());
            target->Seek(target->Place() + skipped);
            return skipped == count ? skipped : -1;
        };
        opj_stream_set_user_data(stream.get(), &source, nullptr);
        opj_stream_set_user_data_length(stream.get(), OPJ_UINT64(source.Size()));
        opj_stream_set_read_function(stream.get(), read);
        opj_stream_set_seek_function(stream.get(), seek);
        opj_stream_set_skip_function(stream.get(), skip);
        const auto noteError = [](const char* text, void* self) {
            Note(static_cast<DecoderMessages*>(self)->errors, text);
        };
        const auto noteWarning = [](const char* text, void* self) {
            Note(static_cast<DecoderMessages*>(self)->warnings, text);
        };
        opj_set_error_handler(codec.get(), noteError, &messages);
        opj_set_warning_handler(codec.get(), noteWarning, &messages);
        opj_set_info_handler(
            codec.get(), [](const char*, void*) {}, nullptr);
    }

    // The decoder goes on over code-blocks that it cannot decode, and only warns or notes an error: their pixels would
    // be grey.
    void Require(bool hasSucceeded) const
    {
        const bool isClean =
            messages.errors.isEmpty() && std::all_of(messages.warnings.begin(), messages.warnings.end(), IsHarmless);
        if (!hasSucceeded || !isClean) {
            throw FailureOf(messages);
        }
    }

    DecoderMessages messages;
    std::unique_ptr<opj_stream_t, StreamDeleter> stream;
    std::unique_ptr<opj_codec_t, CodecDeleter> codec;
    std::unique_ptr<opj_image_t, ImageDeleter> image;
};

template<typename Sample>
void CopySamples(const std::uint8_t* from, qint64 count, double least, double* to)
{
    for (qint64 i = 0; i < count; ++i) {
        Sample sample;
        std::memcpy(&sample, from + i * qint64(sizeof(Sample)), sizeof(Sample));
        to[i] = double(sample) - least;
    }
}

} // namespace

Jpeg2000Tile::Jpeg2000Tile(const Jpeg2000Codestream& codestream, const Area& area)
{
    std::size_t bytes = 0;
    for (const Jpeg2000Codestream::Component& component : codestream.Components()) {
        Plane plane;
        plane.area = SamplesIn(area, component.dx, component.dy);
        plane.offset = bytes;
        plane.bytesOfSample = BytesOfSample(component.bits);
        plane.isSigned = component.isSigned;
        plane.least = component.isSigned ? -double(qint64(1) << (component.bits - 1)) : 0.0;
        bytes += std::size_t(plane.area.Width() * plane.area.Height() * plane.bytesOfSample);
        planes.push_back(plane);
    }
    samples.resize(bytes);
}

bool Jpeg2000Tile::HasLine(int component, qint64 y) const
{
    const Area& area = planes[std::size_t(component)].area;
    return y >= area.top && y < area.bottom;
}

void Jpeg2000Tile::CopyLine(int component, qint64 y, qint64 left, double* line) const
{
    const Plane& plane = planes[std::size_t(component)];
    const qint64 width = plane.area.Width();
    const std::uint8_t* const from =
        samples.data() + plane.offset + std::size_t((y - plane.area.top) * width * plane.bytesOfSample);
    double* const to = line + (plane.area.left - left);
    if (plane.bytesOfSample == 1) {
        plane.isSigned ? CopySamples<std::int8_t>(from, width, plane.least, to)
                       : CopySamples<std::uint8_t>(from, width, plane.least, to);
    } else if (plane.bytesOfSample == 2) {
        plane.isSigned ? CopySamples<std::int16_t>(from, width, plane.least, to)
                       : CopySamples<std::uint16_t>(from, width, plane.least, to);
    } else {
        CopySamples<std::int32_t>(from, width, plane.least, to);
    }
}

Jpeg2000Memory MemoryFor(const Jpeg2000Codestream& codestream)
{
    // Of the decoder: a whole number for each sample, and a record for each code-block and each tile.
    constexpr qint64 bytesOfSample = 4;
    constexpr qint64 bytesOfBlock = 1000;
    constexpr qint64 bytesOfTile = 6000;
    constexpr qint64 bytesOfTileComponent = 1200;
    const Area image = codestream.Image();
    const Area tile = codestream.Tile(codestream.TileColumns() / 2, codestream.TileRows() / 2);
    const int rows = codestream.RowsAtOnce();
    qint64 tileBytes = 0;
    Jpeg2000Memory memory;
    for (const Jpeg2000Codestream::Component& component : codestream.Components()) {
        const Area inTile = SamplesIn(tile, component.dx, component.dy);
        const qint64 samples = inTile.Width() * inTile.Height();
        tileBytes += samples * bytesOfSample + samples * bytesOfBlock / codestream.SmallestBlock();
        memory.band += image.Width() / component.dx * inTile.Height() * rows * BytesOfSample(component.bits);
    }
    const qint64 tiles = qint64(codestream.TileColumns()) * rows;
    const bool hasSeveralBands = codestream.TileRows() > rows;
    memory.all = tileBytes + codestream.LargestTileBytes() + memory.band * (hasSeveralBands ? 2 : 1) +
                 tiles * (bytesOfTile + bytesOfTileComponent * codestream.Components().size());
    return memory;
}

Jpeg2000Band DecodeBand(const FileBytes& file, const Jpeg2000Codestream& codestream, int firstRow, Warnings& warnings)
{
    const int rows = std::min(codestream.RowsAtOnce(), codestream.TileRows() - firstRow);
    const int tiles = rows * codestream.TileColumns();
    Jpeg2000Stream source(file, codestream, firstRow, rows);
    TileReader reader(source);
    Jpeg2000Band band;
    band.firstRow = firstRow;
    while (int(band.tiles.size()) < tiles) {
        const auto next = reader.Next();
        const int number = int(band.tiles.size());
        if (!next || int(next->first) != number) {
            throw DamagedFile(Phrase::English("the picture data are damaged"));
        }
        const int column = number % codestream.TileColumns();
        Jpeg2000Tile tile(codestream, codestream.Tile(column, firstRow + number / codestream.TileColumns()));
        if (tile.Bytes() != next->second) {
            throw DamagedFile(Phrase::English("the picture data are damaged"));
        }
        reader.Decode(next->first, tile);
        band.tiles.push_back(std::move(tile));
    }
    for (const QString& warning : reader.Warnings()) {
        WarnOnce(warnings, WarningKind::Decoder, warning);
    }
    return band;
}

} // namespace BatchWorker
