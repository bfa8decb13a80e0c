// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"

#include "job/values/Phrase.h"

namespace BatchJob {

EffectSchema HueEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("hue");
    effect.description = Phrase::English("Turns all colours around the colour circle");
    effect.parameters = {NumberParameter("angle", 0, -180, 180, Phrase::Marked("degrees"),
                                         Phrase::Marked("120 turns red towards green"))};
    effect.definition =
        QStringLiteral("The matrix of hueRotate in the Filter Effects Module Level 1 of the W3C: a turn around the "
                       "axis of greys that keeps luma.");
    effect.example = QByteArrayLiteral(R"({"angle": 90})");
    return effect;
}

} // namespace BatchJob
