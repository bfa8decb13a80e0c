// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "SpareWorkers.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

namespace BatchDesktop {

/// A worker for the tasks of one job. It takes a spare worker for its first task, and another one if that has ended.
/// Deleting it ends the worker.
class TaskWorker : public QObject
{
    Q_OBJECT

public:
    /// `job` is what the worker gets first; it is confined to the files of the job.
    TaskWorker(SpareWorkers& spares, const BatchProtocol::Job& job);
    ~TaskWorker() override;

    /// Hands over a task, to be done after the earlier ones.
    void Give(const BatchProtocol::ToWorker& task);

Q_SIGNALS:
    /// The task `report.number` is over. What a worker says is checked; the end of a worker over its task is a failure
    /// as it is in a run.
    void Reported(const BatchProtocol::Report& report);

private:
    void TakeWorker();
    void Hand(const BatchProtocol::Assignment& assignment);
    void OnReported(const BatchProtocol::Assignment& assignment, const BatchProtocol::Report& report);
    void OnEnded(BatchProtocol::WorkerEnd reason);
    void WatchMemory();

    SpareWorkers& spares;
    const QByteArray job; ///< framed
    QPointer<BatchProtocol::WorkerProcess> worker;
    QTimer memoryWatch;
};

} // namespace BatchDesktop
