// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "IndirectVersions.h"

#include "VersionTexts.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <dlfcn.h>

namespace BatchWorker {

namespace {

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

} // namespace

void AddIndirectVersions(BatchJob::Versions& versions)
{
    for (const IndirectLibrary& library : indirectLibraries) {
        const QString version = VersionOf(library);
        if (!version.isEmpty()) {
            versions.insert(QLatin1String(library.name), version);
        }
    }
}

} // namespace BatchWorker
