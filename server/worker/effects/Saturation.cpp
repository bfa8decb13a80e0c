// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourMatrix.h"
#include "EffectFunctions.h"
#include "Luminance.h"

#include "server/worker/pixels/PixelForms.h"

namespace BatchWorker {

// Leaves a grey picture as it is.
Picture ApplySaturation(const Picture& picture, const QJsonObject& parameters)
{
    const double amount = parameters[QLatin1String("amount")].toDouble() / 100.0;
    if (amount == 0.0 || ColourBands(picture) == 1) {
        return picture;
    }
    const ColourMatrix luma{brightnessWeights, brightnessWeights, brightnessWeights};
    return Multiplied(picture, Towards(luma, -amount));
}

} // namespace BatchWorker
