// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Framing.h"

#include "job/values/Phrase.h"

#include "Background.h"
#include "Blending.h"
#include "Placement.h"
#include "Shadow.h"

#include "server/worker/colour/PictureColours.h"
#include "server/worker/geometry/Coverage.h"
#include "server/worker/geometry/Rotation.h"
#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/PixelForms.h"
#include "server/worker/pixels/RandomAccess.h"
#include "server/worker/pixels/WeightedFilter.h"

using namespace BatchJob;
using namespace BatchProtocol;

namespace BatchWorker {

namespace {

using Transformation = ZTBatchOutputSettings::Transformation;

void CheckFrame(const QSize& frame, qint64 pixelLimit)
{
    if (qint64(frame.width()) * frame.height() > pixelLimit) {
        throw ProcessingFailed(Phrase::English("the frame of %1 x %2 pixels is above the limit of %3 pixels")
                                   .arg(frame.width())
                                   .arg(frame.height())
                                   .arg(pixelLimit));
    }
}

bool BringsColour(const Transformation& framing, const std::optional<Picture>& backgroundFile)
{
    return (framing.backgroundType == int(BatchJob::BackgroundType::Colour) && HasColour(framing.backgroundColor)) ||
           (backgroundFile && !IsGrey(*backgroundFile)) || (framing.shadowEnabled && HasColour(framing.shadowColor));
}

Picture Scaled(const Picture& picture, const QSize& size)
{
    if (size == QSize(picture.width(), picture.height())) {
        return picture;
    }
    return FilteredByOpacity(picture, [&size](const Picture& source) {
        return source.resize(size.width() / double(source.width()),
                             Picture::option()->set("vscale", size.height() / double(source.height())));
    });
}

// For pixels that are not read from top to bottom.
Picture ReadableInAnyOrder(const Picture& picture)
{
    return vips_image_is_sequential(picture.get_image()) != 0 ? WithRandomAccess(picture) : picture;
}

Picture TurnedByQuarters(const Picture& picture, int quarterTurns)
{
    return quarterTurns == 0 ? picture : ReadableInAnyOrder(picture).rot(VipsAngle(quarterTurns));
}

// The picture at its place in the frame; the other pixels mean nothing.
Picture Placed(const Picture& picture, const FramePlacement& placement)
{
    const Picture scaled = Scaled(picture, placement.drawn);
    if (placement.quarterTurns >= 0) {
        return TurnedByQuarters(scaled, placement.quarterTurns)
            .embed(placement.upright.x(), placement.upright.y(), placement.frame.width(), placement.frame.height());
    }
    return Rotated(ReadableInAnyOrder(scaled), placement.toFrame, placement.frame);
}

Picture WithShadow(const Picture& background, const Picture& placed, const Picture& coverage,
                   const FramePlacement& placement, const Transformation& framing, Warnings& warnings)
{
    const Picture shade =
        placed.has_alpha() ? ShadowOfAlpha(placed, coverage, framing) : ShadowOfRectangle(placement, framing);
    const Picture layer = placed.new_from_image(ColourInSpaceOf(placed, framing.shadowColor, warnings));
    return Blend(background, layer, shade, framing.shadowOpacity, BatchJob::Blending::Normal);
}

} // namespace

Picture FramePicture(const Picture& original, const Transformation& framing, const ServerLimits& limits,
                     Warnings& warnings)
{
    const FramePlacement placement(QSize(original.width(), original.height()), framing);
    CheckFrame(placement.frame, limits.pixels);
    if (!placement.hasRoom) {
        warnings.append(
            {WarningKind::Framing, Phrase::English("the margins leave nothing of the frame free and have no effect")});
    }
    const std::optional<Picture> backgroundFile = ReadBackgroundFile(framing, placement.frame, limits, warnings);
    const Picture picture = BringsColour(framing, backgroundFile) ? AsRgb(original) : original;
    const Picture coverage = Coverage(placement.corners).OfFrame(placement.frame);

    Picture placed = Placed(picture, placement);
    Picture below = MakeBackground(framing, backgroundFile, placement.frame, picture, warnings);
    if (framing.shadowEnabled) {
        // Picture and shadow read it at different places.
        placed = placed.has_alpha() ? ReadableInAnyOrder(placed) : placed;
        below = WithShadow(below, placed, coverage, placement, framing, warnings);
    }
    const Picture framed = Blend(below, placed, coverage, framing.opacity, BatchJob::Blending(framing.blending));

    const bool isPictureOpaque = !picture.has_alpha() && framing.opacity >= 1;
    const bool isOpaque = IsBackgroundOpaque(framing, backgroundFile) || (isPictureOpaque && placement.CoversFrame());
    return isOpaque ? WithoutAlpha(framed) : framed;
}

} // namespace BatchWorker
