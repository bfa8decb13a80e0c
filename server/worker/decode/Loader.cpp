// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Loader.h"

#include "GifFile.h"
#include "HeifColours.h"
#include "HeifPicture.h"
#include "Jpeg2000File.h"
#include "JpegFile.h"
#include "JpegXlFile.h"
#include "PngColours.h"
#include "TiffFile.h"

#include <array>

namespace BatchWorker {

namespace {

namespace Loaders {

constexpr Loader Raw{nullptr, LoaderShrink::None};
constexpr Loader Jpeg{"jpegload_source", LoaderShrink::ByFactor, ReadJpeg};
constexpr Loader Png{"pngload_source", LoaderShrink::None, nullptr, ReadPngColours};
constexpr Loader Tiff{nullptr, LoaderShrink::None, ReadTiff};
constexpr Loader Webp{"webpload_source", LoaderShrink::ByScale};
constexpr Loader Heif{"heifload_source", LoaderShrink::None, ReadHeif, ReadHeifColours};
constexpr Loader Avif{"heifload_source", LoaderShrink::None, ReadHeif, ReadHeifColours};
constexpr Loader JpegXl{nullptr, LoaderShrink::None, ReadJpegXl};
constexpr Loader Jpeg2000{nullptr, LoaderShrink::None, ReadJpeg2000};
constexpr Loader Gif{"gifload_source", LoaderShrink::None, ReadGif};

} // namespace Loaders

} // namespace

const Loader& LoaderOf(const BatchJob::FormatSchema& format)
{
    // In the order of FormatId.
#define BATCHWORKER_LOADER(id) Loaders::id,
    static constexpr std::array loaders{BATCHJOB_FORMATS(BATCHWORKER_LOADER)};
#undef BATCHWORKER_LOADER
    return loaders[std::size_t(format.id)];
}

} // namespace BatchWorker
