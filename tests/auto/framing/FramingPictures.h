// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/JobValues.h"
#include "server/worker/pixels/Picture.h"

#include "ZTBatchOutputSettings.h"

#include <QImage>

#include <vector>

namespace FramingPictures {

using BatchWorker::Picture;

/// A record with everything off: no margins, no angle, no background, no shadow.
ZTBatchOutputSettings::Transformation PlainFraming();

/// The picture framed, in memory, because tests look at single pixels.
Picture FramePicture(const Picture& picture, const ZTBatchOutputSettings::Transformation& framing,
                     qint64 pixelLimit = 1'000'000);

/// A picture of one colour; its depth and kind follow from `format` and the number of `values`: 1 grey, 2 grey and
/// alpha, 3 RGB, 4 RGB and alpha.
Picture Uniform(int width, int height, const std::vector<double>& values, VipsBandFormat format = VIPS_FORMAT_UCHAR);

/// A smooth colourful picture of waves about 20 pixels long: moved by a pixel, it differs by up to 15 steps.
QImage Landscape(const QSize& size);

Picture FromImage(const QImage& image);

/// As QImage::Format_RGBA8888; the picture is 8 bits deep.
QImage ToImage(const Picture& picture);

/// The values of a pixel as a string such as "10 20 30", which test output shows.
QString PixelText(const Picture& picture, int x, int y);

} // namespace FramingPictures
