// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectFunctions.h"

#include "server/worker/pixels/PixelFilter.h"

#include <cmath>

namespace BatchWorker {

Picture ApplyPosterize(const Picture& picture, const QJsonObject& parameters)
{
    const double steps = parameters[QLatin1String("levels")].toInt() - 1;
    return MapValues(picture, [steps](double value) { return std::floor(value * steps + 0.5) / steps; });
}

} // namespace BatchWorker
