#pragma once

#include "WorkerProcess.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <QVector>

namespace BatchProtocol {

/// A number of workers that are started in advance and reused for many tasks and runs. A worker that ends is replaced.
/// Each gets its next task before it has finished the last, so that it never waits.
class WorkerPool : public QObject
{
    Q_OBJECT

public:
    WorkerPool(const QString& program, const ServerLimits& limits, QObject* parent = nullptr);
    ~WorkerPool() override;

    /// Starts the missing workers, even if earlier ones failed to start.
    void Start();

    /// Whether a worker can take a task of a run with `left` tasks to hand out. The last tasks of a run wait for an
    /// idle worker, instead of queueing behind another task.
    bool HasRoom(int left) const;

    /// Whether a worker can take a task that gets a worker for itself.
    bool HasIdleWorker() const { return HasRoom(0); }

    /// Hands a task to a worker. HasRoom() must be true, and HasIdleWorker() for a second try.
    void Give(const Assignment& task);

    /// Ends the workers that have tasks of `run`. Always followed by Dropped() when they are gone, never from inside
    /// this call. The other signals are no longer emitted for the run.
    void Drop(quint64 run);

Q_SIGNALS:
    /// HasRoom() may have become true.
    void RoomMade();

    void Begun(const Assignment& task);
    void Reported(const Assignment& task, const Report& report);

    /// The worker has ended over this task.
    void Lost(const Assignment& task, WorkerEnd reason, const QString& text);

    /// The worker has ended over another task. It had not begun this one, or finished but not reported it.
    void Returned(const Assignment& task);

    void Dropped(quint64 run);

    /// No worker is left, and none can be started.
    void Broken(const QString& reason);

private:
    void StartWorker();
    void Remove(WorkerProcess* worker, WorkerEnd reason);
    void GiveBack(const QList<Assignment>& tasks, int culprit, WorkerEnd reason, const QString& text);
    void WatchMemory();
    void FinishDrops();
    bool HasTaskOf(quint64 run) const;

    const QString program;
    const ServerLimits limits;
    QVector<WorkerProcess*> workers;
    QSet<quint64> drops;
    QTimer memoryWatch;
    int failures = 0; ///< workers that ended without a task since the last report
};

} // namespace BatchProtocol
