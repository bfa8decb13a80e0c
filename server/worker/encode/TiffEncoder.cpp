// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EncoderOptions.h"
#include "FormatEncoder.h"

#include <QHash>

namespace BatchWorker {

namespace {

VipsForeignTiffCompression Compression(const QJsonObject& options)
{
    static const QHash<QString, VipsForeignTiffCompression> compressions{
        {QStringLiteral("none"), VIPS_FOREIGN_TIFF_COMPRESSION_NONE},
        {QStringLiteral("lzw"), VIPS_FOREIGN_TIFF_COMPRESSION_LZW},
        {QStringLiteral("deflate"), VIPS_FOREIGN_TIFF_COMPRESSION_DEFLATE},
        {QStringLiteral("zstd"), VIPS_FOREIGN_TIFF_COMPRESSION_ZSTD},
        {QStringLiteral("jpeg"), VIPS_FOREIGN_TIFF_COMPRESSION_JPEG},
    };
    return compressions.value(ChoiceOption(options, "compression"), VIPS_FOREIGN_TIFF_COMPRESSION_LZW);
}

void SetArguments(vips::VOption* arguments, const QJsonObject& options, const Picture& picture)
{
    constexpr guint64 largestClassic = guint64(3) << 30; // offsets of 32 bits, with room for what packing may add
    arguments->set("compression", Compression(options))
        ->set("Q", IntegerOption(options, "quality"))
        ->set("resunit", VIPS_FOREIGN_TIFF_RESUNIT_INCH)
        ->set("bigtiff", VIPS_IMAGE_SIZEOF_IMAGE(picture.get_image()) > largestClassic);
}

} // namespace

FormatEncoder TiffEncoder()
{
    return {"tiffsave_target", SetArguments};
}

} // namespace BatchWorker
