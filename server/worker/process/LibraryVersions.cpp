// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "LibraryVersions.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <jxl/decode.h>
#include <lcms2.h>
#include <libheif/heif.h>
#include <libraw/libraw.h>
#include <openjpeg.h>
#include <tiffio.h>
#include <vips/vips8>

#include <array>
#include <dlfcn.h>

using BatchJob::Versions;

namespace BatchWorker {

namespace {

/// The first number with points in `text`; all of it if there is none.
QString NumberIn(const char* text)
{
    static const QRegularExpression number(QStringLiteral("[0-9]+(\\.[0-9]+)+"));
    const QString all = QString::fromLatin1(text).simplified();
    const QRegularExpressionMatch match = number.match(all);
    return match.hasMatch() ? match.captured() : all;
}

/// The parts of the number `packed`, each but the first less than `base`: 7001 is 0.7.1 with a base of 1000.
QString Unpacked(unsigned packed, unsigned base, int parts)
{
    QString text;
    for (int part = 0; part < parts; ++part) {
        text = QString::number(part == parts - 1 ? packed : packed % base) +
               (text.isEmpty() ? QString() : QLatin1Char('.') + text);
        packed /= base;
    }
    return text;
}

/// The file that a function is loaded from, as a library need not say its version: "62.3.0" of libjpeg.so.62.3.0.
QString FileVersionOf(void* function)
{
    Dl_info info{};
    if (dladdr(function, &info) == 0 || !info.dli_fname) {
        return {};
    }
    const QString file = QFileInfo(QFileInfo(QFile::decodeName(info.dli_fname)).canonicalFilePath()).fileName();
    const QString mark = QStringLiteral(".so.");
    return file.contains(mark) ? QStringLiteral("file ") + file.section(mark, 1) : QString();
}

// Libraries of libraries: this program does not link them itself.

enum class Says { Text, Bytes, Hundreds, File };

struct IndirectLibrary
{
    const char* name;
    const char* function;
    Says says;
};

constexpr std::array indirectLibraries{
    IndirectLibrary{"cairo", "cairo_version_string", Says::Text},
    IndirectLibrary{"freetype", "FT_Init_FreeType", Says::File},
    IndirectLibrary{"harfbuzz", "hb_version_string", Says::Text},
    IndirectLibrary{"libcgif", "cgif_newgif", Says::File},
    IndirectLibrary{"libimagequant", "liq_version", Says::Hundreds},
    IndirectLibrary{"libjpeg", "jpeg_std_error", Says::File},
    IndirectLibrary{"libpng", "png_get_libpng_ver", Says::Text},
    IndirectLibrary{"libwebp", "WebPGetDecoderVersion", Says::Bytes},
    IndirectLibrary{"orc", "orc_version_string", Says::Text},
    IndirectLibrary{"pango", "pango_version_string", Says::Text},
};

QString VersionOf(const IndirectLibrary& library)
{
    void* const function = dlsym(RTLD_DEFAULT, library.function);
    if (!function) {
        return {};
    }
    constexpr unsigned hundred = 100;
    constexpr unsigned byte = 256;
    switch (library.says) {
    case Says::Text:
        // Some take a pointer, which they ignore.
        return NumberIn(reinterpret_cast<const char* (*)(const void*)>(function)(nullptr));
    case Says::Bytes:
        return Unpacked(unsigned(reinterpret_cast<int (*)()>(function)()), byte, 3);
    case Says::Hundreds:
        return Unpacked(unsigned(reinterpret_cast<int (*)()>(function)()), hundred, 3);
    case Says::File:
        break;
    }
    return FileVersionOf(function);
}

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
    for (const IndirectLibrary& library : indirectLibraries) {
        const QString version = VersionOf(library);
        if (!version.isEmpty()) {
            versions.insert(QLatin1String(library.name), version);
        }
    }
    return versions;
}

} // namespace BatchWorker
