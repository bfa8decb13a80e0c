// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"
#include "WatermarkPlacement.h"

#include "job/values/Phrase.h"

namespace BatchJob {

namespace {

QVector<ParameterSchema> TextParameters()
{
    return {
        TextParameter("text", QJsonValue(), 1, 1000, Phrase::Marked("what is written; it may have several lines")),
        TruthParameter("tokens", false, Phrase::Marked("the text has tokens, such as {date:YYYY-MM-DD}")),
        TextParameter("font", QStringLiteral("sans bold"), 1, 200,
                      Phrase::Marked("family and style, without a size; a family that is missing is replaced")),
        ColourParameter("colour", "#ffffff", Phrase::Marked("of the letters")),
    };
}

QStringList TextsWithTokens(const QJsonObject& parameters)
{
    const bool hasTokens = parameters[QLatin1String("tokens")].toBool();
    return hasTokens ? QStringList{QStringLiteral("text")} : QStringList();
}

} // namespace

EffectSchema WatermarkTextEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("watermark-text");
    effect.description = Phrase::English("Writes a text over a picture");
    effect.parameters =
        TextParameters() +
        PlacementParameters(5, Phrase::Marked("height of a line of text; in percent of the picture's short side"), 60);
    effect.definition =
        QStringLiteral("Laid over by the operator \"over\" of Porter and Duff. A grey picture becomes a colour "
                       "picture for a colour that is not grey. [Tokens](tokens.md) are those of the original; if "
                       "they leave no letter, nothing is drawn.");
    effect.example = QByteArrayLiteral(R"({"text": "Sample", "size": 14, "position": "centre"})");
    effect.extraProblem = PlacementProblem;
    effect.usesFonts = true;
    effect.tokenParameters = TextsWithTokens;
    return effect;
}

} // namespace BatchJob
