// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourMatrix.h"
#include "EffectFunctions.h"

#include "server/worker/pixels/PixelForms.h"

#include <cmath>

namespace BatchWorker {

// The matrix of hueRotate in the W3C's Filter Effects Module Level 1: luma stays. Leaves a grey picture as it is.
Picture ApplyHue(const Picture& picture, const QJsonObject& parameters)
{
    const double degrees = parameters[QLatin1String("angle")].toDouble();
    if (degrees == 0.0 || ColourBands(picture) == 1) {
        return picture;
    }
    const double angle = degrees * M_PI / 180.0;
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    const ColourMatrix matrix{{
        {0.213 + c * 0.787 - s * 0.213, 0.715 - c * 0.715 - s * 0.715, 0.072 - c * 0.072 + s * 0.928},
        {0.213 - c * 0.213 + s * 0.143, 0.715 + c * 0.285 + s * 0.140, 0.072 - c * 0.072 - s * 0.283},
        {0.213 - c * 0.213 - s * 0.787, 0.715 - c * 0.715 + s * 0.715, 0.072 + c * 0.928 + s * 0.072},
    }};
    return Multiplied(picture, matrix);
}

} // namespace BatchWorker
