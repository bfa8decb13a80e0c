// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Blurred.h"
#include "EffectFunctions.h"

namespace BatchWorker {

// Alpha is blurred as well.
Picture ApplyBlur(const Picture& picture, const QJsonObject& parameters)
{
    const double sigma = parameters[QLatin1String("sigma")].toDouble();
    return sigma == 0.0 ? picture : Blurred(picture, sigma);
}

} // namespace BatchWorker
