// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TaskWorker.h"

#include "server/protocol/ProcessMemory.h"
#include "server/protocol/TaskFailure.h"

#include <chrono>

using namespace std::chrono_literals;
using namespace BatchProtocol;

namespace BatchDesktop {

namespace {

constexpr auto memoryInterval = 200ms;

qint32 NumberOf(const ToWorker& task)
{
    const auto* const probe = std::get_if<ProbeTask>(&task);
    return probe ? probe->number : std::get<PictureTask>(task).number;
}

} // namespace

TaskWorker::TaskWorker(SpareWorkers& spares, const Job& job)
    : spares(spares)
    , job(FrameToWorker(job))
{
    connect(&memoryWatch, &QTimer::timeout, this, &TaskWorker::WatchMemory);
}

TaskWorker::~TaskWorker()
{
    if (worker) {
        worker->disconnect(this);
        spares.Discard(worker);
    }
}

void TaskWorker::Give(const ToWorker& task)
{
    Assignment assignment;
    assignment.file = NumberOf(task);
    assignment.job = job;
    assignment.task = task;
    Hand(assignment);
}

void TaskWorker::Hand(const Assignment& assignment)
{
    if (!worker) {
        TakeWorker();
    }
    worker->Give(assignment);
    memoryWatch.start(memoryInterval);
}

void TaskWorker::TakeWorker()
{
    worker = spares.Take();
    connect(worker, &WorkerProcess::Reported, this, &TaskWorker::OnReported);
    connect(worker, &WorkerProcess::Ended, this, &TaskWorker::OnEnded);
}

void TaskWorker::OnReported(const Assignment&, const Report& report)
{
    if (worker->Tasks().isEmpty()) {
        memoryWatch.stop();
    }
    if (report.failure != BatchJob::PolicyKind::None) {
        Q_EMIT Reported(CheckedFailure(report));
        return;
    }
    Report checked = report;
    checked.warnings = CheckedWarnings(report);
    checked.facts = CheckedFacts(report);
    Q_EMIT Reported(checked);
}

void TaskWorker::OnEnded(WorkerEnd reason)
{
    memoryWatch.stop();
    const QList<Assignment> tasks = worker->Tasks();
    const int culprit = worker->Culprit();
    const QString text = worker->EndText();
    worker->deleteLater();
    worker.clear();
    const QPointer<TaskWorker> self(this);
    for (int i = 0; self && i < tasks.size(); ++i) {
        Assignment task = tasks[i];
        // The worker had not begun with it.
        if (i != culprit && !task.isSecondTry) {
            task.isSecondTry = true;
            Hand(task);
            continue;
        }
        Report failure = CheckedFailure(FailureOfEnd(reason, text, spares.Limits()));
        failure.number = task.file;
        Q_EMIT Reported(failure);
    }
}

void TaskWorker::WatchMemory()
{
    if (worker && MemoryOfProcess(worker->ProcessId()) > spares.Limits().workerMemory) {
        worker->End(WorkerEnd::OutOfMemory);
    }
}

} // namespace BatchDesktop
