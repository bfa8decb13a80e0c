// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Geometry.h"

#include "job/values/JobValues.h"
#include "job/values/Length.h"

#include <algorithm>
#include <cmath>

namespace BatchJob {

namespace {

constexpr int longestSide = 10'000'000; // what the imaging library takes

int Rounded(double length)
{
    return int(std::lround(std::clamp(length, 1.0, double(longestSide))));
}

bool IsWidthGiven(const QSize& size, int side)
{
    switch (SizeSide(side)) {
    case SizeSide::Width:
        return true;
    case SizeSide::Height:
        return false;
    case SizeSide::LongSide:
        return size.width() >= size.height();
    default:
        return size.width() <= size.height();
    }
}

bool IsAllowed(double scale, int restriction)
{
    switch (SizeRestriction(restriction)) {
    case SizeRestriction::Fit:
        return true;
    case SizeRestriction::ReduceOnly:
        return scale < 1;
    case SizeRestriction::EnlargeOnly:
        return scale > 1;
    default:
        return false;
    }
}

int AlignedStart(int frame, int size, bool isAtStart, bool isAtEnd)
{
    if (isAtStart) {
        return 0;
    }
    return isAtEnd ? size - frame : (size - frame) / 2;
}

Geometry Unscaled(const QRect& part)
{
    return {part, part.size(), QRect(QPoint(0, 0), part.size())};
}

// The picture is scaled once, to the size after both steps, and cut then.
Geometry FillGeometry(const QSize& size, const ZTBatchOutputSettings::Crop& crop,
                      const ZTBatchOutputSettings::ImageSize& imageSize)
{
    const QSize frame = crop.size.expandedTo(QSize(1, 1));
    const QSize result = SizeAfter(frame, imageSize);
    const double scale = std::max(double(result.width()) / size.width(), double(result.height()) / size.height());
    const QSize scaled = QSize(Rounded(size.width() * scale), Rounded(size.height() * scale)).expandedTo(result);
    return {QRect(QPoint(0, 0), size), scaled, AlignedRect(result, scaled, crop.alignment)};
}

} // namespace

QSize SizeAfter(const QSize& size, const ZTBatchOutputSettings::ImageSize& settings)
{
    if (!std::isfinite(settings.size) || settings.size <= 0 || settings.resolution < 1) {
        return size;
    }
    const bool isWidthGiven = IsWidthGiven(size, settings.side);
    const bool isPercent = settings.unit == int(SizeUnit::Percent);
    const int given = isWidthGiven ? size.width() : size.height();
    const double length =
        isPercent ? given * settings.size / 100 : PixelsOf(settings.size, settings.unit, settings.resolution);
    const double scale = length / given;
    if (!IsAllowed(scale, settings.restriction)) {
        return size;
    }
    return isWidthGiven ? QSize(Rounded(length), Rounded(size.height() * scale))
                        : QSize(Rounded(size.width() * scale), Rounded(length));
}

QRect AlignedRect(const QSize& frame, const QSize& size, int alignment)
{
    const int x =
        AlignedStart(frame.width(), size.width(), (alignment & Qt::AlignLeft) != 0, (alignment & Qt::AlignRight) != 0);
    const int y = AlignedStart(frame.height(), size.height(), (alignment & Qt::AlignTop) != 0,
                               (alignment & Qt::AlignBottom) != 0);
    return {QPoint(x, y), frame};
}

QSize LargestOfRatio(const QSize& ratio, const QSize& size)
{
    const double wanted = double(std::max(1, ratio.width())) / std::max(1, ratio.height());
    const QSize fromHeight(Rounded(size.height() * wanted), size.height());
    return fromHeight.width() <= size.width()
               ? fromHeight
               : QSize(size.width(), std::min(size.height(), Rounded(size.width() / wanted)));
}

QSize RatioFor(const QSize& size, const ZTBatchOutputSettings::Crop& crop)
{
    const bool isTurning = crop.type == int(CropType::TurningRatio) || crop.type == int(CropType::TurningInteresting);
    const bool isAcross = (crop.size.width() > crop.size.height() && size.width() < size.height()) ||
                          (crop.size.width() < crop.size.height() && size.width() > size.height());
    return isTurning && isAcross ? crop.size.transposed() : crop.size;
}

Geometry PlanGeometry(const QSize& size, const ZTBatchOutputSettings::Crop& crop,
                      const ZTBatchOutputSettings::ImageSize& imageSize, const QRect& found)
{
    Geometry geometry = Unscaled(QRect(QPoint(0, 0), size));
    switch (CropType(crop.type)) {
    case CropType::None:
        break;
    case CropType::Ratio:
    case CropType::TurningRatio:
        geometry = Unscaled(AlignedRect(LargestOfRatio(RatioFor(size, crop), size), size, crop.alignment));
        break;
    case CropType::Trim:
    case CropType::Interesting:
    case CropType::TurningInteresting:
        geometry = Unscaled(found);
        break;
    case CropType::Fill:
        return FillGeometry(size, crop, imageSize);
    case CropType::Exact:
        geometry = Unscaled(AlignedRect(crop.size.expandedTo(QSize(1, 1)).boundedTo(size), size, crop.alignment));
        break;
    }
    geometry.scaledSize = SizeAfter(geometry.part.size(), imageSize);
    geometry.cut = QRect(QPoint(0, 0), geometry.scaledSize);
    return geometry;
}

} // namespace BatchJob
