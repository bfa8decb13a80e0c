// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "WorkerProcess.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <QVector>

namespace BatchProtocol {

/// A number of workers that are started in advance and reused for many tasks. A worker that ends is replaced. Each gets
/// its next task before it has finished the last, so that it never waits.
///
/// The first task confines a worker to the files of its job. A worker of one job never gets a task of another: it ends,
/// and a new one takes its place. Jobs of one group have equal rights and share their workers; wherever this class
/// speaks of a job, it means the group.
class WorkerPool : public QObject
{
    Q_OBJECT

public:
    WorkerPool(const QString& program, const ServerLimits& limits, QObject* parent = nullptr);
    ~WorkerPool() override;

    /// Starts the missing workers, even if earlier ones failed to start, and replaces those whose job has no more
    /// tasks.
    void Start();

    /// Divides the workers among `jobs`, the framed jobs that have tasks to hand out. Each gets its share, as soon as
    /// other jobs have finished the tasks of the workers that they have to give away; if there are more jobs than
    /// workers, they take turns.
    void Serve(const QVector<QByteArray>& jobs);

    /// Whether a worker can take a task of `job`, one of those that are served, of which `left` tasks are to be handed
    /// out. The last tasks wait for an idle worker, instead of queueing behind another task.
    bool HasRoom(const QByteArray& job, int left) const;

    /// Whether a worker can take a task of `job` that gets a worker for itself.
    bool HasIdleWorker(const QByteArray& job) const { return HasRoom(job, 0); }

    /// Hands a task to a worker. HasRoom() must be true for its job, and HasIdleWorker() for a second try. The next
    /// tasks of its chain may follow at once: they need no room.
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
    WorkerProcess* WorkerOfChain(const Assignment& task) const;
    WorkerProcess* WorkerFor(const QByteArray& job, int mostTasks) const;
    WorkerProcess* WorkerToGiveAway(const QByteArray& job) const;
    bool IsFirstInLine(const QByteArray& job) const;
    int CountOf(const QByteArray& job) const;
    int Share() const;
    void StartWorker();
    void Remove(WorkerProcess* worker, WorkerEnd reason);
    void GiveBack(const QList<Assignment>& tasks, int culprit, WorkerEnd reason, const QString& text);
    void WatchMemory();
    void FinishDrops();
    bool HasTaskOf(quint64 run) const;

    const QString program;
    const ServerLimits limits;
    QVector<WorkerProcess*> workers;
    QVector<QByteArray> served; ///< jobs; those that have waited longest for a new worker come first
    QSet<quint64> drops;
    QTimer memoryWatch;
    int failures = 0; ///< workers that ended without a task since the last report
};

} // namespace BatchProtocol
