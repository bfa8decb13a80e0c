// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Rotation.h"

#include "TurnedAreas.h"

#include "server/worker/pixels/PixelForms.h"

#include <cstdint>

namespace BatchWorker {

namespace {

Coverage CoverageOf(const Picture& picture, const QTransform& toCanvas)
{
    const int width = picture.width();
    const int height = picture.height();
    return Coverage({toCanvas.map(QPointF(0, 0)), toCanvas.map(QPointF(width, 0)), toCanvas.map(QPointF(width, height)),
                     toCanvas.map(QPointF(0, height))});
}

template<typename Sample>
std::unique_ptr<AreaFiller> FillerFor(int bands, const std::shared_ptr<const TurnPlan>& plan)
{
    switch (bands) {
    case 1:
        return std::make_unique<TurnedAreas<Sample, 1>>(plan);
    case 2:
        return std::make_unique<TurnedAreas<Sample, 2>>(plan);
    case 3:
        return std::make_unique<TurnedAreas<Sample, 3>>(plan);
    default:
        return std::make_unique<TurnedAreas<Sample, 4>>(plan);
    }
}

} // namespace

Picture Rotated(const Picture& picture, const QTransform& toCanvas, const QSize& size)
{
    return RotatedOver(picture, toCanvas, size, {});
}

Picture RotatedOver(const Picture& picture, const QTransform& toCanvas, const QSize& size,
                    const std::vector<double>& paint)
{
    std::vector<float> premultiplied(paint.begin(), paint.end());
    if (!paint.empty() && picture.has_alpha()) {
        for (std::size_t band = 0; band + 1 < paint.size(); ++band) {
            premultiplied[band] = static_cast<float>(paint[band] * paint.back() / LargestValue(picture));
        }
    }
    const auto plan =
        std::make_shared<const TurnPlan>(TurnPlan{picture.width(), picture.height(), toCanvas.inverted(), BicubicTurn(),
                                                  CoverageOf(picture, toCanvas), std::move(premultiplied)});
    PictureShape shape = ShapeOf(picture);
    shape.width = size.width();
    shape.height = size.height();
    const bool isDeep = HasSixteenBits(picture);
    // Tiles look at fewer pixels of the picture than strips, if those have to be made.
    return FilledPicture(shape, picture, VIPS_DEMAND_STYLE_SMALLTILE, [plan, isDeep, bands = shape.bands] {
        return isDeep ? FillerFor<std::uint16_t>(bands, plan) : FillerFor<std::uint8_t>(bands, plan);
    });
}

} // namespace BatchWorker
