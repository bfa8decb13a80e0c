// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"

#include "job/values/Phrase.h"

namespace BatchJob {

EffectSchema BrightnessContrastEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("brightness-contrast");
    effect.description = Phrase::English("Shifts all values, then spreads them around the middle");
    effect.parameters = {NumberParameter("brightness", 0, -100, 100, Phrase::Marked("percent"),
                                         Phrase::Marked("shift of every value; 100 turns black into white")),
                         NumberParameter("contrast", 0, -100, 100, Phrase::Marked("percent"),
                                         Phrase::Marked("-100 is flat grey, 50 doubles all differences"))};
    effect.definition =
        QStringLiteral("v becomes (v + b - 0.5) k + 0.5 with b = brightness / 100; k = 1 + c below and 1 / (1 - c) "
                       "above 0, with c = contrast / 100. Values v run from 0 to 1.");
    effect.example = QByteArrayLiteral(R"({"brightness": 5, "contrast": 35})");
    return effect;
}

} // namespace BatchJob
