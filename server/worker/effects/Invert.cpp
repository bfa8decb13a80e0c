// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectFunctions.h"

#include "server/worker/pixels/PixelFilter.h"

namespace BatchWorker {

Picture ApplyInvert(const Picture& picture, const QJsonObject&)
{
    return MapValues(picture, [](double value) { return 1.0 - value; });
}

} // namespace BatchWorker
