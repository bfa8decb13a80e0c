// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FolderCheck.h"

#include "job/values/Phrase.h"

#include <QFileInfo>

namespace BatchJob {

QString WhyNotWritable(const QString& folder)
{
    QFileInfo existing(folder);
    while (!existing.exists() && !existing.isRoot()) {
        existing.setFile(existing.path());
    }
    if (!existing.isDir()) {
        return Phrase::English("%1 is not a folder").arg(existing.filePath());
    }
    return existing.isWritable() ? QString() : Phrase::English("%1 cannot be written").arg(existing.filePath());
}

} // namespace BatchJob
