// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "InputBranches.h"

#include <QHash>
#include <QMutex>
#include <QSet>
#include <QStringList>

#include <deque>
#include <functional>
#include <memory>

namespace BatchHost {
class InputCollector;
} // namespace BatchHost

namespace BatchDesktop {

/// Turns files and folders into branches of inputs, on a thread of its own, and passes them on as soon as a folder has
/// been read.
class InputScan
{
public:
    struct Branch
    {
        QString parent; ///< path of the folder in the job; empty for the top
        std::unique_ptr<InputNode> node;
    };

    /// `known` are the paths in the job, which are not added again; `outputFolder` is left out where a folder contains
    /// it. `onNews` is called on the scanning thread when there are branches to take and none were before.
    InputScan(const QStringList& paths, const QHash<QString, InputNode*>& known, const QString& outputFolder,
              const std::function<void()>& onNews);

    /// Reads everything. Called once, on a thread that may wait.
    void Run(const std::function<bool()>& isCancelled);

    /// The next branch, with a null node if none is ready. Safe on any thread.
    Branch Take();

    /// For the end of the scan: one sentence for each path that could not be added, or was left out unexpectedly;
    /// in English, to be translated where it is shown.
    const QStringList& Problems() const { return problems; }

private:
    void Add(BatchHost::InputCollector& collector, const QStringList& request);
    void NoteProblems(const BatchHost::InputCollector& collector);
    void PassOnFolder(const InputNode& folder);
    void PassOn(const QString& parent, std::unique_ptr<InputNode> node);

    const QStringList paths;
    QHash<QString, InputNode*> known; ///< only the paths are used, as the nodes belong to another thread
    const QString outputFolder;
    const std::function<void()> onNews;
    QStringList problems;
    QSet<QString> passedOn; ///< folders

    QMutex mutex;
    std::deque<Branch> branches;
};

} // namespace BatchDesktop
