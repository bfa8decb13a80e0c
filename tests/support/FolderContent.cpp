// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FolderContent.h"

#include <QDirIterator>
#include <QFile>

Files FilesBelow(const QString& folder, QDir::Filters filters)
{
    Files files;
    QDirIterator paths(folder, filters, QDirIterator::Subdirectories);
    while (paths.hasNext()) {
        QFile file(paths.next());
        if (file.open(QIODevice::ReadOnly)) {
            files.insert(QDir(folder).relativeFilePath(file.fileName()), file.readAll());
        }
    }
    return files;
}
