// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"

#include "job/values/Phrase.h"

namespace BatchJob {

EffectSchema VibranceEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("vibrance");
    effect.description = Phrase::English("Makes weak colours stronger or weaker, and spares those that are strong");
    effect.parameters = {NumberParameter("amount", 0, -100, 100, Phrase::Marked("percent"),
                                         Phrase::Marked("how much the weakest colours change"))};
    effect.definition =
        QStringLiteral("As saturation, with the amount multiplied by 1 - (max - min) of the three channels.");
    effect.example = QByteArrayLiteral(R"({"amount": 80})");
    return effect;
}

} // namespace BatchJob
