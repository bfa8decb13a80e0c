// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobPicture.h"

#include "PictureSource.h"

#include "job/geometry/Geometry.h"
#include "server/worker/colour/Colour.h"
#include "server/worker/geometry/Orientation.h"
#include "server/worker/geometry/Resampling.h"
#include "server/worker/pixels/RandomAccess.h"
#include "server/worker/pixels/VipsText.h"

#include <algorithm>

namespace BatchWorker {

Picture ReadJobPicture(const QString& file, const ZTBatchOutputSettings::Crop& crop,
                       const ZTBatchOutputSettings::ImageSize& size, const BatchProtocol::ServerLimits& limits,
                       BatchJob::Warnings& warnings)
{
    vips_error_clear(); // what was said of the picture says nothing of this file
    PictureSource source(file, limits);
    try {
        const int orientation = source.Orientation();
        const QSize upright = TurnedSize(source.StoredSize(), orientation);
        const BatchJob::Geometry geometry = BatchJob::PlanGeometry(upright, crop, size);
        const double reduction = std::min(double(geometry.part.width()) / geometry.scaledSize.width(),
                                          double(geometry.part.height()) / geometry.scaledSize.height());
        const Picture loaded = InWorkingColours(source.Load(source.PossibleShrink(reduction)), false, warnings);
        const Picture sized = Resampled(loaded, source.StoredSize(), StoredGeometry(geometry, upright, orientation));
        return InPlainSrgb(TurnedUpright(WithRandomAccess(sized), orientation), warnings).copy_memory();
    } catch (const vips::VError& problem) {
        throw source.Damage(TextOf(problem), 0);
    }
}

} // namespace BatchWorker
