// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectFunctions.h"
#include "Luminance.h"

#include "server/worker/pixels/PixelFilter.h"

namespace BatchWorker {

// Light adds up in linear values, so the picture is multiplied there and not in its encoded values.
Picture ApplyExposure(const Picture& picture, const QJsonObject& parameters)
{
    const double stops = parameters[QLatin1String("stops")].toDouble();
    if (stops == 0.0) {
        return picture;
    }
    const double gain = std::exp2(stops);
    return MapValues(picture, [gain](double value) { return ValueOf(LightOf(value) * gain); });
}

} // namespace BatchWorker
