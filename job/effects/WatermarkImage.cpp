// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"
#include "EffectRecords.h"
#include "WatermarkPlacement.h"

#include "job/formats/FormatCatalog.h"
#include "job/values/Phrase.h"

#include <QFile>
#include <QFileInfo>

namespace BatchJob {

namespace {

QString PictureFileProblem(const QString& path)
{
    QFile file(path);
    const QFileInfo info(path);
    if (!info.exists()) {
        return Phrase::English("\"file\": %1 does not exist").arg(path);
    }
    if (!info.isFile()) {
        return Phrase::English("\"file\": %1 is not a file").arg(path);
    }
    if (!file.open(QIODevice::ReadOnly)) {
        return Phrase::English("\"file\": %1 cannot be read: %2").arg(path, file.errorString());
    }
    return FormatOfFile(file.read(formatHeadSize), info.suffix()).isEmpty()
               ? Phrase::English("\"file\": %1 is not a picture of a known format").arg(path)
               : QString();
}

QString ImageProblem(const QJsonObject& parameters)
{
    const QString problem = PlacementProblem(parameters);
    return problem.isEmpty() ? PictureFileProblem(parameters[QLatin1String("file")].toString()) : problem;
}

} // namespace

EffectSchema WatermarkImageEffect()
{
    EffectSchema effect;
    effect.id = QStringLiteral("watermark-image");
    effect.description = Phrase::English("Lays another picture, such as a logo, over a picture");
    effect.parameters =
        QVector<ParameterSchema>{
            FileParameter("file", Phrase::Marked("the picture that is laid over, best with transparency"))} +
        PlacementParameters(20, Phrase::Marked("width of the mark; in percent of the picture's width"), 100);
    effect.definition =
        QStringLiteral("Scaled to its width, with its own proportions, then laid over by the operator \"over\" of "
                       "Porter and Duff. Its colours are converted to the profile of the picture.");
    effect.example = QByteArrayLiteral(R"({"file": "example.png", "size": 25, "tile": true, "opacity": 50})");
    effect.extraProblem = ImageProblem;
    return effect;
}

} // namespace BatchJob
