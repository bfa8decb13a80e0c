// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchInputModel.h"

#include "ZTBatchInputObserver_p.h"
#include "ZTDiagnostics_p.h"

#include <QDir>
#include <QFileInfo>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QVector>

#include <algorithm>
#include <limits>

namespace {

constexpr ZTDiagnostics diagnostics("src\\ZTBatchInputModel");

using Node = TreeNode<BatchNodeData>;

int ClampedToInt(qint64 value)
{
    return static_cast<int>(qBound<qint64>(std::numeric_limits<int>::min(), value, std::numeric_limits<int>::max()));
}

bool IsHeic(const QString& path)
{
    // The end decides for most paths; QFileInfo knows what a suffix is on this platform.
    return path.endsWith(QLatin1String(".heic"), Qt::CaseInsensitive) &&
           QFileInfo(path).suffix().toLower() == QLatin1String("heic");
}

/// Adds `count` to `folder` and to every node above it.
void AddFileNodes(Node* folder, int count)
{
    if (count == 0) {
        return;
    }
    for (; folder != nullptr; folder = folder->parent) {
        folder->data.fileNodesCount += count;
    }
}

/// Subtracts the counts of the children in the rows from `first` up to, but not including, `end`, from `folder` and
/// every node above it.
void SubtractFileNodes(Node* folder, int first, int end)
{
    // The children are removed one by one, and no count may fall below 0 after any of them. A host may have made a
    // count negative, so the minimum need not be at the end.
    constexpr qint64 nothing = std::numeric_limits<qint64>::min();
    qint64 total = 0;
    qint64 highestTotal = nothing;
    for (int row = first; row < end; ++row) {
        const int count = folder->children.at(row)->data.fileNodesCount;
        if (count != 0) {
            total += count;
            highestTotal = qMax(highestTotal, total);
        }
    }
    if (highestTotal == nothing) {
        return;
    }
    for (; folder != nullptr; folder = folder->parent) {
        diagnostics.Assert(folder->data.fileNodesCount - highestTotal >= 0, 192);
        folder->data.fileNodesCount = ClampedToInt(folder->data.fileNodesCount - total);
    }
}

} // namespace

ZTBatchInputModel::ZTBatchInputModel(QObject* parent)
    : QAbstractItemModel(parent)
    , root(std::make_unique<Node>())
{
}

ZTBatchInputModel::~ZTBatchInputModel() = default;

QModelIndex ZTBatchInputModel::index(int row, int column, const QModelIndex& parent) const
{
    diagnostics.Assert(root != nullptr, 250);
    if (row < 0 || column != 0) {
        return QModelIndex();
    }
    const Node* const folder = nodeOrRoot(parent);
    diagnostics.Assert(folder != nullptr, 258);
    if (row >= folder->children.size()) {
        return QModelIndex();
    }
    return createIndex(row, 0, folder->children.at(row));
}

QModelIndex ZTBatchInputModel::parent(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return QModelIndex();
    }
    const Node* const node = nodeOf(index);
    diagnostics.Assert(node != nullptr, 280);
    diagnostics.Assert(node->parent != nullptr, 282);
    Node* const folder = node->parent;
    if (folder->parent == nullptr) {
        return QModelIndex();
    }
    return createIndex(folder->parent->childRow(folder), 0, folder);
}

int ZTBatchInputModel::rowCount(const QModelIndex& parent) const
{
    diagnostics.Assert(root != nullptr, 300);
    const Node* const folder = nodeOrRoot(parent);
    diagnostics.Assert(folder != nullptr, 304);
    return folder->children.size();
}

int ZTBatchInputModel::columnCount(const QModelIndex&) const
{
    return 1;
}

QVariant ZTBatchInputModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return QVariant();
    }
    const Node* const node = nodeOf(index);
    diagnostics.Assert(node != nullptr, 97);
    switch (role) {
    case Qt::DisplayRole:
        return QDir::toNativeSeparators(node->data.fileName);
    case Qt::ToolTipRole:
        return node->data.toolTip.isEmpty() ? QDir::toNativeSeparators(node->data.fileName) : node->data.toolTip;
    default:
        return QVariant();
    }
}

QModelIndex ZTBatchInputModel::indexFromNode(TreeNode<BatchNodeData>* node) const
{
    if (node == nullptr || node == root.get() || node->parent == nullptr) {
        return QModelIndex();
    }
    const int row = node->parent->childRow(node);
    return row < 0 ? QModelIndex() : createIndex(row, 0, node);
}

BatchNodeData* ZTBatchInputModel::getNodeData(const QModelIndex& index) const
{
    Node* const node = index.isValid() ? nodeOf(index) : nullptr;
    return node == nullptr ? nullptr : &node->data;
}

int ZTBatchInputModel::GetFileNodesCount() const
{
    return root == nullptr ? 0 : root->data.fileNodesCount;
}

bool ZTBatchInputModel::IsHeicFormatExisting() const
{
    QVector<const Node*> pending{root.get()};
    while (!pending.isEmpty()) {
        const Node* const node = pending.takeLast();
        if (IsHeic(node->data.fileName)) {
            return true;
        }
        for (const Node* const child : node->children) {
            pending.append(child);
        }
    }
    return false;
}

bool ZTBatchInputModel::insertRows(int row, int count, const QModelIndex& parent)
{
    diagnostics.Assert(root != nullptr, 119);
    Node* const folder = nodeOrRoot(parent);
    diagnostics.Assert(folder != nullptr, 129);

    const int rowsBefore = folder->children.size();
    const int position = qBound(0, row, rowsBefore);
    // A count of 0 or less is announced too: slots of the two signals rely on every call.
    beginInsertRows(parent, position, ClampedToInt(qint64(position) + count - 1));
    for (int i = 0; i < count; ++i) {
        folder->insertChildAt(rowsBefore + i, new Node);
    }
    // Moved into place together: inserting them one by one would shift all later rows each time.
    std::rotate(folder->children.begin() + position, folder->children.begin() + rowsBefore, folder->children.end());
    for (int i = 0; i < count; ++i) {
        folder->children.at(position + i)->rowHint = position + i;
    }
    for (ZTBatchInputObserver* const observer : qAsConst(observers)) {
        observer->RowsInserted(*folder, position, count);
    }
    endInsertRows();
    return true;
}

bool ZTBatchInputModel::insertColumns(int, int, const QModelIndex&)
{
    return false;
}

bool ZTBatchInputModel::removeRows(int row, int count, const QModelIndex& parent)
{
    diagnostics.Assert(root != nullptr, 156);
    Node* const folder = nodeOrRoot(parent);
    diagnostics.Assert(folder != nullptr, 166);

    const qint64 removed = row < 0 ? qint64(count) + row : count;
    const int first = qMax(row, 0);
    if (row >= folder->children.size() || removed < 1) {
        return true;
    }
    beginRemoveRows(parent, first, ClampedToInt(first + removed - 1));
    // Only existing rows can be destroyed, whatever was announced.
    const int end = static_cast<int>(qMin<qint64>(first + removed, folder->children.size()));
    for (ZTBatchInputObserver* const observer : qAsConst(observers)) {
        observer->RowsLeaving(*folder, first, end - first);
    }
    SubtractFileNodes(folder, first, end);
    const QList<Node*> doomed = folder->children.mid(first, end - first);
    folder->children.erase(folder->children.begin() + first, folder->children.begin() + end);
    for (Node* const node : doomed) {
        // Already removed from the list, so the destructor need not search it.
        node->parent = nullptr;
        delete node;
    }
    endRemoveRows();
    return true;
}

bool ZTBatchInputModel::removeColumns(int, int, const QModelIndex&)
{
    return false;
}

QModelIndex ZTBatchInputModel::InsertBranch(TreeNode<BatchNodeData>* node, const QModelIndex& parent)
{
    diagnostics.Assert(root != nullptr, 367);
    if (node == nullptr) {
        return QModelIndex();
    }
    Node* const folder = nodeOrRoot(parent);
    diagnostics.Assert(folder != nullptr, 377);

    // Only the insertion yields the row, so the node is inserted before the insertion is announced. Persistent indexes
    // still work: Qt selects those to move by their rows before the insertion.
    const int row = folder->insertChild(node);
    const QPointer<ZTBatchInputModel> self(this);
    const bool isTopLevel = !parent.isValid();
    const QPersistentModelIndex persistentParent(parent);
    beginInsertRows(parent, row, row);
    AddFileNodes(folder, node->data.fileNodesCount);
    const bool isFolder = node->data.type == Folder;
    for (ZTBatchInputObserver* const observer : qAsConst(observers)) {
        observer->RowsInserted(*folder, row, 1);
    }
    endInsertRows();

    // A slot may have removed the folder or deleted the model.
    const auto isGone = [&] { return self == nullptr || (!isTopLevel && !persistentParent.isValid()); };
    if (isGone()) {
        return QModelIndex();
    }
    if (isFolder) {
        Q_EMIT FolderInserted(index(row, 0, persistentParent));
    }
    return isGone() ? QModelIndex() : index(row, 0, persistentParent);
}

void ZTBatchInputModel::setEnabled(const QModelIndex& index, bool enabled)
{
    BatchNodeData* const record = getNodeData(index);
    if (record == nullptr || record->enabled == enabled) {
        return;
    }
    record->enabled = enabled;
    Q_EMIT dataChanged(index, index);
}

void ZTBatchInputModel::setLastModification(const QModelIndex& index, const QString& text)
{
    BatchNodeData* const record = getNodeData(index);
    if (record == nullptr) {
        return;
    }
    record->lastModification = text;
    Q_EMIT dataChanged(index, index);
}

void ZTBatchInputModel::setToolTip(const QModelIndex& index, const QString& text)
{
    BatchNodeData* const record = getNodeData(index);
    if (record == nullptr) {
        return;
    }
    record->toolTip = text;
    Q_EMIT dataChanged(index, index);
}

void ZTBatchInputModel::endResetModel()
{
    for (ZTBatchInputObserver* const observer : qAsConst(observers)) {
        observer->ModelReset();
    }
    QAbstractItemModel::endResetModel();
}

TreeNode<BatchNodeData>* ZTBatchInputModel::nodeOf(const QModelIndex& index) const
{
    return static_cast<Node*>(index.internalPointer());
}

TreeNode<BatchNodeData>* ZTBatchInputModel::nodeOrRoot(const QModelIndex& index) const
{
    return index.isValid() ? nodeOf(index) : root.get();
}
