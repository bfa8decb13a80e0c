// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchOutputSettings.h"

#include <QString>
#include <QStringList>

/// Crops as users write them.
namespace BatchHost {

/// The words that a crop may begin with.
QStringList CropWords();

/// Reads "none", "trim", or a word with the frame's size: "ratio:3x2", "fill:800x600", "exact:15x10cm". A ratio turns
/// with the picture unless "!" is its last character. Units become pixels by the resolution of `imageSize`. A size in
/// pixels without "px" is refused beside a size on paper in `imageSize`. Throws RequestError.
void CropFromText(const QString& text, const ZTBatchOutputSettings::ImageSize& imageSize,
                  ZTBatchOutputSettings::Crop& crop);

/// A text that CropFromText() reads whatever the size of the picture is.
QString CropText(const ZTBatchOutputSettings::Crop& crop);

} // namespace BatchHost
