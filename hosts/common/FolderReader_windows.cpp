// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FolderReader.h"

#include "job/values/Phrase.h"

#include <QDir>
#include <QFileInfo>

using namespace BatchJob;

namespace BatchHost {

FolderContent ReadFolder(const QString& path)
{
    FolderContent content;
    const QDir folder(path);
    if (!folder.exists() || !folder.isReadable()) {
        content.error = Phrase::English("the folder cannot be opened");
        return content;
    }
    content.identity = IdentityOf(path);
    const QFileInfoList infos =
        folder.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QFileInfo& info : infos) {
        FolderEntry entry;
        entry.name = info.fileName();
        entry.isLink = info.isSymLink();
        entry.isDangling = entry.isLink && !info.exists();
        if (info.isDir()) {
            entry.kind = FolderEntry::Kind::Folder;
            entry.identity = IdentityOf(info.filePath());
        } else if (info.isFile()) {
            entry.kind = FolderEntry::Kind::File;
            entry.modified = info.lastModified().toUTC();
        }
        content.entries.append(entry);
    }
    return content;
}

} // namespace BatchHost
