// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "RunObserver.h"
#include "ServerWatch.h"

#include "job/values/JobValues.h"

#include "ZTBatchManager.h"
#include "ZTBatchSession.h"

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <optional>

class ZTBatchDocument;

namespace BatchHost {

/// One run of a job through the batch manager: starts the server, records the result of every input, asks questions,
/// and resumes the run with a new server when one dies, ends without need, or no longer answers. Needs an instance of
/// the manager.
class RunController : public QObject
{
    Q_OBJECT

public:
    struct Order
    {
        QString document; ///< the text of the job
        RunInputs inputs; ///< of the job
        QString outputFolder;
        BatchJob::PolicyValues policies{};

        /// The results that the journal holds already are taken over. Without a journal, an empty path, the run ends
        /// with its server.
        QString journalPath;

        bool isStrict = false; ///< pictures with warnings count as failed

        BatchJob::Warnings ofEachResult = {}; ///< warnings about every result that this run makes
    };

    RunController(const Order& order, const QVector<RunObserver*>& observers);
    ~RunController() override;

    void Start();

    /// Lets the server begin with no further file until Resume(). Files in work are still finished. A server that takes
    /// the place of another one is paused too.
    void Pause();
    void Resume();

    /// Asks the server to end the run. Ended() follows, even if the server does not answer.
    void Cancel();

    /// Kills the server. Emits Ended() before it returns.
    void EndAtOnce();

    /// Answers the open question with a value of its policy.
    void Answer(int value, bool isForTheRest);

    /// Whether the server's executable is installed.
    static bool IsServerInstalled();

Q_SIGNALS:
    /// The server waits for Answer().
    void Question(BatchJob::PolicyKind kind, const QString& input, const QString& output, const QString& reason);

    /// The server has paused the run, or goes on with it.
    void Paused();
    void Resumed();

    /// The run is over. Emitted once.
    void Ended(const RunEnd& end);

private:
    enum class Phase { Idle, Running, Cancelling, Over };

    void StartServer();
    void BeginSession();
    void ConnectSession();
    void OnFileInProgress(const QString& input);
    void OnFileProcessed(const QString& input, const QString& output);
    void OnProcessError(const QString& input, const QString& output, int action, int errorCode);
    void OnLog(const QString& text);
    void OnQuestion(BatchJob::PolicyKind kind);
    void OnPaused();
    void OnResumed();
    void OnSessionOver();
    void OnSessionCancelled();
    void OnServerQuiet();
    void OnServerLost();
    void OnServerGone();
    void SettleFromJournal();
    void Settle(const FileResult& settled);
    bool Count(const FileResult& result, int index = -1);
    QVector<QPair<int, FileResult>> JournaledResults() const;
    void NoteLoss(const QStringList& lost) const;
    void End(bool isCancelled, bool isServerLost);
    QString ReasonOfError(const QString& input, BatchJob::Action action, int errorCode);

    /// As this run counts it, with what the host knows of its input. For inputs without a result.
    FileResult Judged(const FileResult& result) const;

    const Order order;
    const QVector<RunObserver*> observers;
    ZTBatchManager* const manager;
    QPointer<ZTBatchManager::ZTBatchSession> session;
    ServerWatch watch;
    bool isAskedForLife = false; ///< the server was asked whether it is still there, and has not answered yet
    bool isPaused = false;       ///< the user wants it
    QTimer sessionOver;          ///< fires after the end of a session if its server still runs
    QElapsedTimer time;
    Phase phase = Phase::Idle;
    RunEnd end;
    QHash<QString, QVector<int>> open; ///< inputs without a result, and their places in the job
    QStringList inWork;
    QStringList logs; ///< the last lines of the log, since a file was processed or an error reported
    FileResult asked; ///< what the open question is about
    std::optional<BatchJob::PolicyKind> question;
    int serversStarted = 0; ///< how many servers were started
    int settledByThisServer = 0;
    int idleServers = 0; ///< how many of the last servers in a row died before they had begun with a picture
};

} // namespace BatchHost
