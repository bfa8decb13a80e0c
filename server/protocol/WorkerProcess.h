// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Assignment.h"
#include "ChildProcess.h"
#include "WorkerStreams.h"

#include <QDir>
#include <QList>
#include <QObject>
#include <QTemporaryDir>
#include <QTimer>

#include <optional>

namespace BatchProtocol {

/// Why a worker has ended.
enum class WorkerEnd {
    FailedToStart, ///< its process did not start, or ended before it was ready
    Died,
    OutOfMemory, ///< reported by itself, or because it exceeded its limit
    Hung,        ///< a task exceeded its time limit
    Garbage,     ///< it sent an invalid answer
    Noisy,       ///< it wrote too much to standard error
    Dropped      ///< its tasks are no longer wanted
};

/// A worker and its tasks. The worker ends with this object.
class WorkerProcess : public QObject
{
    Q_OBJECT

public:
    /// Starts the worker. Ready() follows. The worker's own temporary folder is made in `temporaryParent`.
    WorkerProcess(const QString& program, const ServerLimits& limits, QObject* parent,
                  const QString& temporaryParent = QDir::tempPath());
    ~WorkerProcess() override;

    bool IsReady() const { return isReady && !end; }

    /// Whether it may get tasks, now or when it is ready.
    bool IsStaying() const { return !isLeaving && !end; }

    /// The group of its tasks, to whose rights it is confined. Empty before the first task.
    const QByteArray& CurrentGroup() const { return currentGroup; }

    qint64 ProcessId() const { return process.processId(); }

    /// The tasks that are not reported yet, also after the end of the worker.
    const QList<Assignment>& Tasks() const { return tasks; }

    /// After the end of the worker: the index of the task over which it ended; -1 when it was between two tasks. The
    /// results of earlier tasks may be finished though they are not reported; later tasks were not begun.
    int Culprit() const;

    /// Hands over a task, to be done after the earlier ones. All tasks of a worker have the same
    /// group.
    void Give(const Assignment& task);

    /// Ends the worker when all its tasks are reported; now when it has none.
    void Leave();

    /// Kills the worker for `reason`. Ended() follows when it is gone.
    void End(WorkerEnd reason);

    /// How the worker ended, for logs.
    QString EndText() const;

Q_SIGNALS:
    void Ready();

    /// The worker has begun the task.
    void Begun(const Assignment& task);
    void Reported(const Assignment& task, const Report& report);

    /// The worker has ended. Emitted once, as the last signal.
    void Ended(WorkerEnd reason);

private:
    void ReadReports(const QByteArray& bytes);
    void OnReport(const Report& report);
    void OnBeginning(qint32 number);
    void NoteErrors(const QByteArray& bytes);
    void Finish(int exitCode, QProcess::ExitStatus status);
    void FailToStart();

    const int taskTime;            ///< ms
    QTemporaryDir temporaryFolder; ///< the worker's own: it may write there
    ChildProcess process;
    WorkerStreams streams;
    QTimer clock; ///< runs while an answer is due
    FrameReader reader;
    QByteArray currentGroup;
    QByteArray currentJob; ///< that it was sent last
    QList<Assignment> tasks;
    int begun = 0; ///< how many of the tasks the worker has begun
    bool isReady = false;
    bool isLeaving = false;
    std::optional<WorkerEnd> end;
    QByteArray lastErrors;
    qint64 errorBytes = 0; ///< since the last report
    QString exitText;
};

} // namespace BatchProtocol
