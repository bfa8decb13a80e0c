// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PhotoStage.h"

#include "ExifTool.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

const QString photo = QStringLiteral("/usr/share/backgrounds/mate/nature/Dune.jpg");

bool PlantInto(const QString& path, const QStringList& assignments)
{
    QStringList arguments{QStringLiteral("-q"), QStringLiteral("-m"), QStringLiteral("-overwrite_original"),
                          QStringLiteral("-all=")};
    for (const QString& assignment : assignments) {
        arguments.append(QLatin1Char('-') + assignment);
    }
    return ExifTool::Run(arguments, path).has_value();
}

void MakeFolder(const QString& path)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile::remove(path);
}

} // namespace

PhotoStage::PhotoStage() = default;

bool PhotoStage::HasExifTool()
{
    return ExifTool::IsThere();
}

bool PhotoStage::Plant(const QString& name, const QStringList& assignments) const
{
    MakeFolder(Path(name));
    return QFile::copy(photo, Path(name)) && PlantInto(Path(name), assignments);
}

bool PhotoStage::PlantSmall(const QString& name, const QStringList& assignments) const
{
    MakeFolder(Path(name));
    QImage image(48, 32, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    return image.save(Path(name)) && PlantInto(Path(name), assignments);
}

CliRun PhotoStage::Run(const QStringList& arguments) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TMPDIR"), root.path());
    return CliRun::Of(arguments, root.path(), environment);
}

QJsonObject PhotoStage::Found(const QString& name) const
{
    const QByteArray json =
        ExifTool::Run({QStringLiteral("-j"), QStringLiteral("-G1"), QStringLiteral("-a")}, Path(name))
            .value_or(QByteArray());
    return QJsonDocument::fromJson(json).array().at(0).toObject();
}

QStringList PhotoStage::Names(const QString& folder) const
{
    QStringList names;
    const QDir base(Path(folder));
    QDirIterator files(base.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        names.append(base.relativeFilePath(files.next()));
    }
    names.sort();
    return names;
}
