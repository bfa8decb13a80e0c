// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "BackgroundTask.h"
#include "HostLink.h"
#include "RunDecisions.h"
#include "RunPreparation.h"
#include "RunRecord.h"

#include "job/plan/RunPlan.h"
#include "job/values/JobValues.h"
#include "server/protocol/WorkerPool.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>

#include <memory>

namespace BatchSupervisor {

/// One run, from the order to process a job to the message that it is over: prepares it, hands tasks to the workers,
/// reports to the host, ends.
///
/// Results never depend on which worker is faster: all names are made before the first file is handed out, questions
/// are asked in the document's order, and an answer for the rest of the run applies to all later files. While a
/// question is open, files without trouble are still handed out, unless the question is about the output, which then
/// fails for every file.
class Run : public QObject
{
    Q_OBJECT

public:
    /// If the file `journalPath` is a journal of the order's job, the run resumes where the journal ends, and continues
    /// the journal.
    Run(quint64 number, const ZTBatchPayload::Process& order, const HostLink& host, BatchProtocol::WorkerPool& pool,
        const BatchProtocol::ServerLimits& limits, const QString& journalPath);
    ~Run() override;

    void Begin();

    /// Hands one task to the pool, which must have room, and the rest of its chain. False when there is no task now.
    bool HandOut();

    /// The greatest number of tasks that may still be handed out.
    int TasksLeft() const;

    /// Whether there may be a task to hand out now.
    bool HasWork() const;

    /// The group of the tasks that are handed out now.
    const QByteArray& CurrentGroup() const { return group; }

    bool IsOver() const { return phase == Phase::Over; }

    /// Commands of the host. Commands that are invalid in the current state are logged and ignored.
    void Pause();
    void Resume();
    void Cancel();
    void Answer(ZTBatchMessage::Message question, int policy, bool isForTheRest);

Q_SIGNALS:
    /// There may be something to hand out.
    void HasTasks();

    /// The run is over and the host knows. Emitted once.
    void Over();

private:
    enum class Phase { Reading, Probing, Naming, Working, Cancelling, Over };

    void StartInBackground(std::function<void(const BackgroundTask::Cancelled&)> work, void (Run::*next)());
    void OnJobRead();
    void AdoptEarlierPart();
    void AdoptUnjournaledResults();
    void AdoptUnchanged();
    void BeginNaming();
    void BeginWork();
    void FrameJobs(const BatchProtocol::WorkerRights& rights);

    void Give(const BatchProtocol::Assignment& task);
    bool GivePicture(int file);
    bool MayReplace(int file) const;
    bool SharesPixelsWithNext(int file);
    bool IsSlowToDecode(int file);
    void ExamineNext();
    QString MakeFolder(const QString& folder);
    void Examine(int file);

    void OnBegun(const BatchProtocol::Assignment& task);
    void OnReported(const BatchProtocol::Assignment& task, const BatchProtocol::Report& report);
    void OnLost(const BatchProtocol::Assignment& task, BatchProtocol::WorkerEnd reason, const QString& text);
    void OnReturned(const BatchProtocol::Assignment& task);
    void LogDetail(int file, const BatchProtocol::Report& report);
    bool FinishUnreported(const BatchProtocol::Assignment& task);
    void OnBroken(const QString& reason);
    void OnDropped();

    BatchJob::Trouble TroubleOfReport(int file, const BatchProtocol::Report& report);
    void HandleTrouble(int file, const BatchJob::Trouble& trouble);
    void DecideWaiting();
    void Ask(const RunDecisions::FileTrouble& about);
    void Resolve(int file, const BatchJob::Trouble& trouble, BatchJob::Decision decision);
    void ResolveName(int file, const BatchJob::Trouble& trouble, BatchJob::Decision decision);
    void ResolveFormat(int file, const BatchJob::Trouble& trouble);
    void GiveUp(int file, const BatchJob::Trouble& trouble, BatchJob::Action action);
    void FinishPicture(int file, const BatchProtocol::Report& report);
    void FinishProbe();
    void OnFileDone(int file);

    void Stop(const QString& reason);
    void Refuse(const BatchJob::Refusal& refusal);
    void EndWhenDone();
    void End();

    const quint64 number;
    const HostLink host;
    BatchProtocol::WorkerPool& pool;
    const BatchProtocol::ServerLimits limits;
    const BatchJob::Refusal policyRefusal;
    RunDecisions decisions;
    QString document; ///< the job's text, until it is read

    Phase phase = Phase::Reading;
    bool isPaused = false;
    bool isStopping = false;
    std::shared_ptr<RunPreparation> preparation; ///< until work begins; the background task's while that runs
    std::unique_ptr<BackgroundTask> background;

    BatchJob::RunPlan plan;
    QVector<QByteArray> jobs; ///< framed, for workers
    QByteArray group;         ///< of the workers of all of them
    int lastLookedAt = -1;    ///< the file that IsSlowToDecode() has looked at
    bool isLastSlow = false;  ///< and what it has found
    ProbeQueue probes;

    int next = 0;     ///< the first file that was not examined
    QList<int> ready; ///< files to hand out before that
    QList<BatchProtocol::Assignment> returned;
    QSet<int> inWork;
    bool isDeciding = false; ///< a loop over decisions is running; it also handles those that arise meanwhile
    QString outputRoot;      ///< of PictureTasks
    QSet<QString> madeFolders;
    QHash<int, int> takenNames; ///< how often a worker has found the name of a result taken

    const QString journalPath;
    RunRecord record;
    QVector<BatchJob::Recipe> recipes;           ///< of an update, one for each job
    std::optional<BatchJob::UpdateCheck> update; ///< nothing if all results are to be made
    QHash<int, int> losses;                      ///< how often a server has died while it worked on a file
};

} // namespace BatchSupervisor
