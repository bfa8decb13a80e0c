// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "LibraryVersions.h"

#include "IndirectVersions.h"
#include "VersionTexts.h"

#include <jxl/decode.h>
#include <lcms2.h>
#include <libheif/heif.h>
#include <libraw/libraw.h>
#include <openjpeg.h>
#include <tiffio.h>
#include <vips/vips8>

#include <array>

using BatchJob::Versions;

namespace BatchWorker {

namespace {

/// The codecs behind libheif, which need not come with it.
void AddCodecsOfHeif(Versions& versions)
{
    constexpr int most = 50;
    std::array<const heif_decoder_descriptor*, most> decoders{};
    const int decoderCount = heif_get_decoder_descriptors(heif_compression_undefined, decoders.data(), most);
    for (int i = 0; i < decoderCount; ++i) {
        const heif_decoder_descriptor* const one = decoders[std::size_t(i)];
        versions.insert(QString::fromLatin1(heif_decoder_descriptor_get_id_name(one)),
                        NumberIn(heif_decoder_descriptor_get_name(one)));
    }
    std::array<const heif_encoder_descriptor*, most> encoders{};
    const int encoderCount = heif_get_encoder_descriptors(heif_compression_undefined, nullptr, encoders.data(), most);
    for (int i = 0; i < encoderCount; ++i) {
        const heif_encoder_descriptor* const one = encoders[std::size_t(i)];
        versions.insert(QString::fromLatin1(heif_encoder_descriptor_get_id_name(one)),
                        NumberIn(heif_encoder_descriptor_get_name(one)));
    }
}

} // namespace

Versions LibraryVersions()
{
    constexpr unsigned thousand = 1000;
    constexpr unsigned hundred = 100;
    constexpr unsigned ofRevision = 10; // The last digit is always 0.
    Versions versions{
        {QStringLiteral("libvips"), NumberIn(vips_version_string())},
        {QStringLiteral("libraw"), NumberIn(LibRaw::version())},
        {QStringLiteral("libheif"), NumberIn(heif_get_version())},
        {QStringLiteral("libjxl"), Unpacked(JxlDecoderVersion(), thousand, 3)},
        {QStringLiteral("openjpeg"), NumberIn(opj_version())},
        {QStringLiteral("libtiff"), NumberIn(TIFFGetVersion())},
        {QStringLiteral("lcms2"), Unpacked(unsigned(cmsGetEncodedCMMversion()) / ofRevision, hundred, 2)},
    };
    AddCodecsOfHeif(versions);
    AddIndirectVersions(versions);
    return versions;
}

} // namespace BatchWorker
