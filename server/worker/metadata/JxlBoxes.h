// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace BatchWorker {

/// Metadata of a JPEG XL file. A block is empty if the file does not have it or if it is malformed.
struct JxlMetadata
{
    QByteArray exif; ///< begins with its TIFF header
    QByteArray xmp;
};

/// Reads the boxes of the file at `path` that hold metadata, compressed ones, too. The decoder ignores them.
JxlMetadata ReadJxlMetadata(const QString& path);

} // namespace BatchWorker
