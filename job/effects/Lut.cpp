// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CubeFile.h"
#include "EffectParameters.h"
#include "EffectRecords.h"

#include "job/values/Phrase.h"

namespace BatchJob {

namespace {

QString TableProblem(const QJsonObject& parameters)
{
    const QString problem = ReadCubeFile(parameters[QLatin1String("file")].toString()).error;
    return problem.isEmpty() ? QString() : QStringLiteral("\"file\": ") + problem;
}

} // namespace

EffectSchema LutEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("lut");
    effect.description =
        Phrase::English("Maps colours by the table of a .cube file; a grey picture becomes a colour picture");
    effect.parameters = {
        FileParameter("file", Phrase::Marked("the .cube file, with a table of one or three dimensions")),
        NumberParameter("strength", 100, 0, 100, Phrase::Marked("percent"),
                        Phrase::Marked("0 leaves the picture as it is")),
        ChoiceParameter("interpolation", {QStringLiteral("tetrahedral"), QStringLiteral("trilinear")},
                        Phrase::Marked("between the entries of a table of three dimensions"))};
    effect.definition =
        QStringLiteral("Tables in version 1.0 of the Cube LUT format, of 2 to 65536 entries in one or 2 to 129 "
                       "along each of three dimensions; TITLE, DOMAIN_MIN, DOMAIN_MAX and comments are understood. "
                       "Colours outside the domain count as the nearest inside. Values are mapped as they are "
                       "stored in the picture.");
    effect.example = QByteArrayLiteral(R"({"file": "example.cube"})");
    effect.extraProblem = TableProblem;
    return effect;
}

} // namespace BatchJob
