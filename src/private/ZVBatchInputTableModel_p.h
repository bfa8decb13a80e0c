#pragma once

#include "ZTBatchInputModel.h"
#include "ZVBatchInputTableModel.h"

#include <QHash>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QSet>
#include <QVector>

/// A row of the table as the last rebuild made it.
struct TableRow
{
    enum Kind : int { FolderRow = 0, FileRow = 1 };
    static constexpr int maxFileCount = 3;

    int kind = FolderRow;
    int fileCount = 0;
    QPersistentModelIndex folderIndex; ///< invalid in a file row
    /// In column order, the first `fileCount` of them. In place, as a list would cost as much again.
    QPersistentModelIndex fileIndexes[maxFileCount];
};

Q_DECLARE_TYPEINFO(TableRow, Q_MOVABLE_TYPE);

class Q_DECL_HIDDEN ZVBatchInputTableModel::Private
{
public:
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
    enum ChildKind { Folders = 1, Files = 2 };

    void AddFolderRow(const QModelIndex& folder);
    void AddChildren(const QModelIndex& parent, int kinds, QVector<QModelIndex>& folders);
    void FillCells();

    /// Where each source index is shown, from the first search after a rebuild on. A persistent index is the same key
    /// for as long as it lives, wherever its node moves, so that no change of the source makes this wrong.
    QHash<QPersistentModelIndex, Cell> cells;
};
