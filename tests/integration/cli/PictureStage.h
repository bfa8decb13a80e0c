// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CliRun.h"

#include <QDateTime>
#include <QProcessEnvironment>
#include <QSize>
#include <QString>
#include <QTemporaryDir>

/// A folder of real pictures, in which the real command runs with the real server.
class PictureStage
{
public:
    PictureStage();

    /// The absolute path of `name` in the folder.
    QString Path(const QString& name) const { return root.filePath(name); }

    /// What the metadata of a picture say; nothing where a field has no value.
    struct Exif
    {
        QDateTime captured = {};
        int orientation = 0;
    };

    /// Writes a picture of `size` stored pixels with the folders above it, in the format of its extension, and returns
    /// its path.
    QString Write(const QString& name, const QSize& size, const Exif& exif) const;

    /// Runs the command with `arguments`, which are split at blanks, to its end.
    CliRun Run(const QString& arguments) const;

private:
    Q_DISABLE_COPY(PictureStage)

    QTemporaryDir root;
    QProcessEnvironment environment;
};
