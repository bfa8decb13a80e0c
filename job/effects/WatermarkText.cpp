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
    ParameterSchema text;
    text.name = QStringLiteral("text");
    text.type = ParameterType::Text;
    text.defaultValue = QJsonValue();
    text.description = Phrase::English("what is written; it may have several lines");
    text.minimum = 1;
    text.maximum = 1000;

    ParameterSchema font = text;
    font.name = QStringLiteral("font");
    font.defaultValue = QStringLiteral("sans bold");
    font.description = Phrase::English("family and style, without a size; a family that is missing is replaced");
    font.maximum = 200;

    return {text, font, ColourParameter("colour", "#ffffff", Phrase::Marked("of the letters"))};
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
                       "picture for a colour that is not grey.");
    effect.example = QByteArrayLiteral(R"({"text": "Sample", "size": 14, "position": "centre"})");
    effect.extraProblem = PlacementProblem;
    effect.usesFonts = true;
    return effect;
}

} // namespace BatchJob
