// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Pictures that tests write themselves, without the worker.
namespace PictureFiles {

/// Writes a JPEG of `width` x `height` pixels, and the folders above it. Each `seed` gives other pixels.
void WriteJpeg(const QString& path, int seed = 0, int width = 64, int height = 48);

/// The same of values by chance, which no format makes small.
void WriteNoise(const QString& path, int width, int height);

/// Writes a picture, of the format that the extension says, that ends in its middle.
void WriteTruncated(const QString& path);

} // namespace PictureFiles
