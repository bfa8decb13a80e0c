// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"

#include "job/values/Phrase.h"

namespace BatchJob {

EffectSchema ExposureEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("exposure");
    effect.description = Phrase::English("Brightens or darkens as a longer or shorter exposure would");
    effect.parameters = {
        NumberParameter("stops", 0, -10, 10, Phrase::Marked("stops"), Phrase::Marked("how much; 1 doubles the light"))};
    effect.definition =
        QStringLiteral("Light is multiplied by 2^stops: each value is decoded by the transfer function of sRGB (IEC "
                       "61966-2-1), multiplied and encoded again.");
    effect.example = QByteArrayLiteral(R"({"stops": 1})");
    return effect;
}

} // namespace BatchJob
