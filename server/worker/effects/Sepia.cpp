// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourMatrix.h"
#include "EffectFunctions.h"

#include "server/worker/colour/PictureColours.h"

namespace BatchWorker {

// The matrix of sepia() in the W3C's Filter Effects Module Level 1. A grey picture becomes RGB.
Picture ApplySepia(const Picture& picture, const QJsonObject& parameters)
{
    const double amount = parameters[QLatin1String("amount")].toDouble() / 100.0;
    if (amount == 0.0) {
        return picture;
    }
    const ColourMatrix sepia{{{0.393, 0.769, 0.189}, {0.349, 0.686, 0.168}, {0.272, 0.534, 0.131}}};
    return Multiplied(AsRgb(picture), Towards(sepia, amount));
}

} // namespace BatchWorker
