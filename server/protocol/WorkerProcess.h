#pragma once

#include "Assignment.h"
#include "ChildProcess.h"

#include <QList>
#include <QObject>
#include <QTimer>

#include <optional>

namespace BatchProtocol {

/// How a worker came to its end.
enum class WorkerEnd {
    FailedToStart, ///< its process does not start, or ends before it is ready
    Died,
    OutOfMemory, ///< by its own word, or because it took more than it may
    Hung,        ///< a task took longer than it may
    Garbage,     ///< it said what is no answer
    Dropped      ///< nobody wants its tasks any more
};

/// One worker and the tasks that it has. Ends with this object.
class WorkerProcess : public QObject
{
    Q_OBJECT

public:
    /// Starts the worker. It is ready later, see Ready().
    WorkerProcess(const QString& program, const ServerLimits& limits, QObject* parent);
    ~WorkerProcess() override;

    bool IsReady() const { return isReady && !end; }
    qint64 ProcessId() const { return process.processId(); }

    /// The tasks that are not reported yet. When the worker has ended: those that it leaves.
    const QList<Assignment>& Tasks() const { return tasks; }

    /// Of an ended worker: which of its tasks it has ended over; -1 when it was between two. Earlier tasks wait to be
    /// reported, their results may be finished; later ones were not begun.
    int Culprit() const;

    /// Hands over a task. It is done when the earlier ones are.
    void Give(const Assignment& task);

    /// Ends the worker for the reason given; Ended() comes when it is gone.
    void End(WorkerEnd reason);

    /// What is known of the worker's end, for logs.
    QString EndText() const;

Q_SIGNALS:
    void Ready();

    /// The worker turns to the task.
    void Begun(const Assignment& task);
    void Reported(const Assignment& task, const Report& report);

    /// The worker has ended. Comes once; nothing comes after it.
    void Ended(WorkerEnd reason);

private:
    void ReadReports();
    void Take(const Report& report);
    void TakeBeginning(qint32 number);
    void NoteErrors();
    void Finish(int exitCode, QProcess::ExitStatus status);
    void FailToStart();

    const int taskTime; ///< ms
    ChildProcess process;
    QTimer clock; ///< runs while the worker owes an answer
    FrameReader reader;
    QByteArray currentJob;
    QList<Assignment> tasks;
    int begun = 0; ///< so many of the tasks
    bool isReady = false;
    std::optional<WorkerEnd> end;
    QByteArray lastErrors;
    QString exitText;
};

} // namespace BatchProtocol
