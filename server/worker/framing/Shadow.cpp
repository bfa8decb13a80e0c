// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Shadow.h"

#include "job/values/JobValues.h"
#include "server/worker/geometry/Coverage.h"
#include "server/worker/pixels/GeneratedPicture.h"
#include "server/worker/pixels/PixelForms.h"

#include <QtMath>

#include <algorithm>
#include <cmath>
#include <vector>

namespace BatchWorker {

namespace {

// Beyond this many sigmas a Gaussian has less than a part in ten thousand of its weight.
constexpr double reach = 4;

// A shape is blurred in cells of several pixels once they are small beside the sigma: it cannot be seen, and the cost
// does not grow with the sigma.
constexpr int coarseSigma = 16;

// The integral of a Gaussian around 0, from the far left to a place, from a table.
class GaussianIntegral
{
public:
    explicit GaussianIntegral(double sigma)
        : stepsPerPixel(stepsPerSigma / sigma)
    {
        for (int step = 0; step <= stepCount; ++step) {
            const double place = double(step - middleStep) / stepsPerSigma;
            values.push_back(static_cast<float>((1 + std::erf(place / std::sqrt(2.0))) / 2));
        }
    }

    float At(double pixels) const
    {
        const double step = pixels * stepsPerPixel + middleStep;
        if (step <= 0) {
            return 0;
        }
        if (step >= stepCount) {
            return 1;
        }
        const auto lower = static_cast<std::size_t>(step);
        const auto part = static_cast<float>(step - double(lower));
        return values[lower] + (values[lower + 1] - values[lower]) * part;
    }

private:
    static constexpr int stepsPerSigma = 128;
    static constexpr int middleStep = int(reach) * stepsPerSigma;
    static constexpr int stepCount = 2 * middleStep;

    double stepsPerPixel;
    std::vector<float> values;
};

// A rectangle seen along its own two axes, which a Gaussian blurs independently of each other.
class BlurredRectangle
{
public:
    BlurredRectangle(const std::array<QPointF, 4>& corners, double sigma)
        : centre((corners[0] + corners[2]) / 2)
        , across(corners[1] - corners[0])
        , down(corners[3] - corners[0])
        , halfWidth(Length(across) / 2)
        , halfHeight(Length(down) / 2)
        , integral(sigma)
    {
        across /= 2 * halfWidth;
        down /= 2 * halfHeight;
    }

    float At(double x, double y) const
    {
        const QPointF place = QPointF(x, y) - centre;
        return Profile(QPointF::dotProduct(place, across), halfWidth) *
               Profile(QPointF::dotProduct(place, down), halfHeight);
    }

private:
    static double Length(const QPointF& vector) { return std::hypot(vector.x(), vector.y()); }

    float Profile(double place, double half) const { return integral.At(place + half) - integral.At(place - half); }

    QPointF centre;
    QPointF across;
    QPointF down;
    double halfWidth;
    double halfHeight;
    GaussianIntegral integral;
};

} // namespace

QPoint ShadowOffset(const ZTBatchOutputSettings::Transformation& framing)
{
    if (framing.shadowMode == int(BatchJob::ShadowMode::ContactGlow)) {
        return QPoint(0, 0);
    }
    const double light = qDegreesToRadians(double(framing.shadowAngle));
    return QPointF(-std::cos(light) * framing.shadowDistance, std::sin(light) * framing.shadowDistance).toPoint();
}

Picture ShadowOfRectangle(const FramePlacement& placement, const ZTBatchOutputSettings::Transformation& framing)
{
    std::array<QPointF, 4> corners = placement.corners;
    for (QPointF& corner : corners) {
        corner += ShadowOffset(framing);
    }
    if (framing.shadowSize <= 0) {
        return Coverage(corners).OfFrame(placement.frame);
    }
    const PictureShape shape{placement.frame.width(), placement.frame.height(), 1, VIPS_FORMAT_FLOAT,
                             VIPS_INTERPRETATION_MULTIBAND};
    const BlurredRectangle shadow(corners, framing.shadowSize);
    return GeneratePicture(shape, {}, [shadow](VipsRegion* target, const std::vector<VipsRegion*>&) {
        const VipsRect& area = target->valid;
        for (int y = area.top; y < area.top + area.height; ++y) {
            auto* line = PixelAt<float>(target, area.left, y);
            for (int x = 0; x < area.width; ++x) {
                line[x] = shadow.At(area.left + x + 0.5, y + 0.5);
            }
        }
    });
}

Picture ShadowOfAlpha(const Picture& placedPicture, const Picture& coverage,
                      const ZTBatchOutputSettings::Transformation& framing)
{
    const Picture shape = (AlphaOf(placedPicture) * coverage).linear(1 / LargestValue(placedPicture), 0);
    const int width = shape.width();
    const int height = shape.height();
    const QPoint offset = ShadowOffset(framing);
    if (framing.shadowSize <= 0) {
        return shape.embed(offset.x(), offset.y(), width, height);
    }
    const int cell = std::max(1, framing.shadowSize / coarseSigma);
    const double sigma = framing.shadowSize / double(cell);
    const int cellsAcross = (width + cell - 1) / cell;
    const int cellsDown = (height + cell - 1) / cell;
    // Room on all sides, so that the blur never meets the frame's edge.
    const int room = static_cast<int>(std::ceil(sigma * reach));
    constexpr double leastWeight = 0.002;
    const Picture blurred = shape.embed(0, 0, cellsAcross * cell, cellsDown * cell)
                                .shrink(cell, cell)
                                .embed(room, room, cellsAcross + 2 * room, cellsDown + 2 * room)
                                .gaussblur(sigma, Picture::option()->set("min_ampl", leastWeight));
    // The library counts from the centres of pixels.
    const double firstCell = (cell - 1) / 2.0 - room * cell;
    const std::vector<double> enlarge{double(cell), 0, 0, double(cell)};
    const std::vector<int> frame{0, 0, width, height};
    return blurred.affine(
        enlarge,
        Picture::option()->set("odx", firstCell + offset.x())->set("ody", firstCell + offset.y())->set("oarea", frame));
}

} // namespace BatchWorker
