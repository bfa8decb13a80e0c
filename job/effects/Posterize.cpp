// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"

#include "job/values/Phrase.h"

namespace BatchJob {

EffectSchema PosterizeEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("posterize");
    effect.description = Phrase::English("Leaves few steps of each colour");
    effect.parameters = {
        IntegerParameter("levels", 4, 2, 256, Phrase::Marked("levels"), Phrase::Marked("steps from black to white"))};
    effect.definition = QStringLiteral("v becomes the nearest of the values 0, 1 / (levels - 1), ..., 1.");
    effect.example = QByteArrayLiteral(R"({"levels": 3})");
    return effect;
}

} // namespace BatchJob
