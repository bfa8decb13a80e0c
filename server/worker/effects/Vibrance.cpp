// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectFunctions.h"
#include "Luminance.h"

#include "server/worker/pixels/PixelForms.h"
#include "server/worker/pixels/PointPass.h"
#include "server/worker/pixels/VectorCode.h"

namespace BatchWorker {

namespace {

template<typename Sample>
BATCH_VECTOR_CODE void ChangeVibrance(Sample* __restrict red, Sample* __restrict green, Sample* __restrict blue,
                                      int count, double amount)
{
    using Number = NumberFor<Sample>;
    constexpr std::array<Number, 3> weights{Number(brightnessWeights[0]), Number(brightnessWeights[1]),
                                            Number(brightnessWeights[2])};
    const auto greyFactor = static_cast<Number>(1.0 + amount);
    const auto amountOfStep = static_cast<Number>(amount / largestNumber<Sample>);
    for (int i = 0; i < count; ++i) {
        const Number r = NumberOf(red[i]);
        const Number g = NumberOf(green[i]);
        const Number b = NumberOf(blue[i]);
        const Number luma = weights[0] * r + weights[1] * g + weights[2] * b;
        const Number less = r < g ? r : g;
        const Number more = r > g ? r : g;
        const Number least = less < b ? less : b;
        const Number most = more > b ? more : b;
        const Number factor = greyFactor - amountOfStep * (most - least);
        red[i] = SampleNear<Sample>(luma + factor * (r - luma));
        green[i] = SampleNear<Sample>(luma + factor * (g - luma));
        blue[i] = SampleNear<Sample>(luma + factor * (b - luma));
    }
}

} // namespace

// Leaves a grey picture as it is.
Picture ApplyVibrance(const Picture& picture, const QJsonObject& parameters)
{
    const double amount = parameters[QLatin1String("amount")].toDouble() / 100.0;
    if (amount == 0.0 || ColourBands(picture) == 1) {
        return picture;
    }
    return WithOperation(picture, OperationBy([amount](const auto& pixels) {
                             ChangeVibrance(pixels.planes[0], pixels.planes[1], pixels.planes[2], pixels.count, amount);
                         }));
}

} // namespace BatchWorker
