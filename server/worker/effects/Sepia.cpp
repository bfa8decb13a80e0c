// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectFunctions.h"

#include "server/worker/colour/PictureColours.h"
#include "server/worker/pixels/PixelFilter.h"

namespace BatchWorker {

// The matrix of sepia() in the W3C's Filter Effects Module Level 1. A grey picture becomes RGB.
Picture ApplySepia(const Picture& picture, const QJsonObject& parameters)
{
    const double amount = parameters[QLatin1String("amount")].toDouble() / 100.0;
    if (amount == 0.0) {
        return picture;
    }
    return MapColours(AsRgb(picture), [amount](std::array<double, 3>& colour) {
        const auto [red, green, blue] = colour;
        const std::array<double, 3> toned{0.393 * red + 0.769 * green + 0.189 * blue,
                                          0.349 * red + 0.686 * green + 0.168 * blue,
                                          0.272 * red + 0.534 * green + 0.131 * blue};
        for (size_t band = 0; band < 3; ++band) {
            colour[band] += amount * (toned[band] - colour[band]);
        }
    });
}

} // namespace BatchWorker
