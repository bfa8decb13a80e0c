// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureColumns.h"

#include "hosts/common/Language.h"

#include <QApplication>
#include <QStyle>

using BatchHost::Messages;

namespace BatchDesktop {

namespace {

const InputNode* FolderAt(const QModelIndex& index)
{
    return index.isValid() ? NodeOf(index) : nullptr;
}

QVariant WarningIcon()
{
    static const QIcon icon = QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
    return icon;
}

} // namespace

PictureColumns::PictureColumns(ZTBatchInputModel& inputs, const InputPaths& paths, const PictureTexts& texts,
                               QObject* parent)
    : QIdentityProxyModel(parent)
    , inputs(inputs)
    , paths(paths)
    , texts(texts)
{
    // Connected before the source is set, so these come before what the base does at the same signals.
    connect(&inputs, &QAbstractItemModel::rowsAboutToBeInserted, this, [this](const QModelIndex& folder, int first) {
        isArriving = true;
        arrivingFolder = FolderAt(folder);
        arrivingRow = first;
    });
    connect(&inputs, &QAbstractItemModel::rowsInserted, this, [this] { isArriving = false; });
    setSourceModel(&inputs);
    connect(&inputs, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex& changed) { OnChanged(NodeOf(changed)->data.fileName); });
    connect(&texts, &PictureTexts::Changed, this, &PictureColumns::OnChanged);
    connect(&texts, &PictureTexts::AllChanged, this, &PictureColumns::OnAllChanged);
}

QModelIndex PictureColumns::index(int row, int column, const QModelIndex& parent) const
{
    if (row < 0 || column < 0 || column >= columnTotal || row >= rowCount(parent)) {
        return {};
    }
    const int sourceRow = IsArrivingIn(FolderAt(parent)) && row >= arrivingRow ? row + 1 : row;
    return createIndex(row, column, inputs.index(sourceRow, 0, mapToSource(parent)).internalPointer());
}

QModelIndex PictureColumns::parent(const QModelIndex& child) const
{
    return child.isValid() ? mapFromSource(inputs.indexFromNode(NodeOf(child)->parent)) : QModelIndex();
}

QModelIndex PictureColumns::sibling(int row, int column, const QModelIndex& index) const
{
    if (index.isValid() && row == index.row() && column >= 0 && column < columnTotal) {
        return createIndex(row, column, index.internalPointer());
    }
    return this->index(row, column, parent(index));
}

int PictureColumns::rowCount(const QModelIndex& parent) const
{
    if (parent.column() > 0) {
        return 0;
    }
    return inputs.rowCount(mapToSource(parent)) - (IsArrivingIn(FolderAt(parent)) ? 1 : 0);
}

int PictureColumns::columnCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : columnTotal;
}

bool PictureColumns::hasChildren(const QModelIndex& parent) const
{
    return rowCount(parent) > 0;
}

/// Views look for the state of each row that can have children.
Qt::ItemFlags PictureColumns::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QIdentityProxyModel::flags(index);
    return index.isValid() && PictureTexts::IsFile(*NodeOf(index)) ? flags | Qt::ItemNeverHasChildren : flags;
}

QVariant PictureColumns::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const InputNode& node = *NodeOf(index);
    switch (role) {
    case Qt::ToolTipRole:
        return texts.ToolTip(node);
    case Qt::AccessibleTextRole:
        return index.column() == NameColumn ? texts.Spoken(node) : data(index, Qt::DisplayRole);
    case Qt::DisplayRole:
        switch (index.column()) {
        case NameColumn:
            return texts.Name(node);
        case ResultColumn:
            return texts.ShortResult(node);
        case StateColumn:
            return texts.State(node);
        default:
            return {};
        }
    case Qt::DecorationRole:
        if (index.column() == ThumbnailColumn && PictureTexts::IsFile(node)) {
            const QPixmap thumbnail = texts.Thumbnail(node);
            return thumbnail.isNull() ? QVariant() : QIcon(thumbnail);
        }
        return index.column() == StateColumn && texts.IsWarning(node) ? WarningIcon() : QVariant();
    default:
        return {};
    }
}

QVariant PictureColumns::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case ThumbnailColumn:
        return Messages::tr("Picture");
    case NameColumn:
        return Messages::tr("Name");
    case ResultColumn:
        return Messages::tr("Result");
    case StateColumn:
        return Messages::tr("State");
    default:
        return {};
    }
}

QModelIndex PictureColumns::mapToSource(const QModelIndex& index) const
{
    return index.isValid() ? inputs.indexFromNode(NodeOf(index)) : QModelIndex();
}

QModelIndex PictureColumns::mapFromSource(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return {};
    }
    int row = index.row();
    if (IsArrivingIn(FolderOf(NodeOf(index)))) {
        if (row == arrivingRow) {
            return {};
        }
        row -= row > arrivingRow ? 1 : 0;
    }
    return createIndex(row, 0, index.internalPointer());
}

QModelIndex PictureColumns::IndexOf(InputNode* node) const
{
    return mapFromSource(inputs.indexFromNode(node));
}

void PictureColumns::OnChanged(const QString& path)
{
    const QModelIndex first = mapFromSource(paths.IndexOf(path));
    if (first.isValid()) {
        Q_EMIT dataChanged(first, first.siblingAtColumn(columnTotal - 1));
    }
}

void PictureColumns::OnAllChanged()
{
    Q_EMIT AllChanging();
    const auto emitFor = [this](const QModelIndex& folder) {
        const int rows = rowCount(folder);
        if (rows > 0) {
            Q_EMIT dataChanged(index(0, 0, folder), index(rows - 1, columnTotal - 1, folder));
        }
    };
    emitFor(QModelIndex());
    const QList<const InputNode*> folders = paths.Folders();
    for (const InputNode* const folder : folders) {
        emitFor(mapFromSource(paths.IndexOf(folder->data.fileName)));
    }
}

} // namespace BatchDesktop
