// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"

#include "job/values/Phrase.h"

namespace BatchJob {

namespace {

// It counts the values first, then maps them.
bool Always(const QJsonObject&)
{
    return true;
}

} // namespace

EffectSchema AutoLevelsEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("auto-levels");
    effect.description = Phrase::English("Spreads the values that a picture has from black to white");
    effect.parameters = {
        NumberParameter("clip", 0.1, 0, 10, Phrase::Marked("percent"),
                        Phrase::Marked("how many of the darkest and of the brightest pixels may clip")),
        ChoiceParameter("channels", {QStringLiteral("together"), QStringLiteral("each")},
                        Phrase::Marked("together keeps colours as they are; each for itself removes a cast"))};
    effect.definition =
        QStringLiteral("Black is the lowest value that more than the clipped share of the pixels does not exceed, "
                       "white likewise from above; values are spread linearly between them. Together, the lowest "
                       "black and the highest white of the channels count. Pixels without any opacity do not count.");
    effect.example = QByteArrayLiteral(R"({"clip": 0.5, "channels": "each"})");
    effect.randomAccess = Always;
    return effect;
}

} // namespace BatchJob
