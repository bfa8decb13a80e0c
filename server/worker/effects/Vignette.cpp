// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectFunctions.h"

#include "server/worker/pixels/PixelFilter.h"

#include <algorithm>
#include <cmath>

namespace BatchWorker {

Picture ApplyVignette(const Picture& picture, const QJsonObject& parameters)
{
    const double amount = parameters[QLatin1String("amount")].toDouble() / 100.0;
    const double start = parameters[QLatin1String("start")].toDouble() / 100.0;
    // Without softness: a very short transition.
    constexpr double shortest = 1e-6;
    const double softness = std::max(parameters[QLatin1String("softness")].toDouble() / 100.0, shortest);
    if (amount == 0.0) {
        return picture;
    }
    const double halfWidth = picture.width() / 2.0;
    const double halfHeight = picture.height() / 2.0;
    const double target = amount < 0.0 ? 0.0 : 1.0;
    return MapColours(picture, nullptr, [=](std::array<double, 3>& colour, const float*, int x, int y) {
        const double across = (x + 0.5 - halfWidth) / halfWidth;
        const double down = (y + 0.5 - halfHeight) / halfHeight;
        const double distance = std::sqrt((across * across + down * down) / 2.0);
        const double t = std::clamp((distance - start) / softness, 0.0, 1.0);
        const double share = std::abs(amount) * t * t * (3.0 - 2.0 * t);
        for (double& value : colour) {
            value += share * (target - value);
        }
    });
}

} // namespace BatchWorker
