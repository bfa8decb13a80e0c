// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CliRun.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// A folder of real photos whose metadata exiftool plants and reads, in which the real command runs.
class PhotoStage
{
public:
    PhotoStage();

    static bool HasExifTool();

    /// The absolute path of `name` in the folder.
    QString Path(const QString& name) const { return root.filePath(name); }

    /// Copies a photo to `name`, without metadata but for `assignments`, such as "EXIF:Artist=Ana". False when it
    /// cannot.
    bool Plant(const QString& name, const QStringList& assignments) const;

    /// The same for pixels that take no time.
    bool PlantSmall(const QString& name, const QStringList& assignments) const;

    /// Runs the command with `arguments` to its end.
    CliRun Run(const QStringList& arguments) const;

    /// What exiftool finds in `name`, by group and tag: "XMP-dc:Title".
    QJsonObject Found(const QString& name) const;

    /// The names of all files below `folder`, with their folders, sorted.
    QStringList Names(const QString& folder) const;

private:
    Q_DISABLE_COPY(PhotoStage)

    QTemporaryDir root;
};
