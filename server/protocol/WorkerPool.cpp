// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WorkerPool.h"

#include "job/values/Phrase.h"

#include "ProcessMemory.h"

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace BatchProtocol {

namespace {

constexpr auto memoryInterval = 250ms;
constexpr int tasksAhead = 2;

/// Whether the worker can take a task, when none may have more than `most`.
bool CanTake(const WorkerProcess& worker, int most)
{
    const QList<Assignment>& tasks = worker.Tasks();
    const bool isForItself = !tasks.isEmpty() && tasks.last().isSecondTry;
    return worker.IsReady() && tasks.size() < most && !isForItself;
}

} // namespace

WorkerPool::WorkerPool(const QString& program, const ServerLimits& limits, QObject* parent)
    : QObject(parent)
    , program(program)
    , limits(limits)
{
    connect(&memoryWatch, &QTimer::timeout, this, &WorkerPool::WatchMemory);
    memoryWatch.start(memoryInterval);
}

WorkerPool::~WorkerPool()
{
    // The workers end with this object; their signals would find it half destroyed.
    for (WorkerProcess* worker : qAsConst(workers)) {
        worker->disconnect(this);
    }
}

void WorkerPool::Start()
{
    failures = 0;
    for (WorkerProcess* worker : qAsConst(workers)) {
        if (!worker->CurrentGroup().isEmpty() && worker->Tasks().isEmpty() &&
            !served.contains(worker->CurrentGroup())) {
            worker->Leave();
        }
    }
    while (workers.size() < limits.workers) {
        StartWorker();
    }
}

void WorkerPool::Serve(const QVector<QByteArray>& jobs)
{
    const auto isOver = [&jobs](const QByteArray& job) { return !jobs.contains(job); };
    served.erase(std::remove_if(served.begin(), served.end(), isOver), served.end());
    int coming = workers.size();
    for (const WorkerProcess* worker : qAsConst(workers)) {
        coming -= worker->IsStaying() && !worker->CurrentGroup().isEmpty() ? 1 : 0;
    }
    for (const QByteArray& job : jobs) {
        if (!served.contains(job)) {
            served.append(job);
        }
    }
    for (const QByteArray& job : qAsConst(served)) {
        if (CountOf(job) >= Share()) {
            continue;
        }
        if (coming > 0) {
            --coming;
        } else if (WorkerProcess* const worker = WorkerToGiveAway(job)) {
            worker->Leave();
        }
    }
}

bool WorkerPool::HasRoom(const QByteArray& job, int left) const
{
    return WorkerFor(job, left > workers.size() ? tasksAhead : 1) != nullptr;
}

void WorkerPool::Give(const Assignment& task)
{
    WorkerProcess* const ofChain = WorkerOfChain(task);
    WorkerProcess* const worker = ofChain ? ofChain : WorkerFor(task.Group(), tasksAhead);
    Q_ASSERT(worker);
    if (worker->CurrentGroup().isEmpty() && served.removeOne(task.Group())) {
        served.append(task.Group());
    }
    worker->Give(task);
}

/// The worker whose last task is of the same chain; null if there is none.
WorkerProcess* WorkerPool::WorkerOfChain(const Assignment& task) const
{
    if (task.chain < 0 || task.isSecondTry) {
        return nullptr;
    }
    const auto found = std::find_if(workers.begin(), workers.end(), [&task](const WorkerProcess* worker) {
        const QList<Assignment>& tasks = worker->Tasks();
        return worker->IsReady() && worker->IsStaying() && !tasks.isEmpty() && !tasks.last().isSecondTry &&
               tasks.last().run == task.run && tasks.last().chain == task.chain;
    });
    return found == workers.end() ? nullptr : *found;
}

/// The worker with the fewest tasks, below `mostTasks`, that can take one of `job`; null if no worker can.
WorkerProcess* WorkerPool::WorkerFor(const QByteArray& job, int mostTasks) const
{
    const bool mayTakeNew = IsFirstInLine(job);
    WorkerProcess* freest = nullptr;
    int fewest = mostTasks;
    for (WorkerProcess* worker : workers) {
        const bool isRight = worker->CurrentGroup().isEmpty() ? mayTakeNew : worker->CurrentGroup() == job;
        if (isRight && worker->IsStaying() && CanTake(*worker, fewest)) {
            freest = worker;
            fewest = worker->Tasks().size();
        }
    }
    return freest;
}

/// A worker of another job than `job` that should make room for it; null when none should.
WorkerProcess* WorkerPool::WorkerToGiveAway(const QByteArray& job) const
{
    const bool hasNone = CountOf(job) == 0;
    WorkerProcess* chosen = nullptr;
    int mostOfJob = 0;
    for (WorkerProcess* worker : workers) {
        const QByteArray& other = worker->CurrentGroup();
        if (!worker->IsStaying() || other.isEmpty() || other == job) {
            continue;
        }
        if (!served.contains(other)) {
            if (worker->Tasks().isEmpty()) {
                return worker;
            }
            continue; // It is free soon.
        }
        const int count = CountOf(other);
        if ((hasNone || count > Share()) && count > mostOfJob) {
            chosen = worker;
            mostOfJob = count;
        }
    }
    return chosen;
}

/// Whether the next worker without a job is for `job`: the served job that has the fewest, and has waited longest.
bool WorkerPool::IsFirstInLine(const QByteArray& job) const
{
    const auto first = std::min_element(served.begin(), served.end(), [this](const auto& left, const auto& right) {
        return CountOf(left) < CountOf(right);
    });
    return first != served.end() && *first == job;
}

int WorkerPool::CountOf(const QByteArray& job) const
{
    return int(std::count_if(workers.begin(), workers.end(), [&job](const WorkerProcess* worker) {
        return worker->IsStaying() && worker->CurrentGroup() == job;
    }));
}

int WorkerPool::Share() const
{
    return std::max(1, limits.workers / std::max(1, served.size()));
}

void WorkerPool::Drop(quint64 run)
{
    drops.insert(run);
    for (WorkerProcess* worker : qAsConst(workers)) {
        const QList<Assignment>& tasks = worker->Tasks();
        if (std::any_of(tasks.begin(), tasks.end(), [run](const Assignment& task) { return task.run == run; })) {
            worker->End(WorkerEnd::Dropped);
        }
    }
    QMetaObject::invokeMethod(
        this, [this] { FinishDrops(); }, Qt::QueuedConnection);
}

void WorkerPool::StartWorker()
{
    auto* const worker = new WorkerProcess(program, limits, this);
    workers.append(worker);
    connect(worker, &WorkerProcess::Ready, this, &WorkerPool::RoomMade);
    connect(worker, &WorkerProcess::Begun, this, &WorkerPool::Begun);
    connect(worker, &WorkerProcess::Reported, this, [this](const Assignment& task, const Report& report) {
        failures = 0;
        if (!drops.contains(task.run)) {
            Q_EMIT Reported(task, report);
        }
        Q_EMIT RoomMade();
    });
    connect(worker, &WorkerProcess::Ended, this, [this, worker](WorkerEnd reason) { Remove(worker, reason); });
}

void WorkerPool::Remove(WorkerProcess* worker, WorkerEnd reason)
{
    workers.removeOne(worker);
    worker->deleteLater();
    const QList<Assignment> tasks = worker->Tasks();
    const int culprit = worker->Culprit();
    const QString text = worker->EndText();
    if (tasks.isEmpty() && reason != WorkerEnd::Dropped) {
        ++failures;
        qWarning("A worker %s.", qUtf8Printable(text));
    }
    // Workers that cannot run must not be started again and again.
    if (failures <= limits.workers + 1) {
        StartWorker();
    }
    GiveBack(tasks, culprit, reason, text);
    FinishDrops();
    if (workers.isEmpty()) {
        Q_EMIT Broken(BatchJob::Phrase::English("\"%1\" cannot be started: %2").arg(program, text));
    }
}

void WorkerPool::GiveBack(const QList<Assignment>& tasks, int culprit, WorkerEnd reason, const QString& text)
{
    // A worker begins a task while it finishes the one before. Which of them it ended over is not known, as a picture
    // that has taken it over may make it begin others.
    const bool isUnclear = culprit > 0 && !tasks[culprit].isSecondTry;
    for (int i = 0; i < tasks.size(); ++i) {
        Assignment task = tasks[i];
        if (drops.contains(task.run)) {
            continue;
        }
        // A worker that ends between two tasks ended for another reason, or over the next task before it could report
        // its beginning. The next task gets a second try; if that ends the same way, it is blamed.
        const bool isNext = i == culprit + 1;
        const bool isBlamed = (i == culprit && !isUnclear) || (culprit < 0 && isNext && task.isSecondTry);
        if (isBlamed && reason != WorkerEnd::Dropped) {
            if (i > 0) {
                Q_EMIT Begun(task); // Emitted late, as earlier tasks were not reported yet.
            }
            Q_EMIT Lost(task, reason, text);
        } else {
            const bool isSuspect = (culprit < 0 && isNext) || (isUnclear && i <= culprit);
            task.isSecondTry = task.isSecondTry || (isSuspect && reason != WorkerEnd::Dropped);
            Q_EMIT Returned(task);
        }
    }
}

void WorkerPool::WatchMemory()
{
    for (WorkerProcess* worker : qAsConst(workers)) {
        if (!worker->Tasks().isEmpty() && MemoryOfProcess(worker->ProcessId()) > limits.workerMemory) {
            worker->End(WorkerEnd::OutOfMemory);
        }
    }
}

void WorkerPool::FinishDrops()
{
    const QSet<quint64> waiting = drops;
    for (const quint64 run : waiting) {
        if (!HasTaskOf(run)) {
            drops.remove(run);
            Q_EMIT Dropped(run);
        }
    }
}

bool WorkerPool::HasTaskOf(quint64 run) const
{
    return std::any_of(workers.begin(), workers.end(), [run](const WorkerProcess* worker) {
        const QList<Assignment>& tasks = worker->Tasks();
        return std::any_of(tasks.begin(), tasks.end(), [run](const Assignment& task) { return task.run == run; });
    });
}

} // namespace BatchProtocol
