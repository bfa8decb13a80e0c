// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourParameter.h"
#include "EffectFunctions.h"

#include "job/effects/EffectSizes.h"
#include "server/worker/colour/PictureColours.h"
#include "server/worker/geometry/Rotation.h"

namespace BatchWorker {

namespace {

Picture TurnedByAnyAngle(const Picture& picture, const QJsonObject& parameters)
{
    const QSize canvas = BatchJob::TurnedCanvas(QSize(picture.width(), picture.height()), parameters);
    // Both have one middle.
    const QTransform toCanvas = QTransform::fromTranslate(-picture.width() / 2.0, -picture.height() / 2.0) *
                                QTransform().rotate(BatchJob::TurnOf(parameters)) *
                                QTransform::fromTranslate(canvas.width() / 2.0, canvas.height() / 2.0);
    const PaintablePicture paintable =
        PaintableWith(ColourOf(parameters[QLatin1String("background")].toString()), picture);
    return RotatedOver(paintable.picture, toCanvas, canvas, paintable.paint);
}

} // namespace

// The size changes unless the angle is a multiple of 180. A grey picture becomes RGB for a background with colour, and
// a background that is not opaque gives an alpha channel; not so at multiples of 90.
Picture ApplyRotate(const Picture& picture, const QJsonObject& parameters)
{
    const double degrees = BatchJob::TurnOf(parameters);
    if (degrees == 0.0) {
        return picture;
    }
    if (degrees == 90.0) {
        return picture.rot90();
    }
    if (degrees == 180.0) {
        return picture.rot180();
    }
    if (degrees == 270.0) {
        return picture.rot270();
    }
    return TurnedByAnyAngle(picture, parameters);
}

} // namespace BatchWorker
