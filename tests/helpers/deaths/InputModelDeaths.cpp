// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DeathCase.h"
#include "ZTBatchInputModel.h"

namespace {

using Node = TreeNode<BatchNodeData>;

/// Makes indexes without a node, which no correct host has: the model's own indexes always have one.
class CarelessModel : public ZTBatchInputModel
{
public:
    QModelIndex IndexOf(Node* node) const { return createIndex(0, 0, node); }
};

Node* NewNode(int type, int fileNodesCount)
{
    auto* const node = new Node;
    node->data.type = type;
    node->data.fileNodesCount = fileNodesCount;
    return node;
}

const DeathCase dataWithoutNode("input-data-without-node", [] {
    const CarelessModel model;
    model.data(model.IndexOf(nullptr), Qt::DisplayRole);
});

const DeathCase insertRowsWithoutNode("input-insert-rows-without-node", [] {
    CarelessModel model;
    model.insertRows(0, 1, model.IndexOf(nullptr));
});

const DeathCase removeRowsWithoutNode("input-remove-rows-without-node", [] {
    CarelessModel model;
    model.removeRows(0, 1, model.IndexOf(nullptr));
});

const DeathCase indexWithoutNode("input-index-without-node", [] {
    const CarelessModel model;
    model.index(0, 0, model.IndexOf(nullptr));
});

const DeathCase parentWithoutNode("input-parent-without-node", [] {
    const CarelessModel model;
    model.parent(model.IndexOf(nullptr));
});

const DeathCase parentOfLooseNode("input-parent-of-loose-node", [] {
    const CarelessModel model;
    Node loose;
    model.parent(model.IndexOf(&loose));
});

const DeathCase rowCountWithoutNode("input-row-count-without-node", [] {
    const CarelessModel model;
    model.rowCount(model.IndexOf(nullptr));
});

const DeathCase insertBranchWithoutNode("input-insert-branch-without-node", [] {
    CarelessModel model;
    Node node;
    model.InsertBranch(&node, model.IndexOf(nullptr));
});

/// The folder's count is less than the count of the child that is removed.
const DeathCase folderCountBelowZero("input-folder-count-below-zero", [] {
    ZTBatchInputModel model;
    const QModelIndex folder = model.InsertBranch(NewNode(Folder, 0), QModelIndex());
    const QModelIndex file = model.InsertBranch(NewNode(File, 1), folder);
    model.getNodeData(file)->fileNodesCount = 2;
    model.removeRows(0, 1, folder);
});

/// The folder's count is sufficient, but the one above it is not.
const DeathCase rootCountBelowZero("input-root-count-below-zero", [] {
    ZTBatchInputModel model;
    const QModelIndex folder = model.InsertBranch(NewNode(Folder, 0), QModelIndex());
    const QModelIndex file = model.InsertBranch(NewNode(File, 1), folder);
    model.getNodeData(file)->fileNodesCount = 2;
    model.getNodeData(folder)->fileNodesCount = 2;
    model.removeRows(0, 1, folder);
});

/// The final count is 0, but after the first of the two rows it is negative.
const DeathCase countBelowZeroOnTheWay("input-count-below-zero-on-the-way", [] {
    ZTBatchInputModel model;
    model.InsertBranch(NewNode(File, 1), QModelIndex());
    model.InsertBranch(NewNode(File, 1), QModelIndex());
    model.getNodeData(model.index(0, 0))->fileNodesCount = 3;
    model.getNodeData(model.index(1, 0))->fileNodesCount = -3;
    model.removeRows(0, 2);
});

const DeathCase nullBehindEqualChild("input-null-behind-equal-child", [] {
    Node folder;
    folder.insertChild(NewNode(File, 1));
    folder.children.append(nullptr);
    folder.insertChild(NewNode(File, 1));
});

const DeathCase nullInSearch("input-null-in-search", [] {
    Node folder;
    folder.insertChild(NewNode(File, 1));
    folder.children.prepend(nullptr);
    folder.insertChild(NewNode(File, 1));
});

const DeathCase nullAtEndOfSearch("input-null-at-end-of-search", [] {
    Node folder;
    folder.insertChild(NewNode(Folder, 0));
    folder.children.append(nullptr);
    folder.insertChild(NewNode(File, 1));
});

} // namespace
