// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"

#include "job/values/Phrase.h"

namespace BatchJob {

namespace {

// A picture is mirrored from left to right line by line.
bool SwapsLines(const QJsonObject& parameters)
{
    return parameters[QLatin1String("direction")].toString() != QLatin1String("horizontal");
}

} // namespace

EffectSchema FlipEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("flip");
    effect.description = Phrase::English("Mirrors a picture");
    effect.parameters = {
        ChoiceParameter("direction", {QStringLiteral("horizontal"), QStringLiteral("vertical"), QStringLiteral("both")},
                        Phrase::Marked("horizontal swaps left and right"))};
    effect.definition = QStringLiteral("Every pixel keeps its value.");
    effect.example = QByteArrayLiteral(R"({"direction": "horizontal"})");
    effect.randomAccess = SwapsLines;
    return effect;
}

} // namespace BatchJob
