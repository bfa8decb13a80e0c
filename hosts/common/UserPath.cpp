// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "UserPath.h"

#include <QDir>
#include <QStandardPaths>

namespace BatchHost {

QString AbsolutePath(const QString& path)
{
    return QDir::cleanPath(QDir::current().absoluteFilePath(path));
}

// Not AppConfigLocation, which differs from program to program.
QString UserSettingsFolder()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
        .filePath(QStringLiteral("velkora-batch"));
}

QString UserDataFolder()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation))
        .filePath(QStringLiteral("velkora-batch"));
}

} // namespace BatchHost
