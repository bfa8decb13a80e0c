// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"
#include "EffectSizes.h"

#include "job/values/Phrase.h"

namespace BatchJob {

namespace {

bool Turns(const QJsonObject& parameters)
{
    return TurnOf(parameters) != 0.0;
}

} // namespace

EffectSchema RotateEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("rotate");
    effect.description = Phrase::English("Turns a picture clockwise; the result is as large as it needs");
    effect.parameters = {
        NumberParameter("angle", 0, -360, 360, Phrase::Marked("degrees"),
                        Phrase::Marked("multiples of 90 keep every pixel as it is")),
        ColourParameter("background", "#ffffff",
                        Phrase::Marked("fills the corners; with transparency the result has an alpha channel"))};
    effect.definition =
        QStringLiteral("Bicubic interpolation around the middle, weighted by opacity; borders are smooth by the "
                       "share of each pixel that they cover. The canvas is the smallest that holds the picture. A "
                       "grey picture becomes a colour picture for a background with colour.");
    effect.example = QByteArrayLiteral(R"({"angle": 12, "background": "#202020"})");
    effect.randomAccess = Turns;
    effect.changedSize = TurnedCanvas;
    return effect;
}

} // namespace BatchJob
