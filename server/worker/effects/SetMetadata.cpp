// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectFunctions.h"

namespace BatchWorker {

// What is written is no business of the pixels; see MetadataTexts.h.
Picture ApplySetMetadata(const Picture& picture, const QJsonObject& parameters)
{
    Q_UNUSED(parameters)
    return picture;
}

} // namespace BatchWorker
