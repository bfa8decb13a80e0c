// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Metadata.h"

#include "job/formats/FormatSchema.h"
#include "job/values/Warning.h"
#include "server/worker/pixels/Picture.h"

#include <QByteArray>

/// How metadata get into results. What a format holds, and at which step of writing it gets there, is in its record.
namespace BatchWorker {

/// `picture` with nothing but its profile and the blocks of `metadata` that the encoder of `format` writes. Each block
/// that the format cannot hold, and what the library cannot write, gives a warning; IPTC becomes XMP in formats that
/// hold XMP only.
Picture WithMetadata(const Picture& picture, const BatchJob::FormatSchema& format, Metadata& metadata,
                     BatchJob::Warnings& warnings);

/// The bytes of the result that come before what the encoder of `format` writes; for most formats none.
QByteArray BytesBefore(const BatchJob::FormatSchema& format, const Metadata& metadata);

/// Adds to the written file `fileName` the metadata that its encoder leaves out. `profile` is that of the picture.
void CompleteFile(const QString& fileName, const BatchJob::FormatSchema& format, const Metadata& metadata,
                  const QByteArray& profile, BatchJob::Warnings& warnings);

} // namespace BatchWorker
