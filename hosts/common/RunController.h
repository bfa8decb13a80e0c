#pragma once

#include "RunObserver.h"

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

/// One run of a job through the batch manager: starts the server, keeps account of every input, puts questions, takes
/// the run up again when the server dies. Needs an instance of the manager.
class RunController : public QObject
{
    Q_OBJECT

public:
    /// `document` is the text of the job, whose inputs are `inputs` and whose results go to `outputFolder`. What the
    /// journal at `journalPath` holds already was done by an earlier part of the run. Without a journal, an empty path,
    /// the run ends with its server.
    RunController(const QString& document, const RunInputs& inputs, const QString& outputFolder,
                  const BatchJob::PolicyValues& policies, const QVector<RunObserver*>& observers,
                  const QString& journalPath);
    ~RunController() override;

    void Start();

    /// Asks the server to end the run. Ended() comes when it has.
    void Cancel();

    /// Kills the server. Ended() comes from inside.
    void EndAtOnce();

    /// The answer to the open question, a value of the policy's.
    void Answer(int value, bool isForTheRest);

    /// Whether there is a server that can be started.
    static bool IsServerThere();

Q_SIGNALS:
    /// The server waits for Answer().
    void Question(BatchJob::PolicyKind kind, const QString& input, const QString& output, const QString& reason);

    /// The run is over. Comes once.
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
    void OnSessionOver();
    void OnServerGone();
    void Settle(const FileResult& result);
    bool Count(const FileResult& result, int index = -1);
    QVector<QPair<int, FileResult>> JournaledResults() const;
    void NoteLoss(const QStringList& lost) const;
    void End(bool isCancelled, bool isServerLost);
    QString ReasonOfError(const QString& input, BatchJob::Action action, int errorCode);

    const QString document;
    const RunInputs inputs;
    const BatchJob::PolicyValues policies;
    const QVector<RunObserver*> observers;
    ZTBatchManager* const manager;
    QPointer<ZTBatchManager::ZTBatchSession> session;
    QTimer sessionOver; ///< runs from the session's end until it is known that the server lives
    QElapsedTimer time;
    Phase phase = Phase::Idle;
    RunEnd end;
    const QString journalPath;
    QHash<QString, QVector<int>> open; ///< inputs without a result, and their places in the job
    QStringList inWork;
    QString lastLog;
    FileResult asked; ///< what the open question is about
    std::optional<BatchJob::PolicyKind> question;
    int lives = 0; ///< servers that were started
    int settledInThisLife = 0;
    int idleLives = 0; ///< how many of the last ones ended before they had begun with a picture
};

} // namespace BatchHost
