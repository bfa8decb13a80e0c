// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchInputModel.h"

/// Is notified of row changes of an input model at the time at which the model's persistent indexes are updated, before
/// the signals. Must neither change the model nor create persistent indexes.
///
/// It replaces large numbers of persistent indexes, since Qt visits every persistent index at every change.
class ZTBatchInputObserver
{
public:
    using Node = TreeNode<BatchNodeData>;

    /// `count` rows were inserted into `folder` (the root for the top level) at `first`. `count` may be 0 or less: see
    /// insertRows().
    virtual void RowsInserted(const Node& folder, int first, int count) = 0;

    /// `count` rows of `folder` are about to be removed at `first`. They are still in the tree.
    virtual void RowsLeaving(const Node& folder, int first, int count) = 0;

    /// The model was reset, which invalidates all persistent indexes.
    virtual void ModelReset() = 0;

protected:
    ZTBatchInputObserver() = default;
    ~ZTBatchInputObserver() = default;

private:
    Q_DISABLE_COPY(ZTBatchInputObserver)
};
