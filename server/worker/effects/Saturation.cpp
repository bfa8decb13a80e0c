// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectFunctions.h"
#include "Luminance.h"

#include "server/worker/pixels/PixelFilter.h"

namespace BatchWorker {

// Leaves a grey picture as it is.
Picture ApplySaturation(const Picture& picture, const QJsonObject& parameters)
{
    const double amount = parameters[QLatin1String("amount")].toDouble() / 100.0;
    if (amount == 0.0 || ColourBands(picture) == 1) {
        return picture;
    }
    return MapColours(picture, [factor = 1.0 + amount](std::array<double, 3>& colour) {
        const double luma = WeightedSum(colour);
        for (double& value : colour) {
            value = luma + factor * (value - luma);
        }
    });
}

} // namespace BatchWorker
