#pragma once

#include "ZTBatchGlobal.h"

#include <QAbstractTableModel>

#include <memory>

class ZTBatchInputModel;

/// The input tree as a flat table of three columns, for a view that looks like a grid.
///
/// Each folder has a row of its own, in depth-first order. Below a folder that is expanded come its files, three to a
/// row; then its sub-folders, which are shown whether it is expanded or not. The files outside all folders come last
/// and are always shown.
///
/// The rows are made anew by rebuild() alone, that is when the source is reset, when it emits ModelUpdated(), and by
/// toggleFolder(). Until then they keep to their nodes: a row follows a node whose place changes and is empty when the
/// node is gone. What happens to a folder never takes its state away, whether it is expanded.
///
/// Belongs to the thread of its source, which it does not own: once that is destroyed, the cells are empty.
class BATCHCORE_EXPORT ZVBatchInputTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// A table without rows: the first rebuild() makes them.
    explicit ZVBatchInputTableModel(ZTBatchInputModel* source, QObject* parent = nullptr);
    ~ZVBatchInputTableModel() override;

    /// The same for every parent.
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;

    /// Always 3.
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

    /// What the source says about the folder, in column 0 of its row, or about the file; nothing in other cells.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    ZTBatchInputModel* sourceModel() const;

    /// False for a row that does not exist.
    bool isFolderRow(int row) const;

    /// Whether there is a folder row.
    bool HasFolder() const;

    /// Whether the files of `folder`, an index of the source, are shown at the next rebuild.
    bool isFolderExpanded(const QModelIndex& folder) const;

    /// The index of the source behind a cell. Every cell of a folder row leads to the folder, also those without data.
    QModelIndex mapToSource(const QModelIndex& index) const;

    /// The first cell that shows `sourceIndex`; invalid when there is none. An invalid index leads to the first cell
    /// whose node has left the source.
    QModelIndex mapFromSource(const QModelIndex& sourceIndex) const;

    /// Makes the rows anew, in a model reset, then emits UpdateSelectionModel() if that was asked for.
    void rebuild();

    /// Expands or collapses `folder`, an index of the source, and makes the rows anew with UpdateSelectionModel() at
    /// the end. Ignored for an invalid index.
    void toggleFolder(const QModelIndex& folder);

    /// Asks for UpdateSelectionModel() at the next rebuild, or takes that back.
    void UpdateSelection(bool pending);

Q_SIGNALS:
    /// Comes at the end of a rebuild for which it was asked: the view restores the selection that the reset took away.
    void UpdateSelectionModel();

private:
    Q_DISABLE_COPY(ZVBatchInputTableModel)

    class Private;
    const std::unique_ptr<Private> d;
};
