// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "MetadataReader.h"

namespace BatchWorker {

/// A whole EXIF block, beginning with its TIFF header; empty if there is no EXIF. Throws std::exception.
QByteArray Encoded(const Exiv2::ExifData& exif);

/// The records of IPTC; empty when there are none. Throws std::exception.
QByteArray Encoded(const Exiv2::IptcData& iptc);

/// An XMP packet; empty if there is no XMP, or if it cannot be written. Throws std::exception.
QByteArray Encoded(const Exiv2::XmpData& xmp, bool withWrapper = true);

/// Removes from `blocks` what the metadata library cannot write, though it has read it: first makers' notes, then all
/// of EXIF; IPTC or XMP as a whole. Each removal gives a warning.
void RemoveUnwritable(MetadataBlocks& blocks, BatchJob::Warnings& warnings);

} // namespace BatchWorker
