// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace BatchWorker {

/// The metadata of the PNG file at `path` as a PNG file without pixels: the first block of each kind, wherever in the
/// file it is. Empty if the file cannot be read.
QByteArray PngWithoutPixels(const QString& path);

/// Removes the second EXIF block, which some versions of the encoder write, from the PNG file `fileName`. Returns
/// whether it has one at most now.
bool RemoveRepeatedExifFromPng(const QString& fileName);

} // namespace BatchWorker
