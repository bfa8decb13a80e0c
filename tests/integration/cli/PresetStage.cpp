// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PresetStage.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>

PresetStage::PresetStage()
    : environment(QProcessEnvironment::systemEnvironment())
{
    QDir(root.path()).mkpath(QStringLiteral("home"));
    environment.insert(QStringLiteral("HOME"), Path(QStringLiteral("home")));
    environment.remove(QStringLiteral("XDG_CONFIG_HOME"));
}

void PresetStage::Write(const QString& path, const QByteArray& content) const
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("%s cannot be written.", qPrintable(path));
    }
}

QByteArray PresetStage::Read(const QString& path) const
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

CliRun PresetStage::Run(const QStringList& arguments, const QString& folder) const
{
    return CliRun::Of(arguments + QStringList{QStringLiteral("--settings"), Path(QStringLiteral("settings"))},
                      Path(folder), environment);
}

CliRun PresetStage::Run(const QString& arguments) const
{
    return Run(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
}

CliRun PresetStage::RunOfUser(const QString& arguments) const
{
    return CliRun::Of(arguments.split(QLatin1Char(' ')), root.path(), environment);
}

QJsonObject PresetStage::Listed(const QString& name) const
{
    const QJsonArray list = QJsonDocument::fromJson(Run(QStringLiteral("presets --json")).out).array();
    for (const QJsonValue& preset : list) {
        if (preset.toObject().value(QStringLiteral("name")) == name) {
            return preset.toObject();
        }
    }
    return {};
}

QStringList PresetStage::FilesIn(const QString& folder) const
{
    return QDir(Path(folder)).entryList(QDir::Files);
}
