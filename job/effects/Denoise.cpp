// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"

#include "job/values/Phrase.h"

namespace BatchJob {

EffectSchema DenoiseEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("denoise");
    effect.description = Phrase::English("Smooths noise and keeps edges");
    effect.parameters = {NumberParameter("strength", 10, 0, 100, Phrase::Marked("percent"),
                                         Phrase::Marked("differences of this size begin to count as edges")),
                         NumberParameter("sigma", 1.5, 0.5, 5, Phrase::Marked("pixels"),
                                         Phrase::Marked("how far neighbours are taken in, in the result"))};
    effect.definition =
        QStringLiteral("A bilateral filter (Tomasi and Manduchi, 1998): the mean of the neighbours within two "
                       "sigma, weighted by exp(-d^2 / (2 sigma^2)) of their distance, by exp(-e^2 / (2 strength^2)) "
                       "of the root mean square e of their differences, and by their opacity.");
    effect.example = QByteArrayLiteral(R"({"strength": 15, "sigma": 3})");
    return effect;
}

} // namespace BatchJob
