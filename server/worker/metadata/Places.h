// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <exiv2/exiv2.hpp>

/// What says where a picture was taken or what place it shows. docs/reference/metadata.md lists it for users.
namespace BatchWorker {

/// Makers' notes go as a whole: several hold the names of places or positions, and some nobody can read. So do entries
/// that are in no list.
void RemovePlaces(Exiv2::ExifData& exif);
void RemovePlaces(Exiv2::IptcData& iptc);

/// By the names on the way to a property, at any depth: makers have namespaces of their own, but name things alike.
void RemovePlaces(Exiv2::XmpData& xmp);

/// Whether `entry` is of the directory of GPS positions. The other places in EXIF have no kind of their own.
bool IsPosition(const Exiv2::Exifdatum& entry);

} // namespace BatchWorker
