// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "OutputFolder.h"

#include <QDir>
#include <QStandardPaths>

namespace BatchDesktop {

QString UsualOutputFolder()
{
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    const QDir above = pictures.isEmpty() ? QDir::home() : QDir(pictures);
    return above.filePath(QStringLiteral("Velkora Batch"));
}

QString CompleteOutputFolder(const QString& path, const QString& base)
{
    return path.isEmpty() ? UsualOutputFolder() : QDir::cleanPath(QDir(base).absoluteFilePath(path));
}

} // namespace BatchDesktop
