// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ResultTarget.h"

#include "job/formats/FormatSchema.h"
#include "server/worker/pixels/Picture.h"

#include <QJsonObject>

namespace BatchWorker {

/// How a format is written: by an operation of the imaging library, or by `write`.
struct FormatEncoder
{
    /// The library's operation that writes to a target.
    const char* operation = nullptr;

    /// Sets the arguments of `operation` for `picture`, which is ready to be written. `options` are complete.
    void (*setArguments)(vips::VOption* arguments, const QJsonObject& options, const Picture& picture) = nullptr;

    /// Whether it can be asked for `bits` of a channel; null where every depth of the format can be asked for. Some
    /// versions of encoders end the process instead of failing.
    bool (*canWriteDepth)(int bits) = nullptr;

    /// The bytes in which a file carries `profile`, where the library's own way of writing it may lose it; null where
    /// that does not happen.
    AddedBytes (*profileBytes)(const QByteArray& profile) = nullptr;

    /// Writes what the library's operation cannot write well: `picture`, which is ready to be written, after `before`
    /// (see Encode()). `options` are complete. Throws PictureFailure and vips::VError.
    void (*write)(const Picture& picture, const QJsonObject& options, const QByteArray& before,
                  const vips::VTarget& target) = nullptr;
};

/// The encoder of `format`, which is one of Formats().
const FormatEncoder& EncoderOf(const BatchJob::FormatSchema& format);

/// One function and one file for each format that is written.
#define BATCHWORKER_DECLARE_ENCODER(id) FormatEncoder id##Encoder();
BATCHJOB_WRITTEN_FORMATS(BATCHWORKER_DECLARE_ENCODER)
#undef BATCHWORKER_DECLARE_ENCODER

} // namespace BatchWorker
