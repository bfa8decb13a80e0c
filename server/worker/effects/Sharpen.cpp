// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Blurred.h"
#include "EffectFunctions.h"

#include "server/worker/pixels/PixelFilter.h"

#include <cmath>

namespace BatchWorker {

Picture ApplySharpen(const Picture& picture, const QJsonObject& parameters)
{
    const double amount = parameters[QLatin1String("amount")].toDouble() / 100.0;
    const double threshold = parameters[QLatin1String("threshold")].toDouble() / 100.0;
    if (amount == 0.0) {
        return picture;
    }
    const Picture mask = BlurredColours(picture, parameters[QLatin1String("sigma")].toDouble());
    const auto bands = static_cast<size_t>(ColourBands(picture));
    return MapColours(picture, &mask,
                      [amount, threshold, bands](std::array<double, 3>& colour, const float* blurred, int, int) {
                          for (size_t band = 0; band < bands; ++band) {
                              const double difference = colour[band] - double(blurred[band]);
                              if (std::abs(difference) >= threshold) {
                                  colour[band] += amount * difference;
                              }
                          }
                      });
}

} // namespace BatchWorker
