// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectFunctions.h"
#include "Luminance.h"

#include "server/worker/pixels/PixelFilter.h"

#include <memory>

namespace BatchWorker {

namespace {

// Powers are slow, and there are few different values.
std::vector<double> LightTable(int entries)
{
    std::vector<double> table;
    table.reserve(static_cast<size_t>(entries));
    for (int entry = 0; entry < entries; ++entry) {
        table.push_back(LightOf(entry / double(entries - 1)));
    }
    return table;
}

Picture GreyByLuminance(const Picture& picture)
{
    const double largest = LargestValue(picture);
    const auto light = std::make_shared<const std::vector<double>>(LightTable(static_cast<int>(largest) + 1));
    return MapColours(picture, [light, largest](std::array<double, 3>& colour) {
        std::array<double, 3> lights{};
        for (size_t band = 0; band < 3; ++band) {
            lights[band] = (*light)[static_cast<size_t>(colour[band] * largest + 0.5)];
        }
        colour.fill(ValueOf(WeightedSum(lights)));
    });
}

} // namespace

// Three equal channels; a grey picture stays as it is.
Picture ApplyGrayscale(const Picture& picture, const QJsonObject& parameters)
{
    if (ColourBands(picture) == 1) {
        return picture;
    }
    const QString method = parameters[QLatin1String("method")].toString();
    if (method == QLatin1String("luminance")) {
        return GreyByLuminance(picture);
    }
    if (method == QLatin1String("luma")) {
        return MapColours(picture, [](std::array<double, 3>& colour) { colour.fill(WeightedSum(colour)); });
    }
    return MapColours(picture,
                      [](std::array<double, 3>& colour) { colour.fill((colour[0] + colour[1] + colour[2]) / 3.0); });
}

} // namespace BatchWorker
