// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PlantedMetadata.h"

namespace PlantedMetadata {

/// Metadata with places of every kind, each a text or a number that nothing else contains: "Place01", "41.0123401"; and
/// the seconds 1234567/1000 in the position of EXIF.
Blocks WithPlaces();

/// What is in its XMP, as the inside of an rdf:RDF element.
const QByteArray& XmpWithPlaces();

} // namespace PlantedMetadata
