// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"

#include "job/values/Phrase.h"

namespace BatchJob {

EffectSchema InvertEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("invert");
    effect.description = Phrase::English("Turns a picture into its negative");
    effect.definition = QStringLiteral("v becomes 1 - v.");
    effect.example = QByteArrayLiteral("{}");
    return effect;
}

} // namespace BatchJob
