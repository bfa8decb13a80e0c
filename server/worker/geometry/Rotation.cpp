// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Rotation.h"

#include <QPointF>

#include <vector>

namespace BatchWorker {

Picture Rotated(const Picture& picture, const QTransform& toCanvas, const QSize& size)
{
    // As far as the interpolation looks.
    constexpr int beyond = 3;
    const Picture widened = picture.embed(beyond, beyond, picture.width() + 2 * beyond, picture.height() + 2 * beyond,
                                          Picture::option()->set("extend", VIPS_EXTEND_COPY));
    // The library counts from the centres of pixels.
    const QPointF firstPixel = toCanvas.map(QPointF(0.5 - beyond, 0.5 - beyond)) - QPointF(0.5, 0.5);
    const std::vector<double> matrix{toCanvas.m11(), toCanvas.m21(), toCanvas.m12(), toCanvas.m22()};
    const std::vector<int> area{0, 0, size.width(), size.height()};
    return widened.affine(matrix, Picture::option()
                                      ->set("interpolate", vips::VInterpolate::new_from_name("bicubic"))
                                      ->set("odx", firstPixel.x())
                                      ->set("ody", firstPixel.y())
                                      ->set("oarea", area)
                                      ->set("premultiplied", true));
}

} // namespace BatchWorker
