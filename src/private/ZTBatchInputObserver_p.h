#pragma once

#include "ZTBatchInputModel.h"

/// Hears how the rows of an input model change, when the model's persistent indexes follow: before anybody hears of it
/// by signal. Must neither change the model nor make persistent indexes.
///
/// For what the library keeps in step with the tree in great numbers: Qt asks every persistent index at every change.
class ZTBatchInputObserver
{
public:
    using Node = TreeNode<BatchNodeData>;

    /// `count` rows have come into `folder`, the root at the top level, at `first`. May be 0 or less: see insertRows().
    virtual void RowsInserted(const Node& folder, int first, int count) = 0;

    /// `count` rows are leaving `folder` at `first`. They are in the tree still.
    virtual void RowsLeaving(const Node& folder, int first, int count) = 0;

    /// The model was reset: all persistent indexes end.
    virtual void ModelReset() = 0;

protected:
    ZTBatchInputObserver() = default;
    ~ZTBatchInputObserver() = default;

private:
    Q_DISABLE_COPY(ZTBatchInputObserver)
};
