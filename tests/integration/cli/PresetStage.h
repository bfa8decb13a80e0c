// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CliRun.h"

#include <QJsonObject>
#include <QTemporaryDir>

/// A folder with a settings folder, in which velkora-batch runs, with its presets below the settings folder.
class PresetStage
{
public:
    PresetStage();

    QString Path(const QString& name) const { return root.filePath(name); }

    /// The file of the user's preset `name`.
    QString Preset(const QString& name) const { return Path(QStringLiteral("settings/presets/%1.xml").arg(name)); }

    /// Writes a file, and the folders above it.
    void Write(const QString& path, const QByteArray& content) const;

    QByteArray Read(const QString& path) const;

    CliRun Run(const QStringList& arguments, const QString& folder = QStringLiteral(".")) const;

    /// The same with arguments that are separated by blanks.
    CliRun Run(const QString& arguments) const;

    /// The same without the settings folder.
    CliRun RunOfUser(const QString& arguments) const;

    /// The preset `name` as the command lists it; empty if it does not.
    QJsonObject Listed(const QString& name) const;

    QStringList FilesIn(const QString& folder) const;

private:
    QTemporaryDir root;
    QProcessEnvironment environment;
};
