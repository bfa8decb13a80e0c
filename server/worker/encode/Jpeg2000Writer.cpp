// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Jpeg2000Writer.h"

#include "job/values/Phrase.h"

#include "Jpeg2000Planes.h"
#include "RowSink.h"

#include "server/worker/pixels/FreeMemory.h"
#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/PixelForms.h"

#include <openjpeg.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <vector>

namespace BatchWorker {

namespace {

constexpr int tileSide = 512;

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

int TilesAlong(int length)
{
    return (length + tileSide - 1) / tileSide;
}

void CheckMemory(const Picture& picture)
{
    // Of the encoder: for each sample of a tile a number, and the room for what it becomes, twice; a record of each
    // tile, with one of each of its channels.
    constexpr qint64 bytesOfSample = 24;
    constexpr qint64 bytesOfTile = 6000;
    constexpr qint64 bytesOfTileChannel = 1200;
    constexpr qint64 ofPipeline = qint64(64) << 20;
    const qint64 bands = picture.bands();
    const qint64 tiles = qint64(TilesAlong(picture.width())) * TilesAlong(picture.height());
    const qint64 strip = qint64(VIPS_IMAGE_SIZEOF_LINE(picture.get_image())) * std::min(tileSide, picture.height());
    const qint64 needed = strip + qint64(tileSide) * tileSide * bands * bytesOfSample +
                          tiles * (bytesOfTile + bytesOfTileChannel * bands);
    if (needed > FreeMemory() - ofPipeline) {
        throw TooLarge(BatchJob::Phrase::English("writing %1 x %2 pixels as %3 needs more memory than a worker may use")
                           .arg(picture.width())
                           .arg(picture.height())
                           .arg(QLatin1String("JPEG 2000")));
    }
}

// About 32 lines or columns of the smaller side are left in the smallest of them.
int Resolutions(const Picture& picture)
{
    constexpr int smallest = 32;
    int resolutions = 0;
    for (int side = std::min(picture.width(), picture.height()); side >= 2 * smallest; side /= 2) {
        ++resolutions;
    }
    return std::max(resolutions, 1);
}

opj_cparameters_t ParametersOf(const Picture& picture, const Jpeg2000Settings& settings)
{
    opj_cparameters_t parameters;
    opj_set_default_encoder_parameters(&parameters);
    parameters.tile_size_on = OPJ_TRUE;
    parameters.cp_tdx = tileSide;
    parameters.cp_tdy = tileSide;
    parameters.numresolution = Resolutions(picture);
    parameters.tcp_numlayers = 1;
    parameters.tcp_mct = picture.bands() >= 3 && !settings.isSubsampled ? 1 : 0;
    if (settings.isLossless) {
        parameters.cp_disto_alloc = 1;
        return parameters;
    }
    // Packets in the order of sizes, then of places, so that a reader finds a part of the picture, or a smaller one.
    constexpr int precinct = 256;
    parameters.irreversible = 1;
    parameters.prog_order = OPJ_RPCL;
    parameters.csty = 1; // precincts have sizes
    parameters.res_spec = parameters.numresolution;
    std::fill_n(parameters.prcw_init, parameters.res_spec, precinct);
    std::fill_n(parameters.prch_init, parameters.res_spec, precinct);
    parameters.cp_fixed_quality = OPJ_TRUE;
    parameters.tcp_distoratio[0] = float(settings.quality);
    return parameters;
}

/// OpenJPEG over a target, from the header to the end of the file.
class TileWriter
{
public:
    TileWriter(const Picture& picture, const Jpeg2000Settings& settings, const vips::VTarget& target)
        : target(target)
        , stream(opj_stream_default_create(OPJ_FALSE))
        , codec(opj_create_compress(OPJ_CODEC_JP2))
        , image(NewImage(picture, settings))
    {
        Require(stream && codec && image);
        Connect();
        opj_cparameters_t parameters = ParametersOf(picture, settings);
        Require(opj_setup_encoder(codec.get(), &parameters, image.get()) != OPJ_FALSE);
        Require(opj_start_compress(codec.get(), image.get(), stream.get()) != OPJ_FALSE);
    }

    /// The tiles come in rows, from left to right.
    void Add(std::vector<std::uint8_t>& planes)
    {
        Require(opj_write_tile(codec.get(), next, planes.data(), OPJ_UINT32(planes.size()), stream.get()) != OPJ_FALSE);
        ++next;
    }

    void Finish() { Require(opj_end_compress(codec.get(), stream.get()) != OPJ_FALSE); }

private:
    Q_DISABLE_COPY(TileWriter)

    static opj_image_t* NewImage(const Picture& picture, const Jpeg2000Settings& settings)
    {
        const int bands = picture.bands();
        const int colours = bands < 3 ? 1 : 3;
        std::array<opj_image_cmptparm_t, 4> components{};
        for (int band = 0; band < bands; ++band) {
            opj_image_cmptparm_t& component = components.at(std::size_t(band));
            const OPJ_UINT32 step = settings.isSubsampled && band > 0 ? 2 : 1;
            component.dx = step;
            component.dy = step;
            component.w = OPJ_UINT32(picture.width());
            component.h = OPJ_UINT32(picture.height());
            component.prec = HasSixteenBits(picture) ? 16 : 8;
        }
        const OPJ_COLOR_SPACE space = colours == 1            ? OPJ_CLRSPC_GRAY
                                      : settings.isSubsampled ? OPJ_CLRSPC_SYCC
                                                              : OPJ_CLRSPC_SRGB;
        opj_image_t* const created = opj_image_tile_create(OPJ_UINT32(bands), components.data(), space);
        if (created) {
            created->x1 = OPJ_UINT32(picture.width());
            created->y1 = OPJ_UINT32(picture.height());
            if (bands > colours) {
                created->comps[colours].alpha = 1;
            }
        }
        return created;
    }

    void Connect()
    {
        const auto write = [](void* bytes, OPJ_SIZE_T size, void* self) -> OPJ_SIZE_T {
            VipsTarget* const to = static_cast<TileWriter*>(self)->target.get_target();
            return vips_target_write(to, bytes, size) == 0 ? size : OPJ_SIZE_T(-1);
        };
        const auto seek = [](OPJ_OFF_T place, void* self) -> OPJ_BOOL {
            VipsTarget* const to = static_cast<TileWriter*>(self)->target.get_target();
            return vips_target_seek(to, place, SEEK_SET) == place ? OPJ_TRUE : OPJ_FALSE;
        };
        // Leaves room for what is written later.
        const auto skip = [](OPJ_OFF_T count, void* self) -> OPJ_OFF_T {
            VipsTarget* const to = static_cast<TileWriter*>(self)->target.get_target();
            const QByteArray room(int(count), '\0');
            return vips_target_write(to, room.constData(), std::size_t(count)) == 0 ? count : -1;
        };
        opj_stream_set_user_data(stream.get(), this, nullptr);
        opj_stream_set_write_function(stream.get(), write);
        opj_stream_set_seek_function(stream.get(), seek);
        opj_stream_set_skip_function(stream.get(), skip);
        const auto ignore = [](const char*, void*) {};
        opj_set_info_handler(codec.get(), ignore, nullptr);
        opj_set_warning_handler(codec.get(), ignore, nullptr);
        const auto note = [](const char* text, void* self) { static_cast<TileWriter*>(self)->problem += text; };
        opj_set_error_handler(codec.get(), note, this);
    }

    void Require(bool hasSucceeded) const
    {
        if (!hasSucceeded) {
            const QByteArray text = problem.trimmed();
            vips_error("JPEG 2000", "%s", text.isEmpty() ? "out of memory" : text.constData());
            throw vips::VError();
        }
    }

    vips::VTarget target;
    QByteArray problem;
    std::unique_ptr<opj_stream_t, StreamDeleter> stream;
    std::unique_ptr<opj_codec_t, CodecDeleter> codec;
    std::unique_ptr<opj_image_t, ImageDeleter> image;
    OPJ_UINT32 next = 0;
};

/// Collects lines until they are a row of tiles.
class TileRows
{
public:
    TileRows(const Picture& picture, const Jpeg2000Settings& settings, TileWriter& writer)
        : writer(writer)
        , layout{picture.bands(), HasSixteenBits(picture), settings.isSubsampled}
        , width(picture.width())
        , linesLeft(picture.height())
        , lineSize(VIPS_IMAGE_SIZEOF_LINE(picture.get_image()))
        , strip(lineSize * std::size_t(std::min(tileSide, picture.height())))
    {
    }

    void AddLine(const std::uint8_t* samples)
    {
        std::memcpy(strip.data() + std::size_t(lines) * lineSize, samples, lineSize);
        ++lines;
        --linesLeft;
        if (lines == tileSide || linesLeft == 0) {
            WriteTiles();
            lines = 0;
        }
    }

private:
    void WriteTiles()
    {
        const std::size_t pixelSize = lineSize / std::size_t(width);
        for (int left = 0; left < width; left += tileSide) {
            const std::uint8_t* const first = strip.data() + std::size_t(left) * pixelSize;
            FillPlanes({first, lineSize, std::min(tileSide, width - left), lines}, layout, planes);
            writer.Add(planes);
        }
    }

    TileWriter& writer;
    Jpeg2000Layout layout;
    int width;
    int linesLeft;
    int lines = 0;
    std::size_t lineSize;
    std::vector<std::uint8_t> strip;
    std::vector<std::uint8_t> planes;
};

} // namespace

void WriteJpeg2000(const Picture& picture, const Jpeg2000Settings& settings, const vips::VTarget& target)
{
    CheckMemory(picture);
    TileWriter writer(picture, settings, target);
    TileRows rows(picture, settings, writer);
    SinkRows(picture, [&rows](const std::uint8_t* samples) { rows.AddLine(samples); });
    writer.Finish();
    if (vips_target_end(target.get_target()) != 0) {
        throw vips::VError();
    }
}

} // namespace BatchWorker
