#include "Loader.h"

#include "JpegXlFile.h"

#include <array>

namespace BatchWorker {

namespace {

namespace Loaders {

constexpr Loader Raw{nullptr, LoaderShrink::None};
constexpr Loader Jpeg{"jpegload_source", LoaderShrink::ByFactor};
constexpr Loader Png{"pngload_source", LoaderShrink::None};
constexpr Loader Tiff{"tiffload_source", LoaderShrink::None};
constexpr Loader Webp{"webpload_source", LoaderShrink::ByScale};
constexpr Loader Heif{"heifload_source", LoaderShrink::None};
constexpr Loader Avif{"heifload_source", LoaderShrink::None};
constexpr Loader JpegXl{nullptr, LoaderShrink::None, ReadJpegXl};
constexpr Loader Jpeg2000{"jp2kload_source", LoaderShrink::None};
constexpr Loader Gif{"gifload_source", LoaderShrink::None};

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
