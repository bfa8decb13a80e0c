#include "WorkerPool.h"

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
    while (workers.size() < limits.workers) {
        StartWorker();
    }
}

bool WorkerPool::HasRoom(int left) const
{
    const int most = left > workers.size() ? tasksAhead : 1;
    return std::any_of(workers.begin(), workers.end(),
                       [most](const WorkerProcess* worker) { return CanTake(*worker, most); });
}

void WorkerPool::Give(const Assignment& task)
{
    WorkerProcess* freest = nullptr;
    for (WorkerProcess* worker : qAsConst(workers)) {
        if (CanTake(*worker, tasksAhead) && (!freest || worker->Tasks().size() < freest->Tasks().size())) {
            freest = worker;
        }
    }
    Q_ASSERT(freest);
    freest->Give(task);
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
    if (tasks.isEmpty()) {
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
        Q_EMIT Broken(QStringLiteral("\"%1\" cannot be started: %2").arg(program, text));
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
