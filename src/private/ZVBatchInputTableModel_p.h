#pragma once

#include "ZTBatchInputModel.h"
#include "ZVBatchInputTableModel.h"

#include <QHash>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QSet>
#include <QVector>

class ZVBatchInputTableModel::Private
{
public:
    enum RowKind : int { FolderRow = 0, FileRow = 1 };

    struct TableRow
    {
        int kind = FolderRow;
        QPersistentModelIndex folderIndex;          ///< invalid in a file row
        QVector<QPersistentModelIndex> fileIndexes; ///< in column order; empty in a folder row
    };

    struct Cell
    {
        int row = -1;
        int column = -1;
    };

    explicit Private(ZTBatchInputModel* source);

    void BuildRows();

    /// Null for a row that does not exist.
    const TableRow* RowAt(int row) const;

    /// The cell that shows `sourceIndex`, an index of the source that is valid.
    Cell FindCell(const QModelIndex& sourceIndex);

    /// The first cell whose index equals `sourceIndex`, which is invalid.
    Cell FindCellOfInvalid(const QModelIndex& sourceIndex) const;

    QPointer<ZTBatchInputModel> source;
    QVector<TableRow> rows;
    QSet<QPersistentModelIndex> expandedFolders;
    bool selectionUpdatePending = false;

private:
    void AddFolderRow(const QModelIndex& folder);
    void AddFileRows(const QModelIndex& folder);
    void PushFolders(QVector<QModelIndex>& folders, const QModelIndex& parent) const;
    void FillCells();

    /// Where each source index is shown, from the first search after a rebuild on. A persistent index is the same key
    /// for as long as it lives, wherever its node moves, so that no change of the source makes this wrong.
    QHash<QPersistentModelIndex, Cell> cells;
};
