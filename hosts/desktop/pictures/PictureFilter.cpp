// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureFilter.h"

#include <algorithm>
#include <iterator>

namespace BatchDesktop {

PictureFilter::PictureFilter(PictureColumns& columns, QObject* parent)
    : QAbstractProxyModel(parent)
    , columns(columns)
{
    setSourceModel(&columns);
    ConnectColumns();
}

/// While the filter is inactive, rows come and go with those of the columns. While it is active, what comes is shown
/// after it has come, and what goes is hidden before.
void PictureFilter::ConnectColumns()
{
    using Model = QAbstractItemModel;
    connect(&columns, &Model::rowsAboutToBeInserted, this, [this](const QModelIndex& folder, int first, int last) {
        if (!IsActive()) {
            beginInsertRows(mapFromSource(folder), first, last);
        }
    });
    connect(&columns, &Model::rowsInserted, this, [this](const QModelIndex& folder, int first, int last) {
        if (!IsActive()) {
            endInsertRows();
            return;
        }
        for (int row = first; row <= last; ++row) {
            Reveal(NodeOf(columns.index(row, 0, folder)));
        }
    });
    connect(&columns, &Model::rowsAboutToBeRemoved, this, [this](const QModelIndex& folder, int first, int last) {
        if (!IsActive()) {
            beginRemoveRows(mapFromSource(folder), first, last);
            return;
        }
        const auto rows = shown.constFind(NodeOf(folder));
        if (rows != shown.constEnd()) {
            Hide(NodeOf(folder), RowFor(*rows, first), RowFor(*rows, last + 1) - 1);
        }
    });
    connect(&columns, &Model::rowsRemoved, this, [this] {
        if (!IsActive()) {
            endRemoveRows();
        }
    });
    connect(&columns, &Model::modelAboutToBeReset, this, &PictureFilter::beginResetModel);
    connect(&columns, &Model::modelReset, this, [this] {
        Rebuild();
        endResetModel();
    });
    connect(&columns, &PictureColumns::AllChanging, this, [this] {
        if (state != ShownState::All) {
            Renew();
        }
    });
    connect(&columns, &Model::dataChanged, this, &PictureFilter::OnDataChanged);
}

void PictureFilter::Show(const QString& wantedText, ShownState wantedState)
{
    Q_EMIT layoutAboutToBeChanged();
    text = wantedText;
    state = wantedState;
    Rebuild();
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex& index : before) {
        after.append(IndexOf(NodeOf(index)).siblingAtColumn(index.column()));
    }
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged();
}

QModelIndex PictureFilter::index(int row, int column, const QModelIndex& parent) const
{
    if (row < 0 || column < 0 || row >= rowCount(parent) || column >= columnCount(parent)) {
        return {};
    }
    InputNode* const node =
        IsActive() ? shown.find(NodeOf(parent))->at(row) : NodeOf(columns.index(row, 0, mapToSource(parent)));
    return createIndex(row, column, node);
}

QModelIndex PictureFilter::parent(const QModelIndex& child) const
{
    return child.isValid() ? IndexOf(FolderOf(NodeOf(child))) : QModelIndex();
}

QModelIndex PictureFilter::sibling(int row, int column, const QModelIndex& index) const
{
    if (index.isValid() && row == index.row() && column >= 0 && column < PictureColumns::columnTotal) {
        return createIndex(row, column, index.internalPointer());
    }
    return this->index(row, column, parent(index));
}

int PictureFilter::rowCount(const QModelIndex& parent) const
{
    if (parent.column() > 0) {
        return 0;
    }
    return IsActive() ? shown.value(NodeOf(parent)).size() : columns.rowCount(mapToSource(parent));
}

int PictureFilter::columnCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : PictureColumns::columnTotal;
}

bool PictureFilter::hasChildren(const QModelIndex& parent) const
{
    return rowCount(parent) > 0;
}

/// The base asks for it by the first row, which need not exist.
QVariant PictureFilter::headerData(int section, Qt::Orientation orientation, int role) const
{
    return columns.headerData(section, orientation, role);
}

QModelIndex PictureFilter::mapToSource(const QModelIndex& index) const
{
    return index.isValid() ? columns.IndexOf(NodeOf(index)).siblingAtColumn(index.column()) : QModelIndex();
}

QModelIndex PictureFilter::mapFromSource(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return {};
    }
    const int row = IsActive() ? RowOf(NodeOf(index)) : index.row();
    return row < 0 ? QModelIndex() : createIndex(row, index.column(), index.internalPointer());
}

/// Invalid for null and for what is hidden.
QModelIndex PictureFilter::IndexOf(InputNode* node) const
{
    return node == nullptr ? QModelIndex() : mapFromSource(columns.IndexOf(node));
}

/// The first of `rows`, all of one folder, that does not come before `sourceRow` of it.
int PictureFilter::RowFor(const Nodes& rows, int sourceRow) const
{
    const auto comesBefore = [this](InputNode* node, int row) { return SourceRow(node) < row; };
    return int(std::lower_bound(rows.begin(), rows.end(), sourceRow, comesBefore) - rows.begin());
}

/// The row of `node` in its folder; -1 if it is hidden.
int PictureFilter::RowOf(InputNode* node) const
{
    const auto rows = shown.constFind(FolderOf(node));
    if (rows == shown.constEnd()) {
        return -1;
    }
    const int row = RowFor(*rows, SourceRow(node));
    return row < rows->size() && rows->at(row) == node ? row : -1;
}

bool PictureFilter::Accepts(const InputNode& node) const
{
    if (!PictureTexts::IsFile(node)) {
        return false; // Shown with the pictures in it.
    }
    const QString& path = node.data.fileName;
    const QStringView name = QStringView(path).mid(path.lastIndexOf(QLatin1Char('/')) + 1);
    return (text.isEmpty() || name.contains(text, Qt::CaseInsensitive)) && columns.Texts().Matches(node, state);
}

void PictureFilter::Rebuild()
{
    shown.clear();
    fileCount = 0;
    if (!IsActive()) {
        return;
    }
    Nodes& top = shown[nullptr];
    for (int row = 0; row < columns.rowCount(); ++row) {
        InputNode* const node = NodeOf(columns.index(row, 0));
        if (Collect(node, nullptr)) {
            top.append(node);
        }
    }
}

/// Notes what passes of `top` and of what is below it, with the folders up to, but not including, `end`, which must
/// have been hidden. False if nothing passes.
bool PictureFilter::Collect(InputNode* top, const InputNode* end)
{
    const int countBefore = fileCount;
    Nodes open{top};
    while (!open.isEmpty()) {
        InputNode* const node = open.takeLast();
        if (!Accepts(*node)) {
            // In the order of the document.
            std::copy(node->children.rbegin(), node->children.rend(), std::back_inserter(open));
            continue;
        }
        ++fileCount;
        bool isFolderNew = true;
        for (InputNode* at = node; isFolderNew && FolderOf(at) != end; at = FolderOf(at)) {
            Nodes& rows = shown[FolderOf(at)];
            isFolderNew = rows.isEmpty();
            rows.append(at);
        }
    }
    return fileCount > countBefore;
}

/// Shows what passes of `node`, which has been hidden, and of what is below it.
void PictureFilter::Reveal(InputNode* node)
{
    InputNode* top = node;
    InputNode* folder = FolderOf(top);
    while (folder != nullptr && !shown.contains(folder)) {
        top = folder;
        folder = FolderOf(top);
    }
    if (Collect(node, folder)) {
        const int row = RowFor(shown.value(folder), SourceRow(top));
        beginInsertRows(IndexOf(folder), row, row);
        shown[folder].insert(row, top);
        endInsertRows();
    }
}

/// Hides rows of a folder with what is below them, and folders of which nothing is left.
void PictureFilter::Hide(InputNode* folder, int first, int last)
{
    if (first > last) {
        return;
    }
    while (folder != nullptr && last - first + 1 == shown[folder].size()) {
        first = last = RowOf(folder);
        folder = FolderOf(folder);
    }
    beginRemoveRows(IndexOf(folder), first, last);
    Nodes& rows = shown[folder];
    Nodes hidden = rows.mid(first, last - first + 1);
    rows.erase(rows.begin() + first, rows.begin() + last + 1);
    while (!hidden.isEmpty()) {
        InputNode* const node = hidden.takeLast();
        fileCount -= PictureTexts::IsFile(*node) ? 1 : 0;
        hidden += shown.take(node);
    }
    endRemoveRows();
}

void PictureFilter::OnDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight)
{
    if (!IsActive()) {
        Q_EMIT dataChanged(mapFromSource(topLeft), mapFromSource(bottomRight));
        return;
    }
    InputNode* const folder = NodeOf(topLeft.parent());
    if (state != ShownState::All) {
        Nodes other;
        for (int row = topLeft.row(); row <= bottomRight.row(); ++row) {
            InputNode* const node = NodeOf(topLeft.siblingAtRow(row));
            if (PictureTexts::IsFile(*node) && Accepts(*node) != (RowOf(node) >= 0)) {
                other.append(node);
            }
        }
        for (InputNode* const node : qAsConst(other)) {
            const int row = RowOf(node);
            if (row < 0) {
                Reveal(node);
            } else {
                Hide(folder, row, row);
            }
        }
    }
    const Nodes rows = shown.value(folder);
    const int first = RowFor(rows, topLeft.row());
    const int last = RowFor(rows, bottomRight.row() + 1) - 1;
    if (first <= last) {
        const QModelIndex parent = IndexOf(folder);
        Q_EMIT dataChanged(index(first, topLeft.column(), parent), index(last, bottomRight.column(), parent));
    }
}

} // namespace BatchDesktop
