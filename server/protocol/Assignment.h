// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "WorkerMessages.h"

#include "job/values/FileIdentity.h"

#include <QByteArray>

#include <optional>

namespace BatchProtocol {

/// A task on its way to a worker.
struct Assignment
{
    quint64 run = 0; ///< the run that the task belongs to
    int file = -1;   ///< the file's number in the plan of the run
    QByteArray job;  ///< the framed Job of the run; all its assignments share it
    ToWorker task;   ///< a ProbeTask or PictureTask with the number `file`

    /// The file in the place of the result. Another one there means that the result is finished, reported or not.
    std::optional<BatchJob::FileIdentity> before;

    /// A worker has ended, and it was not clear whether over this task. Now it gets a worker for itself.
    bool isSecondTry = false;
};

} // namespace BatchProtocol
