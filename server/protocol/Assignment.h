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
    QByteArray job;  ///< the framed Job of the result; the run's assignments share it, or those of a bundle a few
    ToWorker task;   ///< a ProbeTask or PictureTask with the number `file`

    /// The file in the place of the result. Another one there means that the result is finished, reported or not.
    std::optional<BatchJob::FileIdentity> before;

    /// A worker has ended, and it was not clear whether over this task. Now it gets a worker for itself.
    bool isSecondTry = false;

    /// The jobs whose tasks may have the same workers, as all of them have equal rights; empty: `job` alone.
    QByteArray group = {};

    /// Tasks of one chain, if it is not negative, go to the worker that has the last one: it keeps what it has decoded.
    int chain = -1;

    const QByteArray& Group() const { return group.isEmpty() ? job : group; }
};

} // namespace BatchProtocol
