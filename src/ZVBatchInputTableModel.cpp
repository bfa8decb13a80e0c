// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZVBatchInputTableModel.h"

#include "ZVBatchInputTableModel_p.h"

#include <QPointer>

ZVBatchInputTableModel::ZVBatchInputTableModel(ZTBatchInputModel* source, QObject* parent)
    : QAbstractTableModel(parent)
    , d(std::make_unique<Private>(source))
{
    // Connected by pointer, since rebuild() is not a slot.
    connect(source, &QAbstractItemModel::modelReset, this, &ZVBatchInputTableModel::rebuild);
    connect(source, &ZTBatchInputModel::ModelUpdated, this, &ZVBatchInputTableModel::rebuild);
}

ZVBatchInputTableModel::~ZVBatchInputTableModel() = default;

int ZVBatchInputTableModel::rowCount(const QModelIndex&) const
{
    return d->rows.Count();
}

int ZVBatchInputTableModel::columnCount(const QModelIndex&) const
{
    return ZVBatchInputRows::columnCount;
}

QVariant ZVBatchInputTableModel::data(const QModelIndex& index, int role) const
{
    // Only the first cell of a folder row has data, although all of them map to the folder.
    if (isFolderRow(index.row()) && index.column() != 0) {
        return QVariant();
    }
    const QModelIndex sourceIndex = mapToSource(index);
    return sourceIndex.isValid() ? d->rows.Source()->data(sourceIndex, role) : QVariant();
}

ZTBatchInputModel* ZVBatchInputTableModel::sourceModel() const
{
    return d->rows.Source();
}

bool ZVBatchInputTableModel::isFolderRow(int row) const
{
    return d->rows.IsFolderRow(row);
}

bool ZVBatchInputTableModel::HasFolder() const
{
    // The first row is a folder row if there are any folders.
    return isFolderRow(0);
}

bool ZVBatchInputTableModel::isFolderExpanded(const QModelIndex& folder) const
{
    return d->expandedFolders.contains(folder);
}

QModelIndex ZVBatchInputTableModel::mapToSource(const QModelIndex& index) const
{
    // A click on any cell of a folder row means the folder.
    return index.isValid() ? d->rows.IndexAt(index.row(), index.column()) : QModelIndex();
}

QModelIndex ZVBatchInputTableModel::mapFromSource(const QModelIndex& sourceIndex) const
{
    // A cell whose node was removed has an invalid index, and all invalid indexes are equal.
    const ZVBatchInputRows::Cell cell = sourceIndex.isValid() ? d->rows.Find(sourceIndex) : d->rows.FindRemoved();
    return index(cell.row, cell.column);
}

void ZVBatchInputTableModel::rebuild()
{
    const QPointer<ZVBatchInputTableModel> self(this);
    beginResetModel();
    d->rows.Build(d->expandedFolders);
    endResetModel();
    if (self == nullptr || !d->selectionUpdatePending) {
        return;
    }
    Q_EMIT UpdateSelectionModel();
    if (self != nullptr) {
        d->selectionUpdatePending = false;
    }
}

void ZVBatchInputTableModel::toggleFolder(const QModelIndex& folder)
{
    if (!folder.isValid() || folder.model() != d->rows.Source()) {
        return;
    }
    const QPersistentModelIndex persistentFolder(folder);
    if (!d->expandedFolders.remove(persistentFolder)) {
        d->expandedFolders.insert(persistentFolder);
    }
    d->selectionUpdatePending = true;
    rebuild();
}

void ZVBatchInputTableModel::UpdateSelection(bool pending)
{
    d->selectionUpdatePending = pending;
}
