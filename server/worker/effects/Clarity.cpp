// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Blurred.h"
#include "EffectFunctions.h"
#include "Luma.h"

#include "server/worker/pixels/PixelForms.h"
#include "server/worker/pixels/SampleRange.h"
#include "server/worker/pixels/VectorCode.h"

#include <cstdint>

namespace BatchWorker {

namespace {

/// How much each channel of a pixel changes.
template<typename Sample>
inline float ChangeOf(float luma, float blurred, float amount)
{
    constexpr float share = 1.0F / largestSample<Sample>;
    const float middle = 4.0F * (luma * share) * (1.0F - luma * share);
    return amount * middle * (luma - blurred);
}

template<typename Sample, int bands>
BATCH_VECTOR_CODE void ClarifyGrey(float amount, const Sample* samples, const float* blurred, int count,
                                   Sample* results)
{
    for (int i = 0; i < count; ++i) {
        const auto value = static_cast<float>(samples[i * bands]);
        results[i * bands] = Rounded<Sample>(value + ChangeOf<Sample>(value, blurred[i], amount));
        if (bands > 1) {
            results[i * bands + 1] = samples[i * bands + 1];
        }
    }
}

template<typename Sample, int bands>
BATCH_VECTOR_CODE void ClarifyColours(float amount, const Sample* samples, const float* blurred, int count,
                                      Sample* results)
{
    for (int i = 0; i < count; ++i) {
        const Sample* const pixel = samples + i * bands;
        Sample* const result = results + i * bands;
        const float change = ChangeOf<Sample>(LumaOf(pixel[0], pixel[1], pixel[2]), blurred[i], amount);
        result[0] = Rounded<Sample>(static_cast<float>(pixel[0]) + change);
        result[1] = Rounded<Sample>(static_cast<float>(pixel[1]) + change);
        result[2] = Rounded<Sample>(static_cast<float>(pixel[2]) + change);
        if (bands > 3) {
            result[3] = pixel[3];
        }
    }
}

template<typename Sample>
MixPixels ClarifiedBy(float amount, int bands)
{
    return [=](const VipsPel* pixels, const float* blurred, int count, VipsPel* results) {
        const auto* const samples = static_cast<const Sample*>(static_cast<const void*>(pixels));
        auto* const clear = static_cast<Sample*>(static_cast<void*>(results));
        switch (bands) {
        case 1:
            return ClarifyGrey<Sample, 1>(amount, samples, blurred, count, clear);
        case 2:
            return ClarifyGrey<Sample, 2>(amount, samples, blurred, count, clear);
        case 3:
            return ClarifyColours<Sample, 3>(amount, samples, blurred, count, clear);
        default:
            return ClarifyColours<Sample, 4>(amount, samples, blurred, count, clear);
        }
    };
}

} // namespace

Picture ApplyClarity(const Picture& picture, const QJsonObject& parameters)
{
    const double amount = parameters[QLatin1String("amount")].toDouble() / 100.0;
    if (amount == 0.0) {
        return picture;
    }
    const auto factor = static_cast<float>(amount);
    return MixedWithBlurred(picture, BlurSubject::Luma, parameters[QLatin1String("sigma")].toDouble(),
                            HasSixteenBits(picture) ? ClarifiedBy<std::uint16_t>(factor, picture.bands())
                                                    : ClarifiedBy<std::uint8_t>(factor, picture.bands()));
}

} // namespace BatchWorker
