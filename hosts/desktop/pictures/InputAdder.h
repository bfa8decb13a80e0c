// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "InputScan.h"
#include "InputSteps.h"

#include "hosts/desktop/job/BackgroundWork.h"
#include "hosts/desktop/job/EditedJob.h"

#include <QPersistentModelIndex>
#include <QSet>
#include <QTimer>

#include <optional>

namespace BatchDesktop {

class InputPaths;

/// Adds files and folders to the edited job, as steps of its history. Folders are read on another thread, and their
/// files come in portions, so the window goes on meanwhile.
class InputAdder : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this object.
    InputAdder(EditedJob& job, const InputPaths& inputs, QObject* parent = nullptr);
    ~InputAdder() override;

    /// Begins to add `paths`. What is being added is finished first.
    void Add(const QStringList& paths);

    /// What was added stays.
    void Cancel();

    bool IsBusy() const { return bool(scan); }

Q_SIGNALS:
    void Began();

    /// Everything is added that could be, or it was cancelled. `problems` has a sentence, in the user's language, for
    /// each path that was left out.
    void Ended(const QStringList& problems);

private:
    void Begin();
    void Drain();
    std::unique_ptr<AddInputsStep> NextPortion();
    std::optional<QModelIndex> ParentOf(const InputScan::Branch& branch);
    void End(QStringList problems);

    EditedJob& job;
    const InputPaths& inputs;
    QStringList waiting; ///< paths to add when the scan has ended
    std::shared_ptr<InputScan> scan;
    std::shared_ptr<ScanControl> control; ///< of the scan
    QTimer drainTimer;
    bool isRead = false; ///< the scan has found everything; what is left is to be drained
    BackgroundWork work; ///< destroyed first: it calls back
};

} // namespace BatchDesktop
