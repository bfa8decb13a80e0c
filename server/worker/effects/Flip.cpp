// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectFunctions.h"

namespace BatchWorker {

Picture ApplyFlip(const Picture& picture, const QJsonObject& parameters)
{
    const QString direction = parameters[QLatin1String("direction")].toString();
    if (direction == QLatin1String("both")) {
        return picture.rot180();
    }
    return picture.flip(direction == QLatin1String("vertical") ? VIPS_DIRECTION_VERTICAL : VIPS_DIRECTION_HORIZONTAL);
}

} // namespace BatchWorker
