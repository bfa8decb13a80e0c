// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"

#include "job/values/Phrase.h"

#include <QJsonArray>

namespace BatchJob {

namespace {

ParameterSchema CurvePoints()
{
    ParameterSchema points;
    points.name = QStringLiteral("points");
    points.type = ParameterType::Points;
    points.defaultValue = QJsonArray{QJsonArray{0, 0}, QJsonArray{100, 100}};
    points.description = Phrase::English(
        "input and output, from black to white; between them the curve never turns, beyond them it is level");
    points.maximum = 100;
    points.unit = Phrase::English("percent");
    return points;
}

} // namespace

EffectSchema CurveEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("curve");
    effect.description = Phrase::English("Maps values along a smooth curve through points");
    effect.parameters = {
        CurvePoints(),
        ChoiceParameter(
            "channel", {QStringLiteral("all"), QStringLiteral("red"), QStringLiteral("green"), QStringLiteral("blue")},
            Phrase::Marked("which values are mapped; a grey picture has no single colours and stays as it is"))};
    effect.definition =
        QStringLiteral("A monotone cubic through the points, with the slopes of Fritsch and Butland (1984); at its "
                       "ends the slope of the line to the next point.");
    effect.example = QByteArrayLiteral(R"({"points": [[0, 0], [25, 15], [75, 85], [100, 100]]})");
    return effect;
}

} // namespace BatchJob
