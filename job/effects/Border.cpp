// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"
#include "EffectSizes.h"

#include "job/values/Phrase.h"

namespace BatchJob {

namespace {

QString SideProblem(const QJsonObject& parameters)
{
    return PercentProblem(
        parameters, {QStringLiteral("left"), QStringLiteral("top"), QStringLiteral("right"), QStringLiteral("bottom")});
}

} // namespace

EffectSchema BorderEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("border");
    effect.description = Phrase::English("Adds a border around a picture");
    effect.parameters = {
        NumberParameter("left", 0, 0, 10'000, "", Phrase::Marked("width on the left")),
        NumberParameter("top", 0, 0, 10'000, "", Phrase::Marked("height at the top")),
        NumberParameter("right", 0, 0, 10'000, "", Phrase::Marked("width on the right")),
        NumberParameter("bottom", 0, 0, 10'000, "", Phrase::Marked("height at the bottom")),
        ChoiceParameter("unit", {QStringLiteral("pixels"), QStringLiteral("percent")},
                        Phrase::Marked("of the four; percent is of the picture's short side, at most 100")),
        ColourParameter("colour", "#ffffff",
                        Phrase::Marked("of the border; with transparency the result has an alpha channel"))};
    effect.definition =
        QStringLiteral("Sizes are rounded to whole pixels. A grey picture becomes a colour picture for a colour "
                       "that is not grey.");
    effect.example =
        QByteArrayLiteral(R"({"left": 4, "top": 4, "right": 4, "bottom": 12, "unit": "percent", "colour": "#f4f0e8"})");
    effect.extraProblem = SideProblem;
    effect.changedSize = SizeWithBorder;
    return effect;
}

} // namespace BatchJob
