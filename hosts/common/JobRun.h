// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "JournaledJob.h"
#include "PrivateTempFolder.h"
#include "RunController.h"

#include <QString>
#include <QVector>

#include <memory>
#include <optional>

class ZTBatchDocument;

namespace BatchHost {

/// What a run needs around it, for as long as it takes: a temporary folder of its own and the batch manager, which ends
/// its server with this object. One at a time in a process.
class JobRun
{
public:
    /// What keeps the run from starting.
    enum class Obstacle {
        None,
        NoTemporaryFolder,
        PipeInUse ///< by another batch server, on systems that have one pipe for all
    };

    /// The manager reads its policies from `settingsFolder`.
    explicit JobRun(const QString& settingsFolder);
    ~JobRun();

    /// With an obstacle nothing else may be called.
    Obstacle WhatPrevents() const { return obstacle; }
    QString TemporaryFolderError() const { return temporary.Error(); }

    /// What a run needs to know beside its job.
    struct Circumstances
    {
        BatchJob::PolicyValues policies{};
        bool isStrict = false; ///< see RunController::Order
        LeftOutFiles leftOut = {};
        std::optional<BatchJob::Update> update = {}; ///< of a new run; one that is resumed has its own
        BatchJob::Warnings ofEachResult = {};        ///< see RunController::Order
    };

    /// The run of `journaled`, ready to start. `job` is its job, or the first of its jobs. It must end before this
    /// object. The server of an earlier run, which must have ended, is asked to end.
    std::unique_ptr<RunController> Prepare(const ZTBatchDocument& job, JournaledJob& journaled,
                                           const Circumstances& circumstances, const QVector<RunObserver*>& observers);

private:
    Q_DISABLE_COPY(JobRun)

    const PrivateTempFolder temporary;
    const Obstacle obstacle;
};

} // namespace BatchHost
