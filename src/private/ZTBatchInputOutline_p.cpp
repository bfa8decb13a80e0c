// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchInputOutline_p.h"

#include <QFileInfo>

ZTBatchInputOutline::ZTBatchInputOutline(const ZTBatchInputModel& model, Filter filter)
{
    struct FolderEntry
    {
        QModelIndex index;
        int entry;
    };
    // The root, followed by the folders that the loop finds.
    entries.append(Entry());
    QVector<FolderEntry> folders{{QModelIndex(), 0}};
    for (int i = 0; i < folders.size(); ++i) {
        const FolderEntry folder = folders.at(i);
        const int firstChild = entries.size();
        const int rows = model.rowCount(folder.index);
        for (int row = 0; row < rows; ++row) {
            const QModelIndex index = model.index(row, 0, folder.index);
            const BatchNodeData* const record = model.getNodeData(index);
            if (record == nullptr || (filter == ExistingOnce && !IsWritten(record->fileName))) {
                continue;
            }
            if (record->type == Folder) {
                folders.append({index, entries.size()});
            }
            entries.append({record, 0, 0});
        }
        entries[folder.entry].firstChild = firstChild;
        entries[folder.entry].childrenEnd = entries.size();
    }
}

bool ZTBatchInputOutline::IsWritten(const QString& path)
{
    if (!QFileInfo::exists(path)) {
        missingFiles.Add(path);
        // It may have been deleted since its first occurrence.
        if (writtenPaths.contains(path)) {
            duplicateFiles.Add(path);
        }
        return false;
    }
    const int count = writtenPaths.size();
    writtenPaths.insert(path);
    if (writtenPaths.size() == count) {
        duplicateFiles.Add(path);
        return false;
    }
    return true;
}

void ZTBatchInputOutline::PathList::Add(const QString& path)
{
    if (!known.contains(path)) {
        known.insert(path);
        inOrder.append(path);
    }
}
