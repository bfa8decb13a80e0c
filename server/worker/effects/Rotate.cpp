// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourParameter.h"
#include "EffectFunctions.h"

#include "job/effects/EffectSizes.h"
#include "server/worker/colour/PictureColours.h"
#include "server/worker/geometry/Coverage.h"
#include "server/worker/geometry/Rotation.h"
#include "server/worker/pixels/GeneratedPicture.h"
#include "server/worker/pixels/PixelForms.h"

#include <array>
#include <vector>

namespace BatchWorker {

namespace {

/// Turns a size clockwise by any angle onto the smallest canvas that holds it. Both have one middle.
struct Turn
{
    Turn(const QSize& picture, const QSize& turned, double degrees)
        : canvas(turned)
    {
        toCanvas = QTransform::fromTranslate(-picture.width() / 2.0, -picture.height() / 2.0) *
                   QTransform().rotate(degrees) *
                   QTransform::fromTranslate(canvas.width() / 2.0, canvas.height() / 2.0);
        corners = {toCanvas.map(QPointF(0, 0)), toCanvas.map(QPointF(picture.width(), 0)),
                   toCanvas.map(QPointF(picture.width(), picture.height())),
                   toCanvas.map(QPointF(0, picture.height()))};
    }

    QSize canvas;
    QTransform toCanvas;
    std::array<QPointF, 4> corners;
};

/// `turned`, floating point and premultiplied, over `paint`, premultiplied too.
Picture OverPaint(const Picture& turned, const Coverage& shape, const std::vector<double>& paint)
{
    const auto lay = [shape, paint](VipsRegion* target, const std::vector<VipsRegion*>& inputs) {
        const VipsRect& area = target->valid;
        const std::size_t bands = paint.size();
        for (int y = area.top; y < area.top + area.height; ++y) {
            const auto* in = PixelAt<const float>(inputs[0], area.left, y);
            auto* out = PixelAt<float>(target, area.left, y);
            for (int x = area.left; x < area.left + area.width; ++x, in += bands, out += bands) {
                const double covered = shape.OfPixel(x, y);
                for (std::size_t band = 0; band < bands; ++band) {
                    // What lies outside may hold anything; it must not come through.
                    out[band] = covered > 0.0
                                    ? static_cast<float>(covered * double(in[band]) + (1.0 - covered) * paint[band])
                                    : static_cast<float>(paint[band]);
                }
            }
        }
    };
    return GeneratePicture(ShapeOf(turned), {turned}, lay);
}

Picture TurnedByAnyAngle(const Picture& picture, const QJsonObject& parameters)
{
    const QColor background = ColourOf(parameters[QLatin1String("background")].toString());
    const QSize size(picture.width(), picture.height());
    PaintablePicture paintable = PaintableWith(background, picture);
    const double largest = LargestValue(paintable.picture);
    const bool hasAlpha = paintable.picture.has_alpha();
    const Turn turn(size, BatchJob::TurnedCanvas(size, parameters), BatchJob::TurnOf(parameters));

    Picture source = paintable.picture.cast(VIPS_FORMAT_FLOAT);
    std::vector<double>& paint = paintable.paint;
    if (hasAlpha) {
        source = paintable.picture.premultiply(Picture::option()->set("max_alpha", largest));
        for (std::size_t band = 0; band + 1 < paint.size(); ++band) {
            paint[band] *= paint.back() / largest;
        }
    }
    Picture turned = OverPaint(Rotated(source, turn.toCanvas, turn.canvas), Coverage(turn.corners), paint);
    if (hasAlpha) {
        turned = turned.unpremultiply(Picture::option()->set("max_alpha", largest));
    }
    return turned.linear(1.0, 0.5)
        .cast(picture.format())
        .copy(Picture::option()->set("interpretation", paintable.picture.interpretation()));
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
