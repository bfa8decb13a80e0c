#pragma once

#include "job/formats/FormatSchema.h"

namespace BatchWorker {

/// How a decoder makes a picture smaller while it decodes.
enum class LoaderShrink {
    None,
    ByFactor, ///< argument "shrink": 2, 4 or 8
    ByScale   ///< argument "scale": 1/2, 1/4 or 1/8
};

/// How the imaging library reads a format.
struct Loader
{
    /// The library's operation that reads from a source; null for camera RAW, which RawFile reads.
    const char* operation = nullptr;
    LoaderShrink shrink = LoaderShrink::None;
};

/// The loader of `format`. It is named and never left to the library, which would look for options in the file's name
/// and try loaders that are not meant for untrusted files.
const Loader& LoaderOf(const BatchJob::FormatSchema& format);

} // namespace BatchWorker
