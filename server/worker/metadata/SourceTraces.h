// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <exiv2/exiv2.hpp>

/// What metadata hold of the source's own bytes and of nothing else: previews, which show what was cut away, and
/// entries that describe or point to how the source is stored. No result keeps them. docs/reference/metadata.md lists
/// it for users.
namespace BatchWorker {

void RemoveSourceTraces(Exiv2::ExifData& exif);
void RemoveSourceTraces(Exiv2::IptcData& iptc);
void RemoveSourceTraces(Exiv2::XmpData& xmp);

/// Whether `entry` is of a maker's notes, or the notes as a whole.
bool IsMakerNote(const Exiv2::Exifdatum& entry);

/// Whether `entry` is of none of the lists of the metadata library. Nobody knows what it holds.
bool IsUnknown(const Exiv2::Exifdatum& entry);

} // namespace BatchWorker
