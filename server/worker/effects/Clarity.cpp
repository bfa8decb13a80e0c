// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Blurred.h"
#include "EffectFunctions.h"
#include "Luminance.h"

#include "server/worker/pixels/PixelFilter.h"

namespace BatchWorker {

namespace {

Picture LumaOf(const Picture& colours)
{
    return colours.bands() < 3 ? colours.extract_band(0)
                               : colours.extract_band(0, Picture::option()->set("n", 3))
                                     .recomb(Picture::new_matrixv(3, 1, 0.2126, 0.7152, 0.0722));
}

} // namespace

Picture ApplyClarity(const Picture& picture, const QJsonObject& parameters)
{
    const double amount = parameters[QLatin1String("amount")].toDouble() / 100.0;
    if (amount == 0.0) {
        return picture;
    }
    const Picture around =
        LumaOf(BlurredColours(picture, parameters[QLatin1String("sigma")].toDouble())).cast(VIPS_FORMAT_FLOAT);
    const bool isGrey = ColourBands(picture) == 1;
    return MapColours(picture, &around,
                      [amount, isGrey](std::array<double, 3>& colour, const float* blurred, int, int) {
                          const double luma = isGrey ? colour[0] : WeightedSum(colour);
                          const double middle = 4.0 * luma * (1.0 - luma);
                          const double change = amount * middle * (luma - double(*blurred));
                          for (double& value : colour) {
                              value += change;
                          }
                      });
}

} // namespace BatchWorker
