// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "BilateralRow.h"
#include "EffectFunctions.h"

#include "server/worker/pixels/FilledPicture.h"
#include "server/worker/pixels/PixelForms.h"
#include "server/worker/pixels/RowWindow.h"
#include "server/worker/pixels/SampleRange.h"
#include "server/worker/pixels/VectorCode.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace BatchWorker {

namespace {

template<typename Sample, int bands>
BATCH_VECTOR_CODE void TakeApart(const Sample* samples, int count, float* planes, std::ptrdiff_t distance)
{
    for (int i = 0; i < count; ++i) {
        for (int band = 0; band < bands; ++band) {
            planes[band * distance + i] = static_cast<float>(samples[i * bands + band]);
        }
    }
}

template<typename Sample, int bands>
BATCH_VECTOR_CODE void PutTogether(const float* planes, std::ptrdiff_t distance, const Sample* samples, int count,
                                   Sample* results)
{
    constexpr int colours = bands < 3 ? 1 : 3;
    for (int i = 0; i < count; ++i) {
        for (int band = 0; band < colours; ++band) {
            results[i * bands + band] = Rounded<Sample>(planes[band * distance + i]);
        }
        if (bands > colours) {
            results[i * bands + colours] = samples[i * bands + colours];
        }
    }
}

/// Alpha stays.
template<typename Sample, int bands>
class SmoothedAreas : public AreaFiller
{
public:
    SmoothedAreas(const Picture& picture, std::shared_ptr<const BilateralWeights> weights)
        : width(picture.width())
        , height(picture.height())
        , weights(std::move(weights))
        , window(rowsAtOnce + 2 * this->weights->Radius())
        , rows(static_cast<std::size_t>(2 * this->weights->Radius() + 1))
    {
    }

    bool Fill(VipsRegion* target, VipsRegion* source) override
    {
        VipsRect strip = target->valid;
        const int end = strip.top + strip.height;
        for (; strip.top < end; strip.top += strip.height) {
            strip.height = std::min(rowsAtOnce, end - strip.top);
            if (!Take(source, strip)) {
                return false;
            }
            for (int y = strip.top; y < strip.top + strip.height; ++y) {
                MakeRow(y, strip.width, PixelAt<Sample>(target, strip.left, y));
            }
        }
        return true;
    }

private:
    static constexpr int rowsAtOnce = 16;
    static constexpr int colours = bands < 3 ? 1 : 3;
    static constexpr bool hasAlpha = bands > colours;

    // A row of the window has a plane for each band, with the radius on both sides, and then the samples of the area.
    bool Take(VipsRegion* source, const VipsRect& area)
    {
        const int radius = weights->Radius();
        distance = area.width + 2 * radius + smoothedAtOnce;
        results.resize(static_cast<std::size_t>(distance) * colours);
        const RowWindow::Range missing =
            window.Hold({std::max(area.top - radius, 0), std::min(area.top + area.height + radius, height)},
                        {area.left, area.left + area.width,
                         static_cast<std::size_t>(distance) * bands * sizeof(float) +
                             static_cast<std::size_t>(area.width) * bands * sizeof(Sample)});
        if (missing.first == missing.end) {
            return true;
        }
        const int first = std::max(area.left - radius, 0);
        const int end = std::min(area.left + area.width + radius, width);
        const VipsRect needed{first, missing.first, end - first, missing.end - missing.first};
        if (vips_region_prepare(source, &needed) != 0) {
            window.Forget();
            return false;
        }
        for (int y = missing.first; y < missing.end; ++y) {
            TakeRow(PixelAt<const Sample>(source, first, y), needed, area, y);
        }
        return true;
    }

    void TakeRow(const Sample* samples, const VipsRect& needed, const VipsRect& area, int y)
    {
        const int before = weights->Radius() - (area.left - needed.left);
        auto* const planes = window.Row<float>(y);
        TakeApart<Sample, bands>(samples, needed.width, planes + before, distance);
        for (int band = 0; band < bands; ++band) {
            float* const plane = planes + band * distance;
            if (band == colours) {
                std::transform(plane + before, plane + before + needed.width, plane + before,
                               [](float alpha) { return alpha / largestSample<Sample>; });
            }
            std::fill(plane, plane + before, plane[before]);
            std::fill(plane + before + needed.width, plane + distance, plane[before + needed.width - 1]);
        }
        std::copy_n(samples + (area.left - needed.left) * bands, area.width * bands, SamplesOf(y));
    }

    Sample* SamplesOf(int y)
    {
        return static_cast<Sample*>(static_cast<void*>(window.Row<float>(y) + distance * bands));
    }

    void MakeRow(int y, int count, Sample* made)
    {
        const int radius = weights->Radius();
        for (int i = 0; i <= 2 * radius; ++i) {
            rows[static_cast<std::size_t>(i)] = window.Row<float>(std::clamp(y + i - radius, 0, height - 1));
        }
        SmoothRow(*weights, {rows.data(), distance, hasAlpha}, colours, count, results.data());
        PutTogether<Sample, bands>(results.data(), distance, SamplesOf(y), count, made);
    }

    int width;
    int height;
    std::shared_ptr<const BilateralWeights> weights;
    RowWindow window;
    int distance = 0; ///< of planes
    std::vector<const float*> rows;
    std::vector<float> results;
};

template<typename Sample>
std::unique_ptr<AreaFiller> FillerFor(const Picture& picture, const std::shared_ptr<const BilateralWeights>& weights)
{
    switch (picture.bands()) {
    case 1:
        return std::make_unique<SmoothedAreas<Sample, 1>>(picture, weights);
    case 2:
        return std::make_unique<SmoothedAreas<Sample, 2>>(picture, weights);
    case 3:
        return std::make_unique<SmoothedAreas<Sample, 3>>(picture, weights);
    default:
        return std::make_unique<SmoothedAreas<Sample, 4>>(picture, weights);
    }
}

} // namespace

Picture ApplyDenoise(const Picture& picture, const QJsonObject& parameters)
{
    const double strength = parameters[QLatin1String("strength")].toDouble() / 100.0;
    if (strength == 0.0) {
        return picture;
    }
    const auto weights = std::make_shared<const BilateralWeights>(
        strength * LargestValue(picture), parameters[QLatin1String("sigma")].toDouble(), ColourBands(picture));
    return FilledPicture(ShapeOf(picture), picture, VIPS_DEMAND_STYLE_FATSTRIP, [=] {
        return HasSixteenBits(picture) ? FillerFor<std::uint16_t>(picture, weights)
                                       : FillerFor<std::uint8_t>(picture, weights);
    });
}

} // namespace BatchWorker
