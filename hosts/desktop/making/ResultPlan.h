// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/desktop/job/Settings.h"

#include "job/plan/RunPlan.h"
#include "server/protocol/WorkerJob.h"

#include <QString>

namespace BatchDesktop {

/// What the worker is told that makes the result of one picture.
struct ResultPlan
{
    BatchJob::Refusal refusal;    ///< if there is one, the rest is empty
    BatchProtocol::WorkerJob job; ///< as a run has it, but for the output folder
    BatchJob::RunPlan names;      ///< has the format of the result; the name is not the one that a run would use
    BatchJob::Policies policies;
    qint64 inputBytes = -1;

    /// The plan for the picture `file`, whose result is to be in `folder`. Asks the file system; safe on any thread.
    static ResultPlan Of(const QString& file, const Settings& settings, const QString& folder);

    /// Whether the format of the result depends on what a worker finds in the file.
    bool NeedsProbe() const;

    /// Enters what the probe has found.
    void SetProbe(const BatchProtocol::Report& report);
};

/// A job with `settings` for `files`, as its worker gets it.
BatchProtocol::WorkerJob WorkerJobOf(const Settings& settings, const QVector<BatchJob::JobFile>& files);

} // namespace BatchDesktop
