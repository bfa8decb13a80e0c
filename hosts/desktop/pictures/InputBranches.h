// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchInputModel.h"

#include <QVector>

#include <memory>
#include <vector>

namespace BatchDesktop {

using InputNode = TreeNode<BatchNodeData>;

/// The node behind an index of the input model or of a model that shares its pointers; null for an invalid one.
inline InputNode* NodeOf(const QModelIndex& index)
{
    return static_cast<InputNode*>(index.internalPointer());
}

/// The folder of a node of the tree; null for the top.
inline InputNode* FolderOf(const InputNode* node)
{
    return node->parent->parent == nullptr ? nullptr : node->parent;
}

/// A place in the input tree: the rows from the top down to it.
using InputPlace = QVector<int>;

InputPlace PlaceOf(const QModelIndex& index);
QModelIndex IndexAt(const ZTBatchInputModel& model, const InputPlace& place);

/// A copy of `node` and all that is below it.
std::unique_ptr<InputNode> CopyOf(const InputNode& node);

/// Destroys the row at `place` with all below it, and returns a copy.
std::unique_ptr<InputNode> TakeOut(ZTBatchInputModel& model, const InputPlace& place);

/// Inserts `branch` exactly at `place`, where the order of the tree allows it: among equal siblings it gets its own
/// row, and not the last.
void PutBack(ZTBatchInputModel& model, const InputPlace& place, std::unique_ptr<InputNode> branch);

} // namespace BatchDesktop
