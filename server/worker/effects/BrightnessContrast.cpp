// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectFunctions.h"

#include "server/worker/pixels/PixelFilter.h"

#include <algorithm>

namespace BatchWorker {

Picture ApplyBrightnessContrast(const Picture& picture, const QJsonObject& parameters)
{
    const double shift = parameters[QLatin1String("brightness")].toDouble() / 100.0;
    const double contrast = parameters[QLatin1String("contrast")].toDouble() / 100.0;
    if (shift == 0.0 && contrast == 0.0) {
        return picture;
    }
    // At full contrast everything is black or white, without a division by zero.
    constexpr double least = 1e-9;
    const double slope = contrast < 0.0 ? 1.0 + contrast : 1.0 / std::max(1.0 - contrast, least);
    return MapValues(picture, [shift, slope](double value) { return (value + shift - 0.5) * slope + 0.5; });
}

} // namespace BatchWorker
