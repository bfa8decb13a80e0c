// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectFunctions.h"
#include "Luminance.h"

#include "server/worker/pixels/PixelFilter.h"

#include <algorithm>

namespace BatchWorker {

// Leaves a grey picture as it is.
Picture ApplyVibrance(const Picture& picture, const QJsonObject& parameters)
{
    const double amount = parameters[QLatin1String("amount")].toDouble() / 100.0;
    if (amount == 0.0 || ColourBands(picture) == 1) {
        return picture;
    }
    return MapColours(picture, [amount](std::array<double, 3>& colour) {
        const double luma = WeightedSum(colour);
        const auto [least, most] = std::minmax_element(colour.begin(), colour.end());
        const double factor = 1.0 + amount * (1.0 - (*most - *least));
        for (double& value : colour) {
            value = luma + factor * (value - luma);
        }
    });
}

} // namespace BatchWorker
