// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectFunctions.h"
#include "WatermarkPlacement.h"

#include "job/values/JobValues.h"
#include "job/values/Phrase.h"
#include "server/worker/colour/PictureColours.h"
#include "server/worker/decode/JobPicture.h"
#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/PixelForms.h"

#include <algorithm>
#include <cmath>

namespace BatchWorker {

namespace {

/// The file as sRGB of 8 bits, upright, scaled to `width`.
Picture ImageAt(const QString& path, int width)
{
    ZTBatchOutputSettings::ImageSize size;
    size.restriction = int(BatchJob::SizeRestriction::Fit);
    size.side = int(BatchJob::SizeSide::Width);
    size.size = width;
    // Warnings about a logo's profile do not belong into the report on a picture.
    BatchJob::Warnings warnings;
    try {
        return AsRgb(WithDepth(ReadJobPicture(path, {}, size, {}, warnings), 8));
    } catch (const PictureFailure& failure) {
        throw ProcessingFailed(BatchJob::Phrase::English("the picture %1 cannot be read: %2").arg(path, failure.reason),
                               failure.detail);
    }
}

/// `image`, sRGB of 8 bits, as a mark, its colours in the profile of `picture`.
Overlay MarkOf(const Picture& image, const Picture& picture)
{
    // A profile that cannot be used was reported when the picture was read.
    BatchJob::Warnings warnings;
    const Picture colours = IsGrey(picture) ? image : WithDepth(InSpaceOf(picture, image, warnings), 8);
    return {image.width(), image.height(), BytesOf(WithAlpha(colours))};
}

} // namespace

// A grey picture becomes RGB for a mark with colour. Throws PictureFailure for a file that cannot be read.
Picture ApplyWatermarkImage(const Picture& picture, const QJsonObject& parameters)
{
    const int width = std::max(1, static_cast<int>(std::lround(LengthIn(parameters, "size", picture.width()))));
    const Picture image = ImageAt(parameters[QLatin1String("file")].toString(), width);
    const Picture under = HasColour(image) ? AsRgb(picture) : picture;
    return Watermarked(under, MarkOf(image, under), parameters);
}

} // namespace BatchWorker
