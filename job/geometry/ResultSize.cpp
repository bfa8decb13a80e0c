// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ResultSize.h"

#include "Geometry.h"

#include "job/values/JobValues.h"

namespace BatchJob {

namespace {

std::optional<QSize> CroppedAndScaled(const QSize& size, const JobSettings& settings)
{
    const ZTBatchOutputSettings::Crop& crop = settings.crop;
    if (crop.type == int(CropType::Trim)) {
        return std::nullopt;
    }
    QRect found;
    if (IsCropOfInterest(crop.type)) {
        found =
            QRect(QPoint(0, 0), LargestOfRatio(RatioFor(size, crop), size)); // Only its place depends on the pixels.
    }
    return PlanGeometry(size, crop, settings.imageSize, found).ResultSize();
}

} // namespace

QSize FrameSize(const QSize& size, const ZTBatchOutputSettings::Transformation& framing)
{
    return framing.backgroundCustomOutput ? framing.backgroundCustomSize : size;
}

std::optional<QSize> ResultSize(const QSize& size, const JobSettings& settings)
{
    std::optional<QSize> result = CroppedAndScaled(size, settings);
    for (const JobEffect& effect : settings.effects) {
        if (result) {
            result = effect.schema->SizeAfter(*result, effect.parameters);
        }
    }
    if (settings.framing.state) {
        const QSize frame = FrameSize(result.value_or(QSize()), settings.framing);
        return frame.isEmpty() ? std::nullopt : std::optional(frame);
    }
    return result;
}

} // namespace BatchJob
