// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"

#include "job/values/Phrase.h"

namespace BatchJob {

EffectSchema VignetteEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("vignette");
    effect.description = Phrase::English("Darkens or brightens towards the corners");
    effect.parameters = {NumberParameter("amount", -40, -100, 100, Phrase::Marked("percent"),
                                         Phrase::Marked("of the corners; -100 is black, 100 is white")),
                         NumberParameter("start", 40, 0, 100, Phrase::Marked("percent"),
                                         Phrase::Marked("where it begins on the way from the centre to a corner")),
                         NumberParameter("softness", 60, 0, 100, Phrase::Marked("percent"),
                                         Phrase::Marked("length of the transition on the same way"))};
    effect.definition =
        QStringLiteral("Values go towards black or white by |amount| / 100 x (3 t^2 - 2 t^3), where t runs from 0 "
                       "to 1 over the transition; distances are measured on ellipses of the shape of the picture, "
                       "100 percent at the corners.");
    effect.example = QByteArrayLiteral(R"({"amount": -80, "start": 30})");
    return effect;
}

} // namespace BatchJob
