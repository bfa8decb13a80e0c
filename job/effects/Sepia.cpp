// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"

#include "job/values/Phrase.h"

namespace BatchJob {

EffectSchema SepiaEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("sepia");
    effect.description = Phrase::English("Tones a picture brown; a grey picture becomes a colour picture");
    effect.parameters = {NumberParameter("amount", 100, 0, 100, Phrase::Marked("percent"),
                                         Phrase::Marked("0 leaves the picture as it is"))};
    effect.definition =
        QStringLiteral("The matrix of sepia() in the Filter Effects Module Level 1 of the W3C: red is 0.393 R + "
                       "0.769 G + 0.189 B, green 0.349 R + 0.686 G + 0.168 B, blue 0.272 R + 0.534 G + 0.131 B; "
                       "mixed with the picture by the amount.");
    effect.example = QByteArrayLiteral(R"({"amount": 80})");
    return effect;
}

} // namespace BatchJob
