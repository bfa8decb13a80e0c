// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectFunctions.h"

#include "server/worker/pixels/GeneratedPicture.h"
#include "server/worker/pixels/PixelForms.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace BatchWorker {

namespace {

/// The weights of a bilateral filter (Tomasi and Manduchi, 1998).
class BilateralWeights
{
public:
    BilateralWeights(double strength, double sigma)
        : radius(static_cast<int>(std::ceil(2.0 * sigma)))
        , scale(entriesPerUnit / (2.0 * strength * strength))
    {
        for (int y = -radius; y <= radius; ++y) {
            for (int x = -radius; x <= radius; ++x) {
                near.push_back(static_cast<float>(std::exp(-(x * x + y * y) / (2.0 * sigma * sigma))));
            }
        }
        for (int entry = 0; entry < entriesPerUnit * largestExponent; ++entry) {
            alike.push_back(static_cast<float>(std::exp(-(entry + 0.5) / entriesPerUnit)));
        }
        alike.front() = 1.0F;
    }

    int Radius() const { return radius; }
    const float* Near() const { return near.data(); }

    /// For the mean of the squared differences, of values of 0 to 1.
    float Alike(float squares) const
    {
        const auto entry = static_cast<size_t>(squares * scale);
        return entry < alike.size() ? alike[entry] : 0.0F;
    }

private:
    static constexpr int entriesPerUnit = 1024;
    static constexpr int largestExponent = 10; // exp(-10) is less than a rounding step

    int radius;
    double scale;
    std::vector<float> near;
    std::vector<float> alike;
};

/// The weighted mean of the neighbours of one pixel, `stride` samples a line; opaque ones count most, of others none.
template<typename Sample>
void Smooth(const Sample* centre, std::ptrdiff_t stride, int bands, const BilateralWeights& weights, Sample* out)
{
    constexpr float largest = sizeof(Sample) == 1 ? 255.0F : 65535.0F;
    const int colourBands = bands < 3 ? 1 : 3;
    const float norm = 1.0F / (largest * largest * static_cast<float>(colourBands));
    const int radius = weights.Radius();
    const float* near = weights.Near();
    std::array<float, 3> sums{};
    float total = 0.0F;
    for (int y = -radius; y <= radius; ++y) {
        const Sample* neighbour = centre + y * stride - radius * bands;
        for (int x = -radius; x <= radius; ++x, ++near, neighbour += bands) {
            float squares = 0.0F;
            for (int band = 0; band < colourBands; ++band) {
                const float difference = static_cast<float>(neighbour[band]) - static_cast<float>(centre[band]);
                squares += difference * difference;
            }
            float weight = *near * weights.Alike(squares * norm);
            if (bands > colourBands) {
                weight *= static_cast<float>(neighbour[colourBands]) / largest;
            }
            total += weight;
            for (int band = 0; band < colourBands; ++band) {
                sums[static_cast<size_t>(band)] += weight * static_cast<float>(neighbour[band]);
            }
        }
    }
    for (int band = 0; band < colourBands; ++band) {
        // A pixel that is itself transparent may have no neighbour that counts.
        out[band] = total > 0.0F ? static_cast<Sample>(sums[static_cast<size_t>(band)] / total + 0.5F) : centre[band];
    }
    if (bands > colourBands) {
        out[colourBands] = centre[colourBands];
    }
}

template<typename Sample>
void SmoothArea(VipsRegion* input, VipsRegion* output, const BilateralWeights& weights)
{
    const VipsRect& area = output->valid;
    const int bands = output->im->Bands;
    const int radius = weights.Radius();
    const auto stride = static_cast<std::ptrdiff_t>(VIPS_REGION_LSKIP(input) / sizeof(Sample));
    for (int y = area.top; y < area.top + area.height; ++y) {
        const auto* in = PixelAt<const Sample>(input, area.left + radius, y + radius);
        auto* out = PixelAt<Sample>(output, area.left, y);
        for (int x = 0; x < area.width; ++x, in += bands, out += bands) {
            Smooth(in, stride, bands, weights, out);
        }
    }
}

} // namespace

Picture ApplyDenoise(const Picture& picture, const QJsonObject& parameters)
{
    const double strength = parameters[QLatin1String("strength")].toDouble() / 100.0;
    if (strength == 0.0) {
        return picture;
    }
    const auto weights =
        std::make_shared<const BilateralWeights>(strength, parameters[QLatin1String("sigma")].toDouble());
    const int radius = weights->Radius();
    const Picture padded = picture.embed(radius, radius, picture.width() + 2 * radius, picture.height() + 2 * radius,
                                         Picture::option()->set("extend", VIPS_EXTEND_COPY));
    const bool isDeep = HasSixteenBits(picture);
    const auto smooth = [weights, isDeep](VipsRegion* target, const std::vector<VipsRegion*>& inputs) {
        if (isDeep) {
            SmoothArea<std::uint16_t>(inputs[0], target, *weights);
        } else {
            SmoothArea<std::uint8_t>(inputs[0], target, *weights);
        }
    };
    return GeneratePicture(ShapeOf(picture), {padded}, smooth, radius);
}

} // namespace BatchWorker
