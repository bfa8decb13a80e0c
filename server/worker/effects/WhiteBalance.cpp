// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectFunctions.h"
#include "Luminance.h"

#include "server/worker/pixels/PixelFilter.h"

namespace BatchWorker {

// Leaves a grey picture as it is.
Picture ApplyWhiteBalance(const Picture& picture, const QJsonObject& parameters)
{
    const double temperature = parameters[QLatin1String("temperature")].toDouble() / 100.0;
    const double tint = parameters[QLatin1String("tint")].toDouble() / 100.0;
    if ((temperature == 0.0 && tint == 0.0) || ColourBands(picture) == 1) {
        return picture;
    }
    const std::array<double, 3> gains{std::exp2(temperature / 2.0), std::exp2(-tint / 2.0),
                                      std::exp2(-temperature / 2.0)};
    const double luminance = WeightedSum(gains);
    std::array<ValueFunction, 3> functions;
    for (size_t band = 0; band < 3; ++band) {
        const double gain = gains[band] / luminance;
        functions[band] = [gain](double value) { return ValueOf(LightOf(value) * gain); };
    }
    return MapValues(picture, functions);
}

} // namespace BatchWorker
