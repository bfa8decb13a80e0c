#include "EffectChecks.h"

#include "CubeFile.h"

#include "job/formats/FormatCatalog.h"

#include <QFile>
#include <QFileInfo>

namespace BatchJob {

namespace {

QString LevelsProblem(const QJsonObject& parameters)
{
    const double black = parameters[QLatin1String("black")].toDouble();
    const double white = parameters[QLatin1String("white")].toDouble();
    return black < white ? QString()
                         : QStringLiteral("\"black\" is %1 and \"white\" is %2; black must be less than white")
                               .arg(black)
                               .arg(white);
}

QString PercentProblem(const QJsonObject& parameters, const QStringList& names)
{
    if (parameters[QLatin1String("unit")].toString() != QLatin1String("percent")) {
        return {};
    }
    for (const QString& name : names) {
        if (parameters[name].toDouble() > 100) {
            return QStringLiteral("\"%1\" is %2 percent; it must be at most 100, or the unit pixels")
                .arg(name)
                .arg(parameters[name].toDouble());
        }
    }
    return {};
}

QString PictureFileProblem(const QString& path)
{
    QFile file(path);
    const QFileInfo info(path);
    if (!info.exists()) {
        return QStringLiteral("\"file\": %1 does not exist").arg(path);
    }
    if (!info.isFile()) {
        return QStringLiteral("\"file\": %1 is not a file").arg(path);
    }
    if (!file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("\"file\": %1 cannot be read: %2").arg(path, file.errorString());
    }
    constexpr int headSize = 64;
    return FormatOfFile(file.read(headSize), info.suffix()).isEmpty()
               ? QStringLiteral("\"file\": %1 is not a picture of a known format").arg(path)
               : QString();
}

} // namespace

QString EffectProblem(const QString& id, const QJsonObject& parameters)
{
    const QString file = parameters[QLatin1String("file")].toString();
    if (id == QLatin1String("levels")) {
        return LevelsProblem(parameters);
    }
    if (id == QLatin1String("border")) {
        return PercentProblem(parameters, {QStringLiteral("left"), QStringLiteral("top"), QStringLiteral("right"),
                                           QStringLiteral("bottom")});
    }
    if (id == QLatin1String("lut")) {
        const QString problem = ReadCubeFile(file).error;
        return problem.isEmpty() ? QString() : QStringLiteral("\"file\": ") + problem;
    }
    const bool isImage = id == QLatin1String("watermark-image");
    if (isImage || id == QLatin1String("watermark-text")) {
        const QString problem = PercentProblem(parameters, {QStringLiteral("size"), QStringLiteral("margin")});
        return problem.isEmpty() && isImage ? PictureFileProblem(file) : problem;
    }
    return {};
}

} // namespace BatchJob
