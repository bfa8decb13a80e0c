// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CropPlan.h"

#include "job/values/JobValues.h"
#include "server/worker/colour/WorkingForm.h"
#include "server/worker/geometry/CropSearch.h"
#include "server/worker/geometry/Orientation.h"

#include <algorithm>
#include <vector>

namespace BatchWorker {

namespace {

// In the stored picture. The colour of the border is that of the upright picture's top left corner.
QRect TrimmedFrame(PictureSource& source)
{
    const QSize upright = TurnedSize(source.StoredSize(), source.Orientation());
    const QPoint corner = StoredRect(QRect(0, 0, 1, 1), upright, source.Orientation()).topLeft();
    const std::vector<double> border = InWorkingForm(source.Load()).getpoint(corner.x(), corner.y());
    return FrameWithoutBorder(InWorkingForm(source.Load()), border);
}

// In the stored picture.
QRect InterestingFrame(PictureSource& source, const QSize& uprightRatio)
{
    const QSize whole = source.StoredSize();
    const double reduction = std::max(1.0, std::max(whole.width(), whole.height()) / interestSearchSide);
    const Picture loaded = InWorkingForm(source.Load(source.PossibleShrink(reduction)));
    return FrameOfInterest(loaded, whole, TurnedSize(uprightRatio, source.Orientation()));
}

} // namespace

BatchJob::Geometry PlannedGeometry(PictureSource& source, const ZTBatchOutputSettings::Crop& crop,
                                   const ZTBatchOutputSettings::ImageSize& size)
{
    const QSize upright = TurnedSize(source.StoredSize(), source.Orientation());
    QRect found;
    if (crop.type == int(BatchJob::CropType::Trim)) {
        found = UprightRect(TrimmedFrame(source), source.StoredSize(), source.Orientation());
    } else if (BatchJob::IsCropOfInterest(crop.type)) {
        const QRect frame = InterestingFrame(source, BatchJob::RatioFor(upright, crop));
        found = UprightRect(frame, source.StoredSize(), source.Orientation());
    }
    return BatchJob::PlanGeometry(upright, crop, size, found);
}

} // namespace BatchWorker
