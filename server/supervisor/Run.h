#pragma once

#include "BackgroundTask.h"
#include "HostLink.h"
#include "Policies.h"
#include "RunPlan.h"

#include "job/journal/RunJournal.h"
#include "job/values/JobValues.h"
#include "server/protocol/WorkerPool.h"

#include <QLockFile>
#include <QMap>
#include <QObject>
#include <QSet>

#include <memory>
#include <optional>

namespace BatchSupervisor {

/// One run: from the order to process a job to the message that it is over.
///
/// The order of things never depends on which worker is faster: names are settled for all files before the first is
/// handed out, questions are asked in the document's order, and an answer for the rest of the run holds for all files
/// that stand behind. A question keeps nobody from working: files whose way is clear go on being handed out, except
/// when the question is about the output, which then fails for every file.
class Run : public QObject
{
    Q_OBJECT

public:
    /// The run is written down in the journal at `journalPath`, if that is one of the order's job, and taken up where
    /// the journal ends.
    Run(quint64 number, const ZTBatchPayload::Process& order, const HostLink& host, BatchProtocol::WorkerPool& pool,
        const BatchProtocol::ServerLimits& limits, const QString& journalPath);
    ~Run() override;

    void Begin();

    /// Hands one task to the pool, which has room; false when there is none now.
    bool HandOut();

    /// How many tasks may still be handed out.
    int TasksLeft() const;

    bool IsOver() const { return phase == Phase::Over; }

    /// Commands of the host. What makes no sense now is answered with a line of the log.
    void Pause();
    void Resume();
    void Cancel();
    void Answer(ZTBatchMessage::Message question, int policy, bool isForTheRest);

Q_SIGNALS:
    /// There may be something to hand out.
    void HasTasks();

    /// The host has been told. Comes once.
    void Over();

private:
    enum class Phase { Reading, Probing, Naming, Working, Cancelling, Over };

    struct Preparation
    {
        BatchJob::Refusal refusal;
        QString settings;
        RunPlan plan;
        std::unique_ptr<QLockFile> hold; ///< keeps other servers away from the journal
        std::optional<BatchJob::JournalState> earlier;
        QVector<int> found; ///< results that were finished, but not noted
        int swept = 0;
    };

    struct OpenQuestion
    {
        int file = -1;
        Trouble trouble;
    };

    void StartInBackground(std::function<void(const BackgroundTask::Cancelled&)> work, void (Run::*next)());
    static void HoldJournal(const QString& path, Preparation& preparation);
    static void FindFinished(Preparation& preparation);
    void TakeJob();
    void TakeEarlier();
    void BeginNaming();
    void BeginWork();

    void Give(const BatchProtocol::Assignment& task);
    bool GivePicture(int file);
    bool MakeFolder(const QString& folder);
    void Examine(int file);

    void OnBegun(const BatchProtocol::Assignment& task);
    void OnReported(const BatchProtocol::Assignment& task, const BatchProtocol::Report& report);
    void OnLost(const BatchProtocol::Assignment& task, BatchProtocol::WorkerEnd reason, const QString& text);
    void OnReturned(const BatchProtocol::Assignment& task);
    bool TakeUnreported(const BatchProtocol::Assignment& task);
    void OnBroken(const QString& reason);
    void OnDropped();

    void Meet(int file, const Trouble& trouble);
    bool NeedsOrder(int file, const Trouble& trouble) const;
    void DecideWaiting();
    void Ask(int file, const Trouble& trouble);
    void Resolve(int file, const Trouble& trouble, Decision decision);
    void ResolveName(int file, const Trouble& trouble, Decision decision);
    void ResolveFormat(int file, const Trouble& trouble);
    void ReportTrouble(int file, const Trouble& trouble, BatchJob::Action action, const QString& consequence);
    void GiveUp(int file, const Trouble& trouble, BatchJob::Action action);
    void FinishPicture(int file, const BatchProtocol::Report& report);
    void FinishProbe();
    void Settle(int file);
    int FirstUnsettled();

    void Stop(const QString& reason);
    void Refuse(const BatchJob::Refusal& refusal);
    void EndWhenDone();
    void LogTotals(const QString& how) const;
    void End();

    const quint64 number;
    const HostLink host;
    BatchProtocol::WorkerPool& pool;
    const BatchProtocol::ServerLimits limits;
    Policies policies;
    const BatchJob::Refusal policyRefusal;
    QString document; ///< the job's text, until it is read

    Phase phase = Phase::Reading;
    bool isPaused = false;
    bool isStopping = false;
    std::shared_ptr<Preparation> preparation; ///< belongs to the background task while that runs
    std::unique_ptr<BackgroundTask> background;

    RunPlan plan;
    QByteArray job; ///< framed, for workers
    QVector<int> probes;
    int nextProbe = 0;
    int openProbes = 0;

    int next = 0;     ///< the first file that was not looked at
    QList<int> ready; ///< files to hand out before that
    QList<BatchProtocol::Assignment> returned;
    QSet<int> inWork;
    QMap<int, Trouble> waiting; ///< for its turn to be decided
    std::optional<OpenQuestion> question;
    bool isDeciding = false;
    std::vector<bool> settled;
    int firstUnsettled = 0;
    QSet<QString> madeFolders;

    const QString journalPath;
    std::unique_ptr<QLockFile> hold;
    BatchJob::RunJournal journal;
    QHash<int, int> losses; ///< files over which servers have died, and how often

    int written = 0;
    int skipped = 0;
    int failed = 0;
};

} // namespace BatchSupervisor
