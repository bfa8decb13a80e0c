// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace BatchWorker {

/// The metadata of the PNG file at `path` as a PNG file without pixels: the first block of each kind, wherever in the
/// file it is. Empty if the file cannot be read.
QByteArray PngWithoutPixels(const QString& path);

/// Removes all EXIF blocks but the first `most` from the PNG file `fileName`: some versions of the encoder write a
/// block twice, others make one up. Returns whether it has no more now.
bool LimitExifOfPng(const QString& fileName, int most);

} // namespace BatchWorker
