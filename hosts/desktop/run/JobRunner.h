// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/common/JobRun.h"
#include "hosts/common/RunObserver.h"

#include <QElapsedTimer>
#include <QObject>

#include <memory>
#include <optional>

class ZTBatchDocument;

namespace BatchDesktop {

/// The runs of the window, one at a time, and what is known of the last one. A run is a snapshot: the job may change
/// meanwhile.
class JobRunner : public QObject, private BatchHost::RunObserver
{
    Q_OBJECT

public:
    enum class State {
        Idle, ///< no run, or its end is known
        Running,
        Pausing, ///< files in work are still finished
        Paused,
        Cancelling
    };

    struct Progress
    {
        int files = 0;
        int written = 0;
        int skipped = 0;
        int failed = 0;
        qint64 bytesDone = 0; ///< of inputs
        qint64 bytes = 0;
        double seconds = 0; ///< without pauses
        QStringList inWork;

        int Done() const { return written + skipped + failed; }

        /// How much is done, from 0 to 1: by bytes, or by files when these are not known.
        double Fraction() const;

        /// What is left to wait, by the bytes so far; negative as long as too little is done to tell.
        double SecondsLeft() const;
    };

    struct Question
    {
        BatchJob::PolicyKind kind = BatchJob::PolicyKind::None;
        QString input;
        QString output;
        QString reason;
    };

    /// The batch manager lives as long as this object, with its policies in `settingsFolder`.
    explicit JobRunner(const QString& settingsFolder, QObject* parent = nullptr);

    /// Ends a run that is going on. It can be resumed.
    ~JobRunner() override;

    /// Why no run can be started here; empty if one can.
    QString Obstacle() const;

    State CurrentState() const { return state; }
    const Progress& CurrentProgress() const { return progress; }
    const std::optional<Question>& OpenQuestion() const { return question; }

    /// How the last run ended; nothing before that and while one is going on.
    const std::optional<BatchHost::RunEnd>& LastEnd() const { return lastEnd; }

    /// Whether Resume() may succeed.
    bool CanResume() const;

    /// Where the results of the current or last run go.
    const QString& CurrentFolder() const { return outputFolder; }

    /// The inputs of the current or last run.
    const QStringList& CurrentInputs() const { return inputs.files; }

    /// The results of the current or last run, by input. Of several results of one picture it is the worst.
    const QHash<QString, BatchHost::FileResult>& Results() const { return results; }

    /// Starts the run of `job`. Throws RequestError. Nothing may be running.
    void Start(const ZTBatchDocument& job, const BatchJob::PolicyValues& policies,
               const std::optional<BatchJob::Update>& update = {});

    /// The same of several jobs, each of which makes a result of every picture; `job` is the first one.
    void Start(const ZTBatchDocument& job, const BatchJob::JobBundle& bundle, const BatchJob::PolicyValues& policies,
               const std::optional<BatchJob::Update>& update = {});

    /// Takes up the run that was interrupted in `outputFolder`: the one called `name`, see InterruptedRuns, or the only
    /// one if it is empty. Throws RequestError.
    void TakeUp(const QString& outputFolder, const QString& name = QString());

    /// Goes on with the last run, which has ended before all of its pictures were done. False if that cannot be done.
    bool Resume();

    /// Takes the last run up again for the pictures that have failed. False if that cannot be done.
    bool RetryFailed();

    /// The result of the last run is no longer needed: it cannot be retried any more.
    void Dismiss();

    void Pause();
    void GoOn();
    void Cancel();
    void Answer(int value, bool isForTheRest);

    /// Writes a report of the last run to `path`. Throws RequestError.
    void SaveReport(const QString& path) const;

Q_SIGNALS:
    /// A run begins, or begins again; results that it had before follow.
    void Started();

    void StateChanged();
    void Progressed();

    /// A picture is in work now.
    void Begun(const QString& input);

    /// Results() has the result of `input`, whose other results are known, too, if it has several.
    void ResultKnown(const QString& input);

    /// A question was asked, answered or has become pointless.
    void QuestionChanged();

    /// The server has died; `goesOn` tells whether a new one continues the run.
    void ServerLost(bool goesOn);

    /// The run is over, see LastEnd().
    void Ended();

private:
    void OnStart(const BatchHost::RunInputs& inputs, const QString& outputFolder) override;
    void OnEarlierResult(const BatchHost::FileResult& result) override;
    void OnInWork(const QStringList& names, const QString& begun) override;
    void OnResult(const BatchHost::FileResult& result, int done, int files) override;
    void OnServerLost(const QStringList& inWork, bool goesOn) override;

    void Run(const ZTBatchDocument& job, const BatchJob::PolicyValues& policies,
             const std::optional<BatchJob::Update>& update = {});
    void RunAgain();
    void OnEnded(const BatchHost::RunEnd& end);
    void SetState(State newState);
    void Count(const BatchHost::FileResult& result);

    BatchHost::JobRun environment;
    std::unique_ptr<ZTBatchDocument> runningJob;
    std::optional<BatchHost::JournaledJob> journaled;
    std::unique_ptr<BatchHost::RunController> controller;
    BatchJob::PolicyValues policies{};
    State state = State::Idle;
    Progress progress;
    QElapsedTimer clock; ///< since the run went on
    double secondsBefore = 0;
    std::optional<Question> question;
    std::optional<BatchHost::RunEnd> lastEnd;
    BatchHost::RunInputs inputs;
    QString outputFolder;
    QVector<BatchHost::FileResult> allResults;
    QHash<QString, BatchHost::FileResult> results;
    QHash<QString, int> known; ///< how many results of an input there are, if it has several
};

} // namespace BatchDesktop
