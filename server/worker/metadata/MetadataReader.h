// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Warning.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <exiv2/exiv2.hpp>

namespace BatchWorker {

class PictureSource;

/// The metadata of a file, in the metadata library's own types.
struct MetadataBlocks
{
    Exiv2::ExifData exif;
    Exiv2::IptcData iptc;
    Exiv2::XmpData xmp;
    QByteArray profile; ///< see Metadata::Profile()
    QDateTime created;  ///< as something else in the file says; often invalid
};

/// Reads `file`, whose header `source` has read. What cannot be read is left out, with a warning. A damaged colour
/// profile does not affect the other blocks.
MetadataBlocks ReadMetadata(const QString& file, const PictureSource& source, BatchJob::Warnings& warnings);

} // namespace BatchWorker
