// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Placement.h"

#include "job/geometry/ResultSize.h"

#include <QMargins>
#include <QRectF>

#include <algorithm>
#include <cmath>

namespace BatchWorker {

namespace {

int Round(double value)
{
    return static_cast<int>(std::floor(value + 0.5));
}

QSize AtLeastOnePixel(const QSize& size)
{
    return size.expandedTo(QSize(1, 1));
}

// Not by QSize::scaled(), which truncates.
QSize FittedInto(const QSize& picture, const QSize& frame)
{
    const double scale = std::min(frame.width() / double(picture.width()), frame.height() / double(picture.height()));
    return AtLeastOnePixel(QSize(Round(picture.width() * scale), Round(picture.height() * scale)));
}

double ScaleOf(const QTransform& transform)
{
    return std::hypot(transform.m11(), transform.m12());
}

} // namespace

FramePlacement::FramePlacement(const QSize& picture, const ZTBatchOutputSettings::Transformation& framing)
    : frame(BatchJob::FrameSize(picture, framing))
{
    const QSize fitted = FittedInto(picture, frame);
    const QPoint fittedCorner((frame.width() - fitted.width()) / 2, (frame.height() - fitted.height()) / 2);
    const QMargins beside(fittedCorner.x(), fittedCorner.y(), frame.width() - fitted.width() - fittedCorner.x(),
                          frame.height() - fitted.height() - fittedCorner.y());

    QSize placedSize;
    const QTransform placement = ZTBatchOutputSettings::CalculateOutputTransformation(
                                     fitted, framing.angle, framing.margins - beside, &placedSize) *
                                 QTransform::fromTranslate(fittedCorner.x(), fittedCorner.y());
    hasRoom = placedSize.isValid();
    const int angle = hasRoom ? framing.angle : 0;
    const QSize size = AtLeastOnePixel(hasRoom ? placedSize : fitted);

    if (angle % 90 == 0) {
        quarterTurns = ((angle / 90) % 4 + 4) % 4;
        drawn = size;
        const QSize turned = quarterTurns % 2 == 0 ? drawn : drawn.transposed();
        const QPointF centre = placement.map(QPointF(fitted.width() / 2.0, fitted.height() / 2.0));
        upright =
            QRect(QPoint(Round(centre.x() - turned.width() / 2.0), Round(centre.y() - turned.height() / 2.0)), turned);
        const QRectF area(upright);
        const std::array<QPointF, 4> clockwise{area.topLeft(), area.topRight(), area.bottomRight(), area.bottomLeft()};
        for (int i = 0; i < 4; ++i) {
            corners[std::size_t(i)] = clockwise[std::size_t((i + quarterTurns) % 4)];
        }
        toFrame = QTransform::fromTranslate(-drawn.width() / 2.0, -drawn.height() / 2.0) *
                  QTransform().rotate(quarterTurns * 90) *
                  QTransform::fromTranslate(area.center().x(), area.center().y());
        return;
    }

    // A picture that gets smaller is scaled on its own, by a filter that is made for that; one that gets larger is
    // scaled and turned in one step.
    quarterTurns = -1;
    const bool getsSmaller = ScaleOf(placement) * fitted.width() < picture.width();
    drawn = getsSmaller ? size : picture;
    toFrame = QTransform::fromScale(fitted.width() / double(drawn.width()), fitted.height() / double(drawn.height())) *
              placement;
    const QRectF area(QPointF(0, 0), QSizeF(fitted));
    corners = {placement.map(area.topLeft()), placement.map(area.topRight()), placement.map(area.bottomRight()),
               placement.map(area.bottomLeft())};
}

} // namespace BatchWorker
