#include "ZVBatchInputTableModel.h"

#include "ZVBatchInputTableModel_p.h"

#include <QPointer>

ZVBatchInputTableModel::ZVBatchInputTableModel(ZTBatchInputModel* source, QObject* parent)
    : QAbstractTableModel(parent)
    , d(std::make_unique<Private>(source))
{
    // Made by pointer: rebuild() is no slot.
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
    // Only the first cell of a folder row answers, although all of them lead to the folder.
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
    // If there are folders, the first of them is in the first row.
    return isFolderRow(0);
}

bool ZVBatchInputTableModel::isFolderExpanded(const QModelIndex& folder) const
{
    return d->expandedFolders.contains(folder);
}

QModelIndex ZVBatchInputTableModel::mapToSource(const QModelIndex& index) const
{
    // Wherever the user clicks in the row of a folder, the folder is meant.
    return index.isValid() ? d->rows.IndexAt(index.row(), index.column()) : QModelIndex();
}

QModelIndex ZVBatchInputTableModel::mapFromSource(const QModelIndex& sourceIndex) const
{
    // A cell whose node is gone has an invalid index, and those are all equal.
    const ZVBatchInputRows::Cell cell = sourceIndex.isValid() ? d->rows.Find(sourceIndex) : d->rows.FindGone();
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
