// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Blurred.h"

#include "EnlargedRows.h"
#include "GaussianRows.h"
#include "Reduction.h"

#include "job/effects/BlurLimits.h"
#include "server/worker/pixels/FilledPicture.h"
#include "server/worker/pixels/PixelForms.h"
#include "server/worker/pixels/SampleRange.h"
#include "server/worker/pixels/VectorCode.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <memory>
#include <type_traits>
#include <vector>

namespace BatchWorker {

namespace {

constexpr double leastReducedSigma = 4.0;

using MakeRows = std::function<std::unique_ptr<BlurredRows>()>;

class BlurredAreas : public AreaFiller
{
public:
    BlurredAreas(std::unique_ptr<BlurredRows> rows, BlurValues values, MixPixels mix)
        : rows(std::move(rows))
        , values(values)
        , mix(std::move(mix))
    {
    }

    bool Fill(VipsRegion* target, VipsRegion* source) override
    {
        VipsRect strip = target->valid;
        const int end = strip.top + strip.height;
        for (; strip.top < end; strip.top += strip.height) {
            strip.height = std::min(BlurredRows::rowsAtOnce, end - strip.top);
            if (!rows->Take(source, strip)) {
                return false;
            }
            for (int x = strip.left; x < strip.left + strip.width; x += BlurredRows::pixelsAtOnce) {
                const int count = std::min(BlurredRows::pixelsAtOnce, strip.left + strip.width - x);
                for (int y = strip.top; y < strip.top + strip.height; ++y) {
                    rows->Give(x, y, count, blurred.data());
                    values.Finish(blurred.data(), count);
                    mix(rows->Samples(x, y), blurred.data(), count, VIPS_REGION_ADDR(target, x, y));
                }
            }
        }
        return true;
    }

private:
    static constexpr int mostBands = 4;

    std::unique_ptr<BlurredRows> rows;
    BlurValues values;
    MixPixels mix;
    std::array<float, static_cast<std::size_t>(BlurredRows::pixelsAtOnce) * mostBands> blurred{};
};

MakeRows GaussianRowsOf(const Picture& picture, const BlurValues& values, double sigma)
{
    const auto kernel = std::make_shared<const GaussianKernel>(sigma);
    return [=] { return std::make_unique<GaussianRows>(picture, values, kernel); };
}

/// Floating-point values of any meaning.
Picture BlurredBands(const Picture& picture, double sigma)
{
    const BlurValues values(picture, BlurSubject::Bands);
    const MakeRows make = GaussianRowsOf(picture, values, sigma);
    const auto pixelSize = static_cast<std::size_t>(values.PixelSize());
    const MixPixels take = [pixelSize](const VipsPel*, const float* blurred, int count, VipsPel* results) {
        std::memcpy(results, blurred, static_cast<std::size_t>(count) * pixelSize);
    };
    return FilledPicture(ShapeOf(picture), picture, VIPS_DEMAND_STYLE_FATSTRIP,
                         [=] { return std::make_unique<BlurredAreas>(make(), values, take); });
}

/// Read in order by this thread alone: several would ask for rows of the picture in any order.
template<typename Stored>
std::vector<Stored> ValuesOf(const Picture& picture)
{
    constexpr float parts = std::is_same_v<Stored, float> ? 1.0F : SmallCopy::partsOfByte;
    const std::unique_ptr<VipsRegion, void (*)(gpointer)> region(vips_region_new(picture.get_image()), g_object_unref);
    const std::size_t valuesOfRow = VIPS_IMAGE_N_ELEMENTS(picture.get_image());
    std::vector<Stored> values;
    values.reserve(valuesOfRow * static_cast<std::size_t>(picture.height()));
    for (int top = 0; top < picture.height(); top += BlurredRows::rowsAtOnce) {
        const int end = std::min(top + BlurredRows::rowsAtOnce, picture.height());
        const VipsRect strip{0, top, picture.width(), end - top};
        if (!region || vips_region_prepare(region.get(), &strip) != 0) {
            throw vips::VError();
        }
        for (int y = top; y < end; ++y) {
            const auto* const row = PixelAt<const float>(region.get(), 0, y);
            std::transform(row, row + valuesOfRow, std::back_inserter(values),
                           [](float value) { return Rounded<Stored>(value * parts); });
        }
    }
    return values;
}

std::shared_ptr<const SmallCopy> SmallCopyOf(const Picture& picture, const BlurValues& values, double sigma)
{
    const int factor = static_cast<int>(sigma / leastReducedSigma);
    // Variances add up: of the mean over a block, and of the linear interpolation between blocks.
    const double square = double(factor) * factor;
    const double done = (square - 1.0) / 12.0 + square / 6.0;
    const double rest = std::sqrt(sigma * sigma - done) / factor;
    const Picture blurred = BlurredBands(ReducedByBlocks(picture, values, factor), rest);
    auto copy = std::make_shared<SmallCopy>(SmallCopy{blurred.width(), factor, {}});
    if (HasSixteenBits(picture)) {
        copy->values = ValuesOf<float>(blurred);
    } else {
        copy->values = ValuesOf<std::uint16_t>(blurred);
    }
    return copy;
}

Picture BlurredAndMixed(const Picture& picture, const BlurValues& values, double sigma, bool readsPicture,
                        const MixPixels& mix)
{
    MakeRows make;
    if (sigma <= BatchJob::largestDirectSigma) {
        make = GaussianRowsOf(picture, values, sigma);
    } else {
        const std::shared_ptr<const SmallCopy> copy = SmallCopyOf(picture, values, sigma);
        make = [=] { return std::make_unique<EnlargedRows>(copy, values, readsPicture); };
    }
    return FilledPicture(ShapeOf(picture), picture, VIPS_DEMAND_STYLE_FATSTRIP,
                         [=] { return std::make_unique<BlurredAreas>(make(), values, mix); });
}

template<typename Sample>
BATCH_VECTOR_CODE void Round(const float* values, int count, Sample* samples)
{
    for (int i = 0; i < count; ++i) {
        samples[i] = Rounded<Sample>(values[i]);
    }
}

} // namespace

Picture Blurred(const Picture& picture, double sigma)
{
    const bool isDeep = HasSixteenBits(picture);
    const int bands = picture.bands();
    const MixPixels round = [isDeep, bands](const VipsPel*, const float* blurred, int count, VipsPel* results) {
        void* const samples = results;
        if (isDeep) {
            Round(blurred, count * bands, static_cast<std::uint16_t*>(samples));
        } else {
            Round(blurred, count * bands, static_cast<std::uint8_t*>(samples));
        }
    };
    return BlurredAndMixed(picture, BlurValues(picture, BlurSubject::Colours), sigma, false, round);
}

Picture MixedWithBlurred(const Picture& picture, BlurSubject subject, double sigma, const MixPixels& mix)
{
    return BlurredAndMixed(picture, BlurValues(picture, subject), sigma, true, mix);
}

} // namespace BatchWorker
