// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"

#include "job/values/Phrase.h"

namespace BatchJob {

namespace {

QString BlackNotBelowWhite(const QJsonObject& parameters)
{
    const double black = parameters[QLatin1String("black")].toDouble();
    const double white = parameters[QLatin1String("white")].toDouble();
    return black < white ? QString()
                         : Phrase::English("\"black\" is %1 and \"white\" is %2; black must be less than white")
                               .arg(black)
                               .arg(white);
}

} // namespace

EffectSchema LevelsEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("levels");
    effect.description = Phrase::English("Sets what becomes black, what becomes white, and the tone between them");
    effect.parameters = {
        NumberParameter("black", 0, 0, 100, Phrase::Marked("percent"),
                        Phrase::Marked("this value and those below become black")),
        NumberParameter("white", 100, 0, 100, Phrase::Marked("percent"),
                        Phrase::Marked("this value and those above become white")),
        NumberParameter("gamma", 1, 0.1, 10, "", Phrase::Marked("above 1 brightens the tones between them"))};
    effect.definition =
        QStringLiteral("v becomes ((v - black) / (white - black))^(1 / gamma), held within 0 to 1 before the power.");
    effect.example = QByteArrayLiteral(R"({"black": 10, "white": 85, "gamma": 1.2})");
    effect.extraProblem = BlackNotBelowWhite;
    return effect;
}

} // namespace BatchJob
