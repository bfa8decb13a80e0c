// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"

#include "job/values/Phrase.h"

namespace BatchJob {

EffectSchema BlurEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("blur");
    effect.description = Phrase::English("Blurs evenly");
    effect.parameters = {
        NumberParameter("sigma", 2, 0, 200, Phrase::Marked("pixels"),
                        Phrase::Marked("standard deviation of the blur in the result; 0 does nothing"))};
    effect.definition =
        QStringLiteral("A Gaussian that ends at three sigma; beyond its border a picture goes on as there. Colours "
                       "count by their opacity, and alpha is blurred as well. From a sigma of 8 the picture is "
                       "reduced, blurred and enlarged, which differs by at most 0.5 %.");
    effect.example = QByteArrayLiteral(R"({"sigma": 3})");
    return effect;
}

} // namespace BatchJob
