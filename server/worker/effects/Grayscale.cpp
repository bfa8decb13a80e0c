// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourMatrix.h"
#include "EffectFunctions.h"
#include "Luminance.h"
#include "LuminanceGrey.h"

#include "server/worker/pixels/PixelForms.h"

namespace BatchWorker {

// Three equal channels; a grey picture stays as it is.
Picture ApplyGrayscale(const Picture& picture, const QJsonObject& parameters)
{
    if (ColourBands(picture) == 1) {
        return picture;
    }
    const QString method = parameters[QLatin1String("method")].toString();
    if (method == QLatin1String("luminance")) {
        return WithOperation(picture, GreyByLuminance(HasSixteenBits(picture) ? 16 : 8));
    }
    constexpr std::array<double, 3> thirds{1.0 / 3.0, 1.0 / 3.0, 1.0 / 3.0};
    const std::array<double, 3> weights = method == QLatin1String("luma") ? brightnessWeights : thirds;
    return Multiplied(picture, {weights, weights, weights});
}

} // namespace BatchWorker
