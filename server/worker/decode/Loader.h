// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "FileColours.h"

#include "job/formats/FormatSchema.h"
#include "job/values/Warning.h"
#include "server/protocol/ServerLimits.h"
#include "server/worker/pixels/Picture.h"

namespace BatchWorker {

/// How a decoder makes a picture smaller while it decodes.
enum class LoaderShrink {
    None,
    ByFactor, ///< argument "shrink": 2, 4 or 8
    ByScale   ///< argument "scale": 1/2, 1/4 or 1/8
};

/// How a format is read: by an operation of the imaging library, by `read`, or, with neither, by RawFile. `read` may
/// use the operation too.
struct Loader
{
    /// The library's operation that reads from a source.
    const char* operation = nullptr;
    LoaderShrink shrink = LoaderShrink::None;

    /// Reads what the library's operation cannot read well. The result has the header with its metadata at once and
    /// pixels that are decoded when they flow, `shrink` times smaller. `descriptor` stays open for the length of the
    /// call only; `warnings` live as long as the pixels. Throws PictureFailure and vips::VError.
    Picture (*read)(int descriptor, int shrink, const BatchProtocol::ServerLimits& limits,
                    BatchJob::Warnings& warnings) = nullptr;

    /// What files of the format say of their colours where `operation` does not tell; null where it tells all.
    FileColours (*readColours)(const QString& path) = nullptr;
};

/// The loader of `format`. It is named and never left to the library, which would look for options in the file's name
/// and try loaders that are not meant for untrusted files.
const Loader& LoaderOf(const BatchJob::FormatSchema& format);

} // namespace BatchWorker
