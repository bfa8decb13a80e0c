// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectFunctions.h"

#include "server/worker/pixels/PixelFilter.h"

#include <algorithm>
#include <cmath>

namespace BatchWorker {

Picture ApplyLevels(const Picture& picture, const QJsonObject& parameters)
{
    const double black = parameters[QLatin1String("black")].toDouble() / 100.0;
    const double white = parameters[QLatin1String("white")].toDouble() / 100.0;
    const double gamma = parameters[QLatin1String("gamma")].toDouble();
    if (black == 0.0 && white == 1.0 && gamma == 1.0) {
        return picture;
    }
    return MapValues(picture, [black, white, gamma](double value) {
        return std::pow(std::clamp((value - black) / (white - black), 0.0, 1.0), 1.0 / gamma);
    });
}

} // namespace BatchWorker
