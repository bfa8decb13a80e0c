// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Blurred.h"
#include "EffectFunctions.h"

#include "server/worker/pixels/PixelFilter.h"

namespace BatchWorker {

// Alpha is blurred as well.
Picture ApplyBlur(const Picture& picture, const QJsonObject& parameters)
{
    const double sigma = parameters[QLatin1String("sigma")].toDouble();
    if (sigma == 0.0) {
        return picture;
    }
    const double largest = LargestValue(picture);
    Picture blurred = Blurred(
        picture.has_alpha() ? picture.premultiply(Picture::option()->set("max_alpha", largest)) : picture, sigma);
    if (picture.has_alpha()) {
        blurred = blurred.unpremultiply(Picture::option()->set("max_alpha", largest));
    }
    return blurred.linear(1.0, 0.5)
        .cast(picture.format())
        .copy(Picture::option()->set("interpretation", picture.interpretation()));
}

} // namespace BatchWorker
