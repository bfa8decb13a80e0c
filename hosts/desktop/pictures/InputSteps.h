// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "InputBranches.h"

#include <QSet>
#include <QUndoCommand>

#include <memory>
#include <vector>

namespace BatchDesktop {

/// What a step that adds inputs and the scan behind it know of each other. Used on the window's thread only.
struct ScanControl
{
    bool isUndone = false; ///< the scan is not wanted any more
};

/// Adds branches to the inputs of a job. The steps of one scan are one step of the history, unless another step came
/// between them.
class AddInputsStep : public QUndoCommand
{
public:
    struct Item
    {
        QString folder;                    ///< path of the parent
        InputPlace parent;                 ///< when the branch is inserted
        int row = -1;                      ///< that it got
        std::unique_ptr<InputNode> branch; ///< null while it is in the model
    };

    /// `model` must outlive the step.
    AddInputsStep(ZTBatchInputModel& model, std::shared_ptr<ScanControl> scan, const QString& text);
    ~AddInputsStep() override;

    /// Inserts `branch` at once, as a part of the step that is not pushed yet. Its first redo() does nothing.
    void Insert(std::unique_ptr<InputNode> branch, const QModelIndex& parent);

    void undo() override;
    void redo() override;
    int id() const override { return 2; } // Another one than that of steps of the settings.
    bool mergeWith(const QUndoCommand* other) override;

private:
    void Note(Item item);

    ZTBatchInputModel& model;
    const std::shared_ptr<ScanControl> scan;
    QSet<QString> folders; ///< paths of those that the step has added
    /// In the order of insertion, without those in a folder that the step has added: they come and go with it. Moved to
    /// the step that this one is merged with.
    mutable std::vector<Item> items;
    bool isDone = true;
};

/// Removes rows of the inputs of a job.
class RemoveInputsStep : public QUndoCommand
{
public:
    /// `indexes` of the model, in any order. What is below one of them goes with it, and so do folders of which
    /// nothing is left. `model` must outlive the step.
    RemoveInputsStep(ZTBatchInputModel& model, const QModelIndexList& indexes, const QString& text);
    ~RemoveInputsStep() override;

    void undo() override;
    void redo() override;

private:
    /// Rows next to each other.
    struct Run
    {
        InputPlace parent;
        int first = 0;
        int count = 0;
        std::vector<std::unique_ptr<InputNode>> branches; ///< while they are out of the model
    };

    ZTBatchInputModel& model;
    std::vector<Run> runs; ///< in the order of the document
};

} // namespace BatchDesktop
