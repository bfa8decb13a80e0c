#include "ResultSize.h"

#include "Geometry.h"

#include "job/values/JobValues.h"

namespace BatchJob {

namespace {

std::optional<QSize> CroppedAndScaled(const QSize& size, const JobSettings& settings)
{
    QRect found;
    switch (CropType(settings.crop.type)) {
    case CropType::Trim:
        return std::nullopt;
    case CropType::Interesting:
        // Its place depends on the pixels, its size does not.
        found = QRect(QPoint(0, 0), LargestOfRatio(settings.crop.size, size));
        break;
    default:
        break;
    }
    return PlanGeometry(size, settings.crop, settings.imageSize, found).ResultSize();
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
