// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Jpeg2000Maker.h"

#include "server/worker/metadata/BoxFile.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <memory>
#include <openjpeg.h>

using BatchWorker::Box;

namespace Jpeg2000Maker {

namespace {

struct Memory
{
    QByteArray bytes;
    qint64 place = 0;
};

OPJ_SIZE_T Write(void* data, OPJ_SIZE_T length, void* self)
{
    auto* const memory = static_cast<Memory*>(self);
    const int end = int(memory->place) + int(length);
    memory->bytes.resize(std::max(memory->bytes.size(), end));
    std::memcpy(memory->bytes.data() + memory->place, data, length);
    memory->place = end;
    return length;
}

OPJ_BOOL Seek(OPJ_OFF_T place, void* self)
{
    static_cast<Memory*>(self)->place = place;
    return OPJ_TRUE;
}

OPJ_OFF_T Skip(OPJ_OFF_T count, void* self)
{
    static_cast<Memory*>(self)->place += count;
    return count;
}

int CeilDivided(int value, int by)
{
    return (value + by - 1) / by;
}

opj_image_t* ImageOf(const Coding& coding)
{
    const int right = coding.image.x() + coding.image.width();
    const int bottom = coding.image.y() + coding.image.height();
    std::vector<opj_image_cmptparm_t> parameters;
    for (const Plane& plane : coding.planes) {
        opj_image_cmptparm_t parameter{};
        parameter.dx = OPJ_UINT32(plane.dx);
        parameter.dy = OPJ_UINT32(plane.dy);
        parameter.x0 = OPJ_UINT32(coding.image.x());
        parameter.y0 = OPJ_UINT32(coding.image.y());
        parameter.w = OPJ_UINT32(CeilDivided(right, plane.dx) - CeilDivided(coding.image.x(), plane.dx));
        parameter.h = OPJ_UINT32(CeilDivided(bottom, plane.dy) - CeilDivided(coding.image.y(), plane.dy));
        parameter.prec = OPJ_UINT32(plane.bits);
        parameter.sgnd = plane.isSigned ? 1 : 0;
        parameters.push_back(parameter);
    }
    opj_image_t* const image = opj_image_create(OPJ_UINT32(parameters.size()), parameters.data(), OPJ_CLRSPC_SRGB);
    image->x0 = OPJ_UINT32(coding.image.x());
    image->y0 = OPJ_UINT32(coding.image.y());
    image->x1 = OPJ_UINT32(right);
    image->y1 = OPJ_UINT32(bottom);
    for (int i = 0; i < coding.planes.size(); ++i) {
        const opj_image_cmptparm_t& area = parameters[std::size_t(i)];
        const Plane& plane = coding.planes[i];
        const int left = CeilDivided(coding.image.x(), plane.dx);
        const int top = CeilDivided(coding.image.y(), plane.dy);
        for (int y = 0; y < int(area.h); ++y) {
            for (int x = 0; x < int(area.w); ++x) {
                image->comps[i].data[y * int(area.w) + x] = plane.value(left + x, top + y);
            }
        }
    }
    return image;
}

// The samples of a tile as the encoder wants them.
QByteArray SamplesOf(const Coding& coding, const QRect& tile)
{
    QByteArray samples;
    for (const Plane& plane : coding.planes) {
        const int bytes = plane.bits <= 8 ? 1 : plane.bits <= 16 ? 2 : 4;
        for (int y = CeilDivided(tile.y(), plane.dy); y < CeilDivided(tile.y() + tile.height(), plane.dy); ++y) {
            for (int x = CeilDivided(tile.x(), plane.dx); x < CeilDivided(tile.x() + tile.width(), plane.dx); ++x) {
                const int value = plane.value(x, y);
                QByteArray sample(4, '\0');
                qToLittleEndian(value, sample.data());
                samples += sample.left(bytes);
            }
        }
    }
    return samples;
}

// Tile by tile: from a whole image the encoder takes wrong samples where a subsampled image is away from the origin.
bool WriteTiles(const Coding& coding, opj_codec_t* codec, opj_stream_t* stream)
{
    const int columns = CeilDivided(coding.image.x() + coding.image.width() - coding.origin.x(), coding.tile.width());
    const int rows = CeilDivided(coding.image.y() + coding.image.height() - coding.origin.y(), coding.tile.height());
    for (int index = 0; index < columns * rows; ++index) {
        const QPoint corner(index % columns * coding.tile.width(), index / columns * coding.tile.height());
        QByteArray samples = SamplesOf(coding, QRect(coding.origin + corner, coding.tile) & coding.image);
        if (opj_write_tile(codec, OPJ_UINT32(index), reinterpret_cast<OPJ_BYTE*>(samples.data()),
                           OPJ_UINT32(samples.size()), stream) == OPJ_FALSE) {
            return false;
        }
    }
    return true;
}

struct TilePart
{
    int tile;
    QByteArray bytes;
};

} // namespace

QByteArray Codestream(const Coding& coding)
{
    opj_cparameters_t parameters;
    opj_set_default_encoder_parameters(&parameters);
    constexpr int resolutions = 3;
    parameters.numresolution = resolutions;
    parameters.tcp_numlayers = 1;
    parameters.cp_disto_alloc = 1;
    parameters.tcp_mct = coding.hasColourTransform ? 1 : 0;
    parameters.image_offset_x0 = coding.image.x();
    parameters.image_offset_y0 = coding.image.y();
    if (!coding.tile.isEmpty()) {
        parameters.tile_size_on = OPJ_TRUE;
        parameters.cp_tx0 = coding.origin.x();
        parameters.cp_ty0 = coding.origin.y();
        parameters.cp_tdx = coding.tile.width();
        parameters.cp_tdy = coding.tile.height();
    }
    if (coding.hasPartForEachResolution) {
        parameters.tp_on = 1;
        parameters.tp_flag = 'R';
    }
    const std::unique_ptr<opj_image_t, decltype(&opj_image_destroy)> image(ImageOf(coding), opj_image_destroy);
    const std::unique_ptr<opj_codec_t, decltype(&opj_destroy_codec)> codec(opj_create_compress(OPJ_CODEC_J2K),
                                                                           opj_destroy_codec);
    const std::unique_ptr<opj_stream_t, decltype(&opj_stream_destroy)> stream(opj_stream_default_create(OPJ_FALSE),
                                                                              opj_stream_destroy);
    Memory memory;
    opj_stream_set_user_data(stream.get(), &memory, nullptr);
    opj_stream_set_write_function(stream.get(), Write);
    opj_stream_set_seek_function(stream.get(), Seek);
    opj_stream_set_skip_function(stream.get(), Skip);
    const bool isWritten = opj_setup_encoder(codec.get(), &parameters, image.get()) != OPJ_FALSE &&
                           opj_start_compress(codec.get(), image.get(), stream.get()) != OPJ_FALSE &&
                           (coding.tile.isEmpty() ? opj_encode(codec.get(), stream.get()) != OPJ_FALSE
                                                  : WriteTiles(coding, codec.get(), stream.get())) &&
                           opj_end_compress(codec.get(), stream.get()) != OPJ_FALSE;
    if (!isWritten) {
        qFatal("A JPEG 2000 codestream cannot be made.");
    }
    return memory.bytes;
}

QByteArray Reordered(const QByteArray& codestream, const std::function<QVector<int>(const QVector<int>& tiles)>& order)
{
    const int first = codestream.indexOf(QByteArray("\xFF\x90\x00\x0A", 4));
    QVector<TilePart> parts;
    QVector<int> tiles;
    int place = first;
    while (codestream.mid(place, 2) == QByteArray("\xFF\x90", 2)) {
        const int length = int(qFromBigEndian<quint32>(codestream.constData() + place + 6));
        tiles.append(qFromBigEndian<quint16>(codestream.constData() + place + 4));
        parts.append({tiles.last(), codestream.mid(place, length)});
        place += length;
    }
    QByteArray reordered = codestream.left(first);
    for (const int index : order(tiles)) {
        reordered += parts[index].bytes;
    }
    return reordered + codestream.mid(place);
}

QByteArray WithSegment(const QByteArray& codestream, const QByteArray& segment)
{
    constexpr int sizeSegment = 2;
    const int length = qFromBigEndian<quint16>(codestream.constData() + sizeSegment + 2);
    QByteArray changed = codestream;
    return changed.insert(sizeSegment + 2 + length, segment);
}

QByteArray Bytes(std::initializer_list<int> values, int bytesOfValue)
{
    QByteArray bytes;
    for (const int value : values) {
        for (int shift = 8 * (bytesOfValue - 1); shift >= 0; shift -= 8) {
            bytes.append(char(value >> shift));
        }
    }
    return bytes;
}

QByteArray Colour(int enumerated)
{
    return Box("colr", Bytes({1, 0, 0}) + Bytes({enumerated}, 4));
}

QByteArray Colour(const QByteArray& profile)
{
    return Box("colr", Bytes({2, 0, 0}) + profile);
}

QByteArray Palette(int channels, const QByteArray& entries)
{
    QByteArray palette = Bytes({entries.size() / channels}, 2) + Bytes({channels});
    QByteArray mapping;
    for (int channel = 0; channel < channels; ++channel) {
        palette += Bytes({7});
        mapping += Bytes({0, 0, 1, channel});
    }
    return Box("pclr", palette + entries) + Box("cmap", mapping);
}

QByteArray Definitions(const QVector<QVector<int>>& channels)
{
    QByteArray content = Bytes({channels.size()}, 2);
    for (const QVector<int>& channel : channels) {
        content += Bytes({channel[0], channel[1], channel[2]}, 2);
    }
    return Box("cdef", content);
}

QByteArray File(const QByteArray& codestream, const QByteArray& header)
{
    const auto number = [&codestream](int place) {
        return int(qFromBigEndian<quint32>(codestream.constData() + place));
    };
    constexpr int sizes = 8;
    constexpr int offsets = 16;
    constexpr int count = 40;
    const QByteArray size = Bytes({number(sizes + 4) - number(offsets + 4), number(sizes) - number(offsets)}, 4);
    const QByteArray image = Box("ihdr", size + codestream.mid(count, 2) + Bytes({255, 7, 0, 0}));
    return Box("jP  ", "\r\n\x87\n") + Box("ftyp", "jp2 " + Bytes({0}, 4) + "jp2 ") + Box("jp2h", image + header) +
           Box("jp2c", codestream);
}

} // namespace Jpeg2000Maker
