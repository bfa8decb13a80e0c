// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchOutputSettings.h"

#include <QRect>
#include <QSize>

/// Sizes and frames of crop and size, in whole pixels of upright pictures. No pixels are touched here.
namespace BatchJob {

/// How the pixels of a source become those of a result: a part of the source is scaled, and a part of that is cut out.
struct Geometry
{
    QRect part;       ///< of the source
    QSize scaledSize; ///< of that part after scaling
    QRect cut;        ///< of the scaled part: the result

    QSize ResultSize() const { return cut.size(); }
    bool IsScaled() const { return scaledSize != part.size(); }
};

/// The size of a picture of `size` pixels after `settings`; at least 1 x 1. Invalid settings (a length that is no
/// positive number, a resolution below 1) leave the size unchanged.
QSize SizeAfter(const QSize& size, const ZTBatchOutputSettings::ImageSize& settings);

/// The frame of `frame` pixels in a picture of `size` pixels, which is not smaller, placed by `alignment`, Qt alignment
/// flags; centred in a direction that has no flag.
QRect AlignedRect(const QSize& frame, const QSize& size, int alignment);

/// The largest size of the aspect ratio of `ratio` within `size`; at least 1 x 1.
QSize LargestOfRatio(const QSize& ratio, const QSize& size);

/// The aspect ratio of `crop` for a picture of `size` pixels: of a turning crop, that which lies or stands as the
/// picture does. A square picture turns nothing.
QSize RatioFor(const QSize& size, const ZTBatchOutputSettings::Crop& crop);

/// The geometry of crop and size for a picture of `size` pixels. For the crop types Trim, Interesting and
/// TurningInteresting, which depend on the pixels, `found` is the frame that they have found; the others ignore it.
Geometry PlanGeometry(const QSize& size, const ZTBatchOutputSettings::Crop& crop,
                      const ZTBatchOutputSettings::ImageSize& imageSize, const QRect& found = {});

} // namespace BatchJob
