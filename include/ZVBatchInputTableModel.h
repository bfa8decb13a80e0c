// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchGlobal.h"

#include <QAbstractTableModel>

#include <memory>

class ZTBatchInputModel;

/// The input tree as a flat table of three columns, for a view that looks like a grid.
///
/// Each folder has a row of its own, in depth-first order. Below an expanded folder come its files, three to a row, and
/// then its sub-folders. The sub-folders of a collapsed folder are shown too. Files outside any folder come last and
/// are always shown.
///
/// Only rebuild() changes the rows. It runs when the source is reset, when the source emits ModelUpdated(), and in
/// toggleFolder(). Between rebuilds each cell keeps its node: it follows a node that moves, and is empty when the node
/// is removed. Rebuilds preserve which folders are expanded.
///
/// Use the table only on the thread of its source. It does not own the source; when that is destroyed, all cells are
/// empty.
class BATCHCORE_EXPORT ZVBatchInputTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// Creates an empty table; the first rebuild() adds the rows. `source` must not be null.
    explicit ZVBatchInputTableModel(ZTBatchInputModel* source, QObject* parent = nullptr);
    ~ZVBatchInputTableModel() override;

    /// The same for every parent.
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;

    /// Always 3.
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

    /// The source's data of the cell's file, or of the folder in column 0 of its row; an invalid value in other cells.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// Null when the source was destroyed.
    ZTBatchInputModel* sourceModel() const;

    /// False for a row that does not exist.
    bool isFolderRow(int row) const;

    /// Whether there is a folder row.
    bool HasFolder() const;

    /// Whether `folder`, an index of the source, is expanded.
    bool isFolderExpanded(const QModelIndex& folder) const;

    /// The source index of a cell. Every cell of a folder row maps to the folder, including those without data.
    QModelIndex mapToSource(const QModelIndex& index) const;

    /// The first cell that shows `sourceIndex`; invalid if there is none. An invalid index maps to the first cell whose
    /// node was removed from the source.
    QModelIndex mapFromSource(const QModelIndex& sourceIndex) const;

    /// Rebuilds the rows in a model reset, and then emits UpdateSelectionModel() if that was requested.
    void rebuild();

    /// Expands or collapses `folder`, an index of the source, rebuilds the rows and emits UpdateSelectionModel().
    /// Ignores invalid indexes and indexes of other models.
    void toggleFolder(const QModelIndex& folder);

    /// Requests UpdateSelectionModel() for the next rebuild, or cancels the request.
    void UpdateSelection(bool pending);

Q_SIGNALS:
    /// Emitted at the end of a rebuild for which it was requested: the view restores the selection lost in the reset.
    void UpdateSelectionModel();

private:
    Q_DISABLE_COPY(ZVBatchInputTableModel)

    class Private;
    const std::unique_ptr<Private> d;
};
