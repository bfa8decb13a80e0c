#pragma once

#include "WorkerProcess.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <QVector>

namespace BatchProtocol {

/// The workers: one for each core, started ahead, reused from picture to picture and from run to run. One that has
/// ended is replaced. Each has the next task before it has finished the last, so that it never waits.
class WorkerPool : public QObject
{
    Q_OBJECT

public:
    WorkerPool(const QString& program, const ServerLimits& limits, QObject* parent = nullptr);
    ~WorkerPool() override;

    /// Starts the workers that are not there, with hope again when earlier ones could not be started.
    void Start();

    /// Whether a task of a run that has `left` tasks to hand out finds a worker. With few left a task waits for a
    /// worker that is free, rather than behind another task.
    bool HasRoom(int left) const;

    /// Hands a task to a worker; HasRoom() was true.
    void Give(const Assignment& task);

    /// Ends the workers that have tasks of `run`. Dropped() comes when they are gone, in any case and never from inside
    /// this call; none of the other signals comes for the run any more.
    void Drop(quint64 run);

Q_SIGNALS:
    /// A task may find a worker now.
    void RoomMade();

    void Begun(const Assignment& task);
    void Reported(const Assignment& task, const Report& report);

    /// The worker has ended over this task.
    void Lost(const Assignment& task, WorkerEnd reason, const QString& text);

    /// The worker has ended, but over another task: it had not begun this one, or not yet reported it.
    void Returned(const Assignment& task);

    void Dropped(quint64 run);

    /// No worker is left and none can be started.
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
