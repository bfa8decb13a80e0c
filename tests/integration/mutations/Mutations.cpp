// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Mutations.h"

#include "RawPicture.h"

#include <vips/vips8>

#include <algorithm>
#include <array>
#include <functional>

namespace {

using vips::VImage;

constexpr int headerBytes = 160;

int Below(int limit, std::mt19937& random)
{
    // The standard's own distributions differ between libraries; the mutations must not.
    return int(random() % unsigned(std::max(1, limit)));
}

VImage Gradient(int bands, VipsBandFormat format)
{
    const VImage places = VImage::xyz(48, 36);
    const VImage across = places.extract_band(0) * 5;
    const VImage down = places.extract_band(1) * 7;
    const std::array<VImage, 4> channels{across, down, (across + down) / 2, down * -1 + 255};
    VImage joined = bands < 3 ? across : VImage::bandjoin({channels[0], channels[1], channels[2]});
    if (bands == 2 || bands == 4) {
        joined = joined.bandjoin(channels[3]);
    }
    const bool isDeep = format == VIPS_FORMAT_USHORT;
    const VipsInterpretation grey = isDeep ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_B_W;
    const VipsInterpretation rgb = isDeep ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB;
    return (joined * (isDeep ? 257 : 1))
        .cast(format)
        .copy(VImage::option()->set("interpretation", bands < 3 ? grey : rgb));
}

VImage WithMetadata(const VImage& picture)
{
    VImage described = picture.copy();
    VipsBlob* profile = nullptr;
    if (vips_profile_load("srgb", &profile, nullptr) == 0) {
        std::size_t size = 0;
        const void* bytes = vips_blob_get(profile, &size);
        vips_image_set_blob_copy(described.get_image(), VIPS_META_ICC_NAME, bytes, size);
        vips_area_unref(VIPS_AREA(profile));
    }
    described.set("exif-ifd0-Artist", "A name");
    described.set("exif-ifd2-DateTimeOriginal", "2024:05:06 07:08:09");
    described.set("orientation", 6);
    return described;
}

void AppendWritten(QVector<PictureBytes>& pictures, const VImage& picture, const char* suffix, const QString& extension)
{
    try {
        void* bytes = nullptr;
        std::size_t size = 0;
        picture.write_to_buffer(suffix, &bytes, &size);
        pictures.append({extension, QByteArray(static_cast<const char*>(bytes), int(size))});
        g_free(bytes);
    } catch (const vips::VError&) {
        vips_error_clear(); // this installation, or this format, does not write such pictures
    }
}

QByteArray WithFlippedBits(QByteArray bytes, std::mt19937& random)
{
    for (int count = 1 + Below(12, random); count > 0; --count) {
        const int place = Below(bytes.size(), random);
        bytes[place] = char(bytes[place] ^ (1 << Below(8, random)));
    }
    return bytes;
}

QByteArray Cut(QByteArray bytes, std::mt19937& random)
{
    return bytes.left(Below(bytes.size(), random));
}

// Headers hold counts, sizes and offsets.
QByteArray WithExtremeHeader(QByteArray bytes, std::mt19937& random)
{
    const std::array extremes{'\x00', '\xFF', '\x7F', '\x80', '\x01'};
    const int place = Below(std::min(headerBytes, bytes.size()), random);
    const int length = std::min(1 + Below(4, random), bytes.size() - place);
    const char value = extremes[std::size_t(Below(int(extremes.size()), random))];
    return bytes.replace(place, length, QByteArray(length, value));
}

QByteArray WithoutPiece(QByteArray bytes, std::mt19937& random)
{
    return bytes.remove(Below(bytes.size(), random), 1 + Below(64, random));
}

QByteArray WithPieceTwice(QByteArray bytes, std::mt19937& random)
{
    const int place = Below(bytes.size(), random);
    return bytes.insert(Below(bytes.size(), random), bytes.mid(place, 1 + Below(256, random)));
}

QByteArray WithNoise(QByteArray bytes, std::mt19937& random)
{
    const int place = Below(bytes.size(), random);
    const int last = std::min(bytes.size(), place + 1 + Below(32, random));
    for (int i = place; i < last; ++i) {
        bytes[i] = char(Below(256, random));
    }
    return bytes;
}

} // namespace

QVector<PictureBytes> SmallPictures()
{
    struct Format
    {
        const char* suffix;
        QString extension;
    };
    const QVector<Format> formats{
        {".jpg", QStringLiteral("jpg")},
        {".jpg[interlace]", QStringLiteral("jpg")},
        {".png", QStringLiteral("png")},
        {".png[interlace]", QStringLiteral("png")},
        {".tif", QStringLiteral("tif")},
        {".tif[compression=lzw,tile]", QStringLiteral("tif")},
        {".webp", QStringLiteral("webp")},
        {".webp[lossless]", QStringLiteral("webp")},
        {".heic[compression=hevc]", QStringLiteral("heic")},
        {".avif[effort=0]", QStringLiteral("avif")},
        {".jxl", QStringLiteral("jxl")},
        {".jp2", QStringLiteral("jp2")},
        {".gif", QStringLiteral("gif")},
    };
    QVector<PictureBytes> pictures;
    for (const Format& format : formats) {
        for (const int bands : {1, 3, 4}) {
            AppendWritten(pictures, WithMetadata(Gradient(bands, VIPS_FORMAT_UCHAR)), format.suffix, format.extension);
        }
        AppendWritten(pictures, Gradient(3, VIPS_FORMAT_USHORT), format.suffix, format.extension);
    }
    for (const int orientation : {1, 6}) {
        pictures.append({QStringLiteral("dng"), RawPicture::Dng(orientation)});
    }
    return pictures;
}

QByteArray Mutated(const QByteArray& bytes, std::mt19937& random)
{
    using Mutation = std::function<QByteArray(QByteArray, std::mt19937&)>;
    static const std::array<Mutation, 6> mutations{WithFlippedBits, Cut,      WithExtremeHeader, WithoutPiece,
                                                   WithPieceTwice,  WithNoise};
    return mutations[std::size_t(Below(int(mutations.size()), random))](bytes, random);
}
