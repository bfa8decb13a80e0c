// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "TiffDirectory.h"

#include <functional>

/// A camera RAW file (DNG) of a camera whose filters are those of sRGB. It shows four patches, two above two.
namespace RawPicture {

constexpr int width = 96;
constexpr int height = 64;

/// What the sensor would see of each patch without any filter or balance: red, green and blue of 0 to 1.
const QVector<QVector<double>>& Patches();

/// The patch at a pixel: an index of Patches().
int PatchAt(int x, int y);

/// The bytes of the file. `orientation`: by EXIF, 1 to 8. `neutral`: how strong the camera sees red, green and blue of
/// white.
QByteArray Dng(int orientation = 1, const QVector<double>& neutral = {1, 1, 1});

/// The same with its directory in front of the pixels, as cameras write it. `edit` may change the directory.
QByteArray DngWithPixelsLast(int orientation = 1, const std::function<void(TiffDirectory&)>& edit = {});

/// The same with its pixels compressed as lossless JPEG.
QByteArray CompressedDng();

} // namespace RawPicture
