// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Blurred.h"
#include "EffectFunctions.h"

#include "server/worker/pixels/PixelForms.h"
#include "server/worker/pixels/SampleRange.h"
#include "server/worker/pixels/VectorCode.h"

#include <cmath>
#include <cstdint>

namespace BatchWorker {

namespace {

struct UnsharpMask
{
    float amount;
    float threshold; ///< of 0 to 1
};

template<typename Sample>
BATCH_VECTOR_CODE void SharpenSamples(const UnsharpMask& mask, const Sample* samples, const float* blurred, int count,
                                      Sample* results)
{
    const float threshold = mask.threshold * largestSample<Sample>;
    const float amount = mask.amount;
    for (int i = 0; i < count; ++i) {
        const auto value = static_cast<float>(samples[i]);
        const float difference = value - blurred[i];
        results[i] = Rounded<Sample>(value + (std::abs(difference) >= threshold ? amount : 0.0F) * difference);
    }
}

template<typename Sample>
MixPixels SharpenedBy(const UnsharpMask& mask, int bands, bool hasAlpha)
{
    return [=](const VipsPel* pixels, const float* blurred, int count, VipsPel* results) {
        const auto* const samples = static_cast<const Sample*>(static_cast<const void*>(pixels));
        auto* const sharpened = static_cast<Sample*>(static_cast<void*>(results));
        SharpenSamples(mask, samples, blurred, count * bands, sharpened);
        for (int i = bands - 1; hasAlpha && i < count * bands; i += bands) {
            sharpened[i] = samples[i];
        }
    };
}

} // namespace

Picture ApplySharpen(const Picture& picture, const QJsonObject& parameters)
{
    const double amount = parameters[QLatin1String("amount")].toDouble() / 100.0;
    const double threshold = parameters[QLatin1String("threshold")].toDouble() / 100.0;
    if (amount == 0.0) {
        return picture;
    }
    const UnsharpMask mask{static_cast<float>(amount), static_cast<float>(threshold)};
    const int bands = picture.bands();
    const bool hasAlpha = picture.has_alpha();
    return MixedWithBlurred(picture, BlurSubject::Colours, parameters[QLatin1String("sigma")].toDouble(),
                            HasSixteenBits(picture) ? SharpenedBy<std::uint16_t>(mask, bands, hasAlpha)
                                                    : SharpenedBy<std::uint8_t>(mask, bands, hasAlpha));
}

} // namespace BatchWorker
