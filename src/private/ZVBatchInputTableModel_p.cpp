#include "ZVBatchInputTableModel_p.h"

namespace {

constexpr int filesPerRow = 3;

} // namespace

ZVBatchInputTableModel::Private::Private(ZTBatchInputModel* source)
    : source(source)
{
}

void ZVBatchInputTableModel::Private::BuildRows()
{
    // The rows of before stay until the new ones are made, so that most persistent indexes need not be made again.
    QVector<TableRow> previousRows;
    previousRows.swap(rows);
    cells.clear();
    if (source == nullptr) {
        return;
    }

    // A stack of our own: a recursion would overflow on a deep tree.
    QVector<QModelIndex> folders;
    PushFolders(folders, QModelIndex());
    while (!folders.isEmpty()) {
        const QModelIndex folder = folders.takeLast();
        AddFolderRow(folder);
        if (expandedFolders.contains(rows.constLast().folderIndex)) {
            AddFileRows(folder);
        }
        PushFolders(folders, folder);
    }
    AddFileRows(QModelIndex());
}

const ZVBatchInputTableModel::Private::TableRow* ZVBatchInputTableModel::Private::RowAt(int row) const
{
    return row >= 0 && row < rows.size() ? &rows.at(row) : nullptr;
}

ZVBatchInputTableModel::Private::Cell ZVBatchInputTableModel::Private::FindCell(const QModelIndex& sourceIndex)
{
    if (cells.isEmpty()) {
        FillCells();
    }
    // The source knows its persistent indexes by their place: this finds the one that stands there now.
    return cells.value(QPersistentModelIndex(sourceIndex));
}

ZVBatchInputTableModel::Private::Cell
ZVBatchInputTableModel::Private::FindCellOfInvalid(const QModelIndex& sourceIndex) const
{
    for (int row = 0; row < rows.size(); ++row) {
        const TableRow& tableRow = rows.at(row);
        if (tableRow.kind == FolderRow && tableRow.folderIndex == sourceIndex) {
            return {row, 0};
        }
        for (int column = 0; column < tableRow.fileIndexes.size(); ++column) {
            if (tableRow.fileIndexes.at(column) == sourceIndex) {
                return {row, column};
            }
        }
    }
    return {};
}

void ZVBatchInputTableModel::Private::AddFolderRow(const QModelIndex& folder)
{
    TableRow row;
    row.kind = FolderRow;
    row.folderIndex = folder;
    rows.append(row);
}

/// Adds rows for the files right in `folder`; those at the top level for an invalid index.
void ZVBatchInputTableModel::Private::AddFileRows(const QModelIndex& folder)
{
    const int count = source->rowCount(folder);
    int column = filesPerRow;
    for (int i = 0; i < count; ++i) {
        const QModelIndex file = source->index(i, 0, folder);
        if (source->getNodeData(file)->type == Folder) {
            continue;
        }
        if (column == filesPerRow) {
            TableRow row;
            row.kind = FileRow;
            row.fileIndexes.reserve(filesPerRow);
            rows.append(row);
            column = 0;
        }
        rows.last().fileIndexes.append(file);
        ++column;
    }
}

/// Puts the folders right in `parent` on the stack `folders`, the first on top.
void ZVBatchInputTableModel::Private::PushFolders(QVector<QModelIndex>& folders, const QModelIndex& parent) const
{
    for (int i = source->rowCount(parent) - 1; i >= 0; --i) {
        const QModelIndex child = source->index(i, 0, parent);
        if (source->getNodeData(child)->type == Folder) {
            folders.append(child);
        }
    }
}

void ZVBatchInputTableModel::Private::FillCells()
{
    // From the end, so that the first of several cells with one index stays.
    for (int row = rows.size() - 1; row >= 0; --row) {
        const TableRow& tableRow = rows.at(row);
        if (tableRow.kind == FolderRow) {
            cells.insert(tableRow.folderIndex, {row, 0});
        }
        for (int column = tableRow.fileIndexes.size() - 1; column >= 0; --column) {
            cells.insert(tableRow.fileIndexes.at(column), {row, column});
        }
    }
}
