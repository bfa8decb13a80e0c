// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchWorker {

/// Whether the file at `path` has a gain map beside its picture: a second picture that says how much brighter each
/// place is on a screen that can show it. Known are those of JPEG (Adobe's and Google's in XMP, ISO 21496-1, Apple's),
/// HEIF and AVIF (Apple's, ISO 21496-1) and JPEG XL. False for a file that cannot be read.
bool HasGainMap(const QString& path);

} // namespace BatchWorker
