// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/desktop/job/Settings.h"

#include "job/plan/RunPlan.h"
#include "server/protocol/WorkerJob.h"

#include <QByteArray>
#include <QString>

namespace BatchDesktop {

/// Where a preview is made, and for which screen.
struct PreviewPlace
{
    QString folder;            ///< of its files
    QByteArray displayProfile; ///< the ICC profile of the screen
};

/// What the workers of one preview are told.
struct PreviewPlan
{
    BatchJob::Refusal refusal;       ///< if there is one, the rest is empty
    BatchProtocol::WorkerJob result; ///< as a run has it, but for the output folder
    BatchProtocol::WorkerJob before; ///< cuts and sizes the picture only, and makes it ready to be shown
    BatchJob::RunPlan names;         ///< has the format of the result; the name is not the one that a run would use
    BatchJob::Policies policies;
    QByteArray beforeKey; ///< equal for previews whose picture before is the same
    qint64 inputBytes = -1;

    /// The plan for the picture `file`. Asks the file system; safe on any thread.
    static PreviewPlan Of(const QString& file, const Settings& settings, const PreviewPlace& place);

    /// Whether the format of the result depends on what a worker finds in the file.
    bool NeedsProbe() const;

    /// Enters what the probe has found.
    void SetProbe(const BatchProtocol::Report& report);
};

/// What the worker is told that makes a finished result ready to be shown.
BatchProtocol::WorkerJob DisplayJob(const PreviewPlace& place);

/// The format of pictures that are ready to be shown.
QString DisplayFormat();

} // namespace BatchDesktop
