// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"

#include "job/values/Phrase.h"

namespace BatchJob {

EffectSchema GrayscaleEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("grayscale");
    effect.description = Phrase::English("Takes all colour away");
    effect.parameters = {ChoiceParameter(
        "method", {QStringLiteral("luminance"), QStringLiteral("luma"), QStringLiteral("average")},
        Phrase::Marked("luminance weighs the light, luma the stored values, average is their plain mean"))};
    effect.definition =
        QStringLiteral("luminance: light weighted 0.2126, 0.7152, 0.0722 (Rec. ITU-R BT.709) and encoded again. "
                       "luma: the stored values with the same weights. average: a third of each.");
    effect.example = QByteArrayLiteral(R"({"method": "luminance"})");
    return effect;
}

} // namespace BatchJob
