#include "ZVBatchInputTableModel_p.h"

#include <algorithm>

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
    AddChildren(QModelIndex(), Folders, folders);
    while (!folders.isEmpty()) {
        const QModelIndex folder = folders.takeLast();
        AddFolderRow(folder);
        const bool isExpanded = expandedFolders.contains(rows.constLast().folderIndex);
        AddChildren(folder, isExpanded ? Folders | Files : Folders, folders);
    }
    AddChildren(QModelIndex(), Files, folders);
}

const TableRow* ZVBatchInputTableModel::Private::RowAt(int row) const
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
    // A persistent index whose node is gone stands at no place by which it could be found.
    for (int row = 0; row < rows.size(); ++row) {
        const TableRow& tableRow = rows.at(row);
        if (tableRow.kind == TableRow::FolderRow && tableRow.folderIndex == sourceIndex) {
            return {row, 0};
        }
        for (int column = 0; column < tableRow.fileCount; ++column) {
            if (tableRow.fileIndexes[column] == sourceIndex) {
                return {row, column};
            }
        }
    }
    return {};
}

void ZVBatchInputTableModel::Private::AddFolderRow(const QModelIndex& folder)
{
    TableRow row;
    row.kind = TableRow::FolderRow;
    row.folderIndex = folder;
    rows.append(row);
}

/// Adds rows for the files right in `parent`, and puts the folders there on the stack `folders`, the first on top.
void ZVBatchInputTableModel::Private::AddChildren(const QModelIndex& parent, int kinds, QVector<QModelIndex>& folders)
{
    const int count = source->rowCount(parent);
    const int foldersBefore = folders.size();
    int column = TableRow::maxFileCount;
    for (int i = 0; i < count; ++i) {
        const QModelIndex child = source->index(i, 0, parent);
        if (source->getNodeData(child)->type == Folder) {
            if (kinds & Folders) {
                folders.append(child);
            }
        } else if (kinds & Files) {
            if (column == TableRow::maxFileCount) {
                rows.append(TableRow());
                rows.last().kind = TableRow::FileRow;
                column = 0;
            }
            TableRow& row = rows.last();
            row.fileIndexes[column++] = child;
            row.fileCount = column;
        }
    }
    std::reverse(folders.begin() + foldersBefore, folders.end());
}

void ZVBatchInputTableModel::Private::FillCells()
{
    cells.reserve(rows.size() * TableRow::maxFileCount);
    // From the end, so that the first of several cells with one index stays.
    for (int row = rows.size() - 1; row >= 0; --row) {
        const TableRow& tableRow = rows.at(row);
        if (tableRow.kind == TableRow::FolderRow) {
            cells.insert(tableRow.folderIndex, {row, 0});
        }
        for (int column = tableRow.fileCount - 1; column >= 0; --column) {
            cells.insert(tableRow.fileIndexes[column], {row, column});
        }
    }
}
