// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"

#include "job/values/Phrase.h"

namespace BatchJob {

EffectSchema SaturationEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("saturation");
    effect.description = Phrase::English("Makes all colours stronger or weaker");
    effect.parameters = {NumberParameter("amount", 0, -100, 100, Phrase::Marked("percent"),
                                         Phrase::Marked("-100 leaves grey, 100 doubles the strength"))};
    effect.definition =
        QStringLiteral("Each channel v becomes Y + (1 + amount / 100) (v - Y), where Y = 0.2126 R + 0.7152 G + "
                       "0.0722 B of the stored values (Rec. ITU-R BT.709).");
    effect.example = QByteArrayLiteral(R"({"amount": 60})");
    return effect;
}

} // namespace BatchJob
