#include "ZTBatchInputOutline_p.h"

#include <QFileInfo>

ZTBatchInputOutline::ZTBatchInputOutline(const ZTBatchInputModel& model, Filter filter)
{
    // The root, and behind it whatever is found below what stands in the list already.
    entries.append(Entry());
    for (int i = 0; i < entries.size(); ++i) {
        const Entry folder = entries.at(i);
        entries[i].firstChild = entries.size();
        if (folder.record == nullptr || folder.record->type == Folder) {
            const int rows = model.rowCount(folder.index);
            for (int row = 0; row < rows; ++row) {
                const QModelIndex index = model.index(row, 0, folder.index);
                const BatchNodeData* const record = model.getNodeData(index);
                if (record != nullptr && (filter == Everything || IsWritten(record->fileName))) {
                    entries.append({index, record, 0, 0});
                }
            }
        }
        entries[i].childrenEnd = entries.size();
    }
}

bool ZTBatchInputOutline::IsWritten(const QString& path)
{
    const bool exists = QFileInfo::exists(path);
    if (!exists) {
        missingFiles.Add(path);
    }
    const bool isDuplicate = writtenPaths.contains(path);
    if (isDuplicate) {
        duplicateFiles.Add(path);
    }
    if (!exists || isDuplicate) {
        return false;
    }
    writtenPaths.insert(path);
    return true;
}

void ZTBatchInputOutline::PathList::Add(const QString& path)
{
    if (!known.contains(path)) {
        known.insert(path);
        inOrder.append(path);
    }
}
