// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WatermarkPlacement.h"

#include "job/values/Phrase.h"

#include "EffectParameters.h"

namespace BatchJob {

QVector<ParameterSchema> PlacementParameters(double standardSize, const char* size, double standardOpacity)
{
    return {
        NumberParameter("size", standardSize, 0.1, 10'000, "", size),
        NumberParameter("margin", 3, 0, 10'000, "",
                        Phrase::Marked("space to the sides of the picture, and between tiles")),
        ChoiceParameter(
            "unit", {QStringLiteral("percent"), QStringLiteral("pixels")},
            Phrase::Marked(
                "of size and margin; a margin in percent is of the picture's short side; percent is at most 100")),
        NumberParameter("opacity", standardOpacity, 0, 100, Phrase::Marked("percent"),
                        Phrase::Marked("0 is invisible")),
        ChoiceParameter("position",
                        {QStringLiteral("bottom-right"), QStringLiteral("bottom"), QStringLiteral("bottom-left"),
                         QStringLiteral("right"), QStringLiteral("centre"), QStringLiteral("left"),
                         QStringLiteral("top-right"), QStringLiteral("top"), QStringLiteral("top-left")},
                        Phrase::Marked("where the mark stands")),
        TruthParameter("tile", false, Phrase::Marked("repeats the mark over the whole picture")),
    };
}

QString PlacementProblem(const QJsonObject& parameters)
{
    return PercentProblem(parameters, {QStringLiteral("size"), QStringLiteral("margin")});
}

} // namespace BatchJob
