// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureCells.h"

#include "hosts/common/Language.h"

using BatchHost::Messages;

namespace BatchDesktop {

PictureCells::PictureCells(ZVBatchInputTableModel& table, const InputPaths& paths, const PictureTexts& texts,
                           QObject* parent)
    : QIdentityProxyModel(parent)
    , table(table)
    , texts(texts)
{
    setSourceModel(&table);
    connect(&texts, &PictureTexts::Changed, this, [this, &paths](const QString& path) {
        const QModelIndex cell = CellOf(paths.IndexOf(path));
        if (cell.isValid()) {
            Q_EMIT dataChanged(cell, cell);
        }
    });
    connect(&texts, &PictureTexts::AllChanged, this, [this] {
        if (rowCount() > 0) {
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        }
    });
}

QModelIndex PictureCells::CellOf(const QModelIndex& input) const
{
    return input.isValid() ? mapFromSource(table.mapFromSource(input)) : QModelIndex();
}

/// The table says the same for every parent; a cell has nothing below it.
int PictureCells::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : table.rowCount();
}

int PictureCells::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : table.columnCount();
}

Qt::ItemFlags PictureCells::flags(const QModelIndex& index) const
{
    const bool isEmpty = !InputAt(index).isValid() || (IsFolder(index) && index.column() > 0);
    return isEmpty ? Qt::NoItemFlags : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

QVariant PictureCells::data(const QModelIndex& index, int role) const
{
    const QModelIndex input = InputAt(index);
    if (!input.isValid() || (IsFolder(index) && index.column() > 0)) {
        return {};
    }
    const InputNode& node = *NodeOf(input);
    switch (role) {
    case Qt::DisplayRole:
        return PictureTexts::IsFile(node) ? texts.Name(node) : FolderText(node, input);
    case Qt::DecorationRole:
        return PictureTexts::IsFile(node) ? QVariant(texts.Thumbnail(node)) : QVariant();
    case Qt::ToolTipRole:
        return texts.ToolTip(node);
    case Qt::AccessibleTextRole:
        return texts.Spoken(node);
    case StateRole:
        return texts.State(node);
    case WarningRole:
        return texts.IsWarning(node);
    default:
        return {};
    }
}

QString PictureCells::FolderText(const InputNode& folder, const QModelIndex& input) const
{
    const QString text =
        table.isFolderExpanded(input) ? Messages::tr("\u25be %1 (%2)") : Messages::tr("\u25b8 %1 (%2)");
    return text.arg(texts.Name(folder), texts.Result(folder));
}

} // namespace BatchDesktop
