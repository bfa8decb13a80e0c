// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Run.h"

#include "job/formats/InputFormat.h"
#include "job/plan/CommandLog.h"
#include "job/plan/FolderCheck.h"
#include "job/plan/TroubleLine.h"
#include "job/plan/UnclearFilesLine.h"
#include "job/plan/WarningLine.h"
#include "job/values/Phrase.h"
#include "server/protocol/SystemProtection.h"
#include "server/protocol/TaskFailure.h"
#include "server/protocol/TemporaryFile.h"
#include "server/protocol/WorkerFiles.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

using namespace BatchJob;
using namespace BatchProtocol;

using BatchJob::Action;

namespace BatchSupervisor {

namespace {

/// Files that are examined in one go, before the event loop continues.
constexpr int filesAtOnce = 256;

} // namespace

Run::Run(quint64 number, const ZTBatchPayload::Process& order, const HostLink& host, WorkerPool& pool,
         const ServerLimits& limits, const QString& journalPath)
    : number(number)
    , host(host)
    , pool(pool)
    , limits(limits)
    , policyRefusal(CheckPolicies(order))
    , decisions(Policies(order))
    , document(order.document)
    , journalPath(journalPath)
    , record(host, journalPath)
{
    const auto ofThisRun = [this](const auto& slot) {
        return [this, slot](const Assignment& task, const auto&... more) {
            if (task.run == this->number) {
                (this->*slot)(task, more...);
            }
        };
    };
    connect(&pool, &WorkerPool::Begun, this, ofThisRun(&Run::OnBegun));
    connect(&pool, &WorkerPool::Reported, this, ofThisRun(&Run::OnReported));
    connect(&pool, &WorkerPool::Lost, this, ofThisRun(&Run::OnLost));
    connect(&pool, &WorkerPool::Returned, this, ofThisRun(&Run::OnReturned));
    connect(&pool, &WorkerPool::Broken, this, &Run::OnBroken);
    connect(&pool, &WorkerPool::Dropped, this, [this](quint64 run) {
        if (run == this->number) {
            OnDropped();
        }
    });
}

Run::~Run() = default;

void Run::Begin()
{
    if (policyRefusal.code != ZTBatchMessage::NoError) {
        Refuse(policyRefusal);
        return;
    }
    preparation = std::make_shared<RunPreparation>();
    preparation->replacesOriginals = limits.replacesOriginals;
    preparation->refusesSharedNames = limits.refusesSharedNames;
    StartInBackground(
        [preparation = preparation, path = journalPath,
         text = std::exchange(document, {})](const BackgroundTask::Cancelled& isCancelled) mutable {
            preparation->ReadJob(std::exchange(text, {}), path, isCancelled);
        },
        &Run::OnJobRead);
}

void Run::StartInBackground(std::function<void(const BackgroundTask::Cancelled&)> work, void (Run::*next)())
{
    background = std::make_unique<BackgroundTask>(std::move(work));
    connect(background.get(), &QThread::finished, this, [this, next] {
        background->wait();
        background.reset();
        if (phase == Phase::Cancelling) {
            plan = std::move(preparation->plan);
            pool.Drop(number);
        } else {
            (this->*next)();
        }
    });
    background->start();
}

void Run::OnJobRead()
{
    if (preparation->refusal.code != ZTBatchMessage::NoError) {
        Refuse(preparation->refusal);
        return;
    }
    plan = std::move(preparation->plan);
    outputRoot = limits.followsLinks ? QString() : plan.Names().OutputFolder();
    preparation->outputRoot = outputRoot;
    FrameJobs(preparation->rightsToProbe);
    decisions.SetFiles(plan.Count());
    host.Tell<ZTBatchMessage::MsgProgressRange>(0, plan.Count());
    host.Log(QStringLiteral("The job has %1 files.").arg(plan.Count()));
    const QStringList missing = SystemProtection::OfThisSystem().Missing();
    for (const QString& line : missing) {
        host.Log(line);
    }
    AdoptEarlierPart();
    probes = ProbeQueue(plan.Names().FilesToProbe());
    if (probes.Count() == 0) {
        BeginNaming();
        return;
    }
    phase = Phase::Probing;
    pool.Start();
    host.Log(QStringLiteral("Names and formats depend on the pictures; looking at %1 of them.").arg(probes.Count()));
    Q_EMIT HasTasks();
}

void Run::AdoptEarlierPart()
{
    if (!preparation->earlier) {
        return;
    }
    record.Continue(std::move(preparation->journal), std::move(preparation->journalLock));
    const JournalState& earlier = *preparation->earlier;
    if (earlier.update) {
        record.StampResults();
    }
    losses = earlier.losses;
    for (auto it = earlier.answers.begin(); it != earlier.answers.end(); ++it) {
        const auto kind = PolicyKind(it.key());
        if (const std::optional<Decision> decision = Policies::Meaning(kind, *it)) {
            decisions.SetPolicy(kind, *decision);
        }
    }
    for (auto it = earlier.results.constBegin(); it != earlier.results.constEnd(); ++it) {
        if (it.key() < 0 || it.key() >= plan.Count()) {
            continue;
        }
        decisions.SetDone(it.key());
        record.CountEarlier(*it);
    }
    if (earlier.results.isEmpty()) {
        return;
    }
    host.Log(QStringLiteral("An earlier part of this run has settled %1 files.").arg(earlier.results.size()));
    for (const int file : qAsConst(preparation->unreported)) {
        record.AddFound(file, plan.Names().Input(file), earlier.results[file].output);
    }
    record.TellProgress();
}

/// The results that the journal does not know, because it could not be written, are done too.
void Run::AdoptUnjournaledResults()
{
    for (const int file : qAsConst(preparation->unjournaled)) {
        const QString output = plan.Names().Output(file);
        host.Log(
            QStringLiteral("%1: \"%2\" counts as its result: it is newer than the run, whose journal is incomplete.")
                .arg(plan.Names().Input(file), output));
        record.AddFound(file, plan.Names().Input(file), output);
        record.CountFound();
        decisions.SetDone(file);
    }
    if (!preparation->unjournaled.isEmpty()) {
        record.TellProgress();
    }
}

void Run::AdoptUnchanged()
{
    recipes = preparation->recipes;
    update = std::move(preparation->update);
    if (!update) {
        return;
    }
    if (!preparation->recordProblem.isEmpty()) {
        host.Log(QStringLiteral("The record of results is ignored: %1.").arg(preparation->recordProblem));
    }
    record.AddUnchanged(preparation->unchanged);
    for (const auto& [file, result] : qAsConst(preparation->unchanged)) {
        decisions.SetDone(file);
    }
    record.TellProgress();
}

void Run::BeginNaming()
{
    phase = Phase::Naming;
    preparation->plan = std::move(plan);
    StartInBackground(
        [preparation = preparation, policies = decisions.CurrentPolicies()](
            const BackgroundTask::Cancelled& isCancelled) { preparation->MakeNames(policies, isCancelled); },
        &Run::BeginWork);
}

void Run::BeginWork()
{
    plan = std::move(preparation->plan);
    if (preparation->refusal.code != ZTBatchMessage::NoError) {
        Refuse(preparation->refusal);
        return;
    }
    phase = Phase::Working;
    if (preparation->removedFiles > 0) {
        host.Log(QStringLiteral("Removed %1 unfinished files of an earlier run.").arg(preparation->removedFiles));
    }
    if (preparation->unclearFiles > 0) {
        host.Log(UnclearFilesLine::Of(preparation->unclearFiles));
    }
    AdoptUnjournaledResults();
    AdoptUnchanged();
    if (limits.followsLinks) {
        preparation->rightsToMake.writable += LinkedFolders(plan.Names());
    }
    FrameJobs(preparation->rightsToMake);
    preparation.reset();
    pool.Start();
    Q_EMIT HasTasks();
}

/// The jobs of a bundle differ in their settings only, and share their workers.
void Run::FrameJobs(const WorkerRights& rights)
{
    jobs.clear();
    group.clear();
    for (const QString& settings : qAsConst(preparation->settings)) {
        jobs.append(FrameToWorker(Job{settings, limits, rights}));
        group += jobs.last();
    }
}

bool Run::HasWork() const
{
    const bool isHandingOut = phase == Phase::Probing || phase == Phase::Working;
    return isHandingOut && !isPaused && !isStopping && TasksLeft() > 0;
}

bool Run::HandOut()
{
    if (isPaused || isStopping) {
        return false;
    }
    if (phase != Phase::Probing && phase != Phase::Working) {
        return false;
    }
    if (!returned.isEmpty()) {
        if (returned.first().isSecondTry && !pool.HasIdleWorker(group)) {
            return false;
        }
        Give(returned.takeFirst());
        return true;
    }
    if (phase == Phase::Probing) {
        if (probes.NotBegun() == 0) {
            return false;
        }
        const int file = probes.Begin();
        Give({number, file, jobs.first(), ProbeTask{file, plan.Names().Input(file)}, {}, false});
        return true;
    }
    if (decisions.IsAskingAbout(PolicyKind::Output)) {
        return false;
    }
    for (int looked = 0; phase == Phase::Working && !isStopping; ++looked) {
        if (!ready.isEmpty()) {
            int file = ready.takeFirst();
            if (GivePicture(file)) {
                while (SharesPixelsWithNext(file)) {
                    file = ready.takeFirst();
                    GivePicture(file);
                }
                return true;
            }
        } else if (next == plan.Count()) {
            EndWhenDone(); // An earlier part of the run may have left nothing to do.
            return false;
        } else {
            ExamineNext();
        }
        if (looked == filesAtOnce) {
            QMetaObject::invokeMethod(this, &Run::HasTasks, Qt::QueuedConnection);
            return false;
        }
    }
    return false;
}

int Run::TasksLeft() const
{
    return phase == Phase::Probing ? probes.NotBegun() + returned.size()
                                   : plan.Count() - next + ready.size() + returned.size();
}

void Run::Give(const Assignment& task)
{
    inWork.insert(task.file);
    Assignment given = task;
    given.group = group;
    const bool isPicture = std::holds_alternative<PictureTask>(task.task);
    given.chain = isPicture && IsSlowToDecode(task.file) ? plan.Names().FileOf(task.file) : -1;
    pool.Give(given);
}

/// Whether the next result to hand out is one of the same picture, and to be made from the same pixels.
bool Run::SharesPixelsWithNext(int file)
{
    const OutputPlan& names = plan.Names();
    return phase == Phase::Working && !isStopping && !ready.isEmpty() &&
           names.FileOf(ready.first()) == names.FileOf(file) && IsSlowToDecode(file);
}

/// Whether a picture of which there are several results takes long to decode.
bool Run::IsSlowToDecode(int file)
{
    const OutputPlan& names = plan.Names();
    if (names.JobCount() == 1) {
        return false;
    }
    if (lastLookedAt != names.FileOf(file)) {
        lastLookedAt = names.FileOf(file);
        isLastSlow = BatchJob::IsSlowToDecode(names.Input(file));
    }
    return isLastSlow;
}

bool Run::GivePicture(int file)
{
    const OutputPlan& names = plan.Names();
    const QString folder = names.Folder(file);
    const QString problem = MakeFolder(folder);
    if (!problem.isEmpty()) {
        HandleTrouble(file, {PolicyKind::Output, ZTBatchMessage::WriteOutputFormatError, problem, {}});
        return false;
    }
    const QString output = names.Output(file);
    const QString input = names.Input(file);
    const QString format = names.Format(file)->name;
    const std::optional<FileIdentity> before = IdentityOf(output);
    std::optional<ResultOrigin> origin;
    if (update) {
        origin = {input, StampOf(input).value_or(FileStamp()),
                  recipes.at(names.JobOf(file)).For(format, names.NumberOf(file))};
    }
    record.Journal().Begin(file, {output, before ? before->Text() : QString()}, origin);
    // Another run of the same part of a job may make the same result at the same time.
    const PictureTask task{file,
                           input,
                           output,
                           outputRoot,
                           format,
                           MayReplace(file),
                           names.NumberOf(file),
                           SharesPixelsWithNext(file),
                           plan.HasFixedName(file)};
    Give({number, file, jobs.at(names.JobOf(file)), task, before, false});
    return true;
}

/// Whether the result may take the place of a file that has its name.
bool Run::MayReplace(int file) const
{
    const bool overwritesFixedName =
        plan.HasFixedName(file) && decisions.CurrentPolicies().Of(PolicyKind::Naming) == Decision::Overwrite;
    return plan.IsOverwriting(file) || overwritesFixedName || (update && update->IsOwn(plan.Names().Output(file)));
}

/// Makes the folder unless it exists. Returns why results cannot go there; empty if they can.
QString Run::MakeFolder(const QString& folder)
{
    if (madeFolders.contains(folder)) {
        return {};
    }
    ResultFolder made;
    if (!made.Open(outputRoot, folder, ResultFolder::Missing::Make)) {
        const QString reason = WhyNotWritable(folder);
        return reason.isEmpty() ? made.Error() : reason;
    }
    madeFolders.insert(folder);
    return {};
}

/// All results of a picture, one after the other.
void Run::ExamineNext()
{
    do {
        Examine(next++);
    } while (next < plan.Count() && plan.Names().JobOf(next) != 0 && !isStopping);
}

/// Hands a file on to the workers, or its trouble to the policies.
void Run::Examine(int file)
{
    if (decisions.IsDone(file)) {
        return; // An earlier part of the run has done it.
    }
    constexpr int mostLosses = 2;
    if (losses.value(file) >= mostLosses) {
        HandleTrouble(
            file, {PolicyKind::Processing,
                   ZTBatchMessage::ApplyAdjustmentError,
                   Phrase::English("the server crashed %1 times while it worked on the file").arg(losses.value(file)),
                   {}});
        return;
    }
    const Trouble trouble = plan.TroubleOf(file);
    if (trouble.kind == PolicyKind::None) {
        ready.append(file);
    } else {
        HandleTrouble(file, trouble);
    }
}

void Run::OnBegun(const Assignment& task)
{
    if (std::holds_alternative<PictureTask>(task.task)) {
        host.Tell<ZTBatchMessage::MsgFileInProgress>(plan.Names().Input(task.file));
    }
}

void Run::OnReported(const Assignment& task, const Report& report)
{
    inWork.remove(task.file);
    LogDetail(task.file, report);
    if (std::holds_alternative<ProbeTask>(task.task)) {
        if (report.failure == PolicyKind::None) {
            plan.SetProbe(task.file, ProbeResultOf(report));
        } else {
            plan.SetProbeFailure(task.file, TroubleOf(report));
        }
        FinishProbe();
    } else if (report.failure != PolicyKind::None) {
        HandleTrouble(task.file, TroubleOfReport(task.file, report));
    } else if (IdentityOf(plan.Names().Output(task.file))) {
        FinishPicture(task.file, report);
    } else {
        HandleTrouble(task.file, {PolicyKind::Processing,
                                  ZTBatchMessage::ApplyAdjustmentError,
                                  Phrase::English("the worker reported a result that is not there"),
                                  {},
                                  true});
    }
}

/// Another program may take a name after it was planned, even a few times. A worker that says so for ever is lying.
Trouble Run::TroubleOfReport(int file, const Report& report)
{
    constexpr int mostTakenNames = 20;
    Trouble trouble = TroubleOf(report);
    if (trouble.kind == PolicyKind::Naming && ++takenNames[file] > mostTakenNames) {
        trouble.kind = PolicyKind::Output;
        trouble.code = ZTBatchMessage::WriteOutputFormatError;
        trouble.reason = Phrase::English("each of %1 names for the result was taken when it was to be written")
                             .arg(takenNames[file]);
    }
    return trouble;
}

void Run::OnLost(const Assignment& task, WorkerEnd reason, const QString& text)
{
    inWork.remove(task.file);
    const Trouble trouble = TroubleOf(FailureOfEnd(reason, text, limits));
    if (std::holds_alternative<ProbeTask>(task.task)) {
        plan.SetProbeFailure(task.file, trouble);
        FinishProbe();
        return;
    }
    if (!FinishUnreported(task)) {
        HandleTrouble(task.file, trouble);
    }
}

void Run::OnReturned(const Assignment& task)
{
    inWork.remove(task.file);
    if (FinishUnreported(task)) {
        return;
    }
    if (isStopping) {
        EndWhenDone();
        return;
    }
    returned.append(task);
    Q_EMIT HasTasks();
}

/// Logs what a library says of a failure. The reason, in words, follows when the failure is decided about.
void Run::LogDetail(int file, const Report& report)
{
    const QString detail = CheckedFailure(report).detail;
    if (report.failure != PolicyKind::None && !detail.isEmpty()) {
        host.Log(DetailLine{plan.Names().Input(file), detail}.Text());
    }
}

/// Results are whole or absent. If the worker had written the result and only its report is missing, the file is done:
/// returns true.
bool Run::FinishUnreported(const Assignment& task)
{
    const auto* picture = std::get_if<PictureTask>(&task.task);
    if (!picture) {
        return false;
    }
    TemporaryFile::Sweep(plan.Names().Folder(task.file), outputRoot);
    const std::optional<FileIdentity> now = IdentityOf(picture->outputFile);
    if (!now || now == task.before) {
        return false;
    }
    if (!task.before && QFileInfo(picture->outputFile).size() == 0) { // No result is empty.
        TemporaryFile beside(picture->outputFile, outputRoot);
        if (beside.Create()) {
            beside.RemovePlaceholder();
        }
        return false;
    }
    FinishPicture(task.file, Report());
    return true;
}

void Run::OnBroken(const QString& reason)
{
    if (phase == Phase::Over || phase == Phase::Cancelling) {
        return;
    }
    if (phase == Phase::Reading || phase == Phase::Naming) {
        return; // BeginWork() and the probing start the pool again.
    }
    host.Tell<ZTBatchMessage::MsgError>(QString(), QString(), int(Action::RunStopped),
                                        int(ZTBatchMessage::NoAdjustmentManager));
    host.Log(QStringLiteral("No picture can be processed: %1.").arg(reason));
    returned.clear();
    inWork.clear();
    phase = Phase::Working;
    Stop(QStringLiteral("there are no workers"));
}

void Run::OnDropped()
{
    if (phase != Phase::Cancelling) {
        return;
    }
    QSet<QString> folders;
    for (const int file : qAsConst(inWork)) {
        if (!plan.Names().OutputName(file).isEmpty()) {
            folders.insert(plan.Names().Folder(file));
        }
    }
    for (const QString& folder : qAsConst(folders)) {
        TemporaryFile::Sweep(folder, outputRoot);
    }
    record.LogTotals(QStringLiteral("Cancelled"), plan.Count());
    host.Tell<ZTBatchMessage::MsgCancelled>();
    End();
}

void Run::HandleTrouble(int file, const Trouble& trouble)
{
    if (isStopping) {
        GiveUp(file, trouble, Action::RunStopped);
    } else if (decisions.MustWait(plan, file, trouble)) {
        decisions.Wait(file, trouble);
        DecideWaiting();
    } else {
        Resolve(file, trouble, decisions.CurrentPolicies().Of(trouble.kind));
    }
}

void Run::DecideWaiting()
{
    if (isDeciding) {
        return;
    }
    isDeciding = true;
    while (const std::optional<RunDecisions::FileTrouble> next = decisions.TakeNext()) {
        const Decision decision = decisions.CurrentPolicies().Of(next->trouble.kind);
        if (decision == Decision::Ask) {
            Ask(*next);
        } else {
            Resolve(next->file, next->trouble, decision);
        }
    }
    isDeciding = false;
    EndWhenDone();
}

void Run::Ask(const RunDecisions::FileTrouble& about)
{
    decisions.Ask(about);
    record.TellTrouble(plan.Names(), about.file, about.trouble, Action::ReportedOnly);
    host.Ask(Policies::Question(about.trouble.kind));
}

void Run::Answer(ZTBatchMessage::Message question, int policy, bool isForTheRest)
{
    using Meaning = RunDecisions::Answer::Meaning;
    const RunDecisions::Answer answer = decisions.TakeAnswer(question, policy);
    if (answer.meaning == Meaning::NoQuestion) {
        host.Log(QStringLiteral("There is no such question: the answer is ignored."));
        return;
    }
    const QString policyName = Policies::Name(answer.policy);
    if (answer.meaning == Meaning::Invalid) {
        host.Log(QStringLiteral("%1 is not an answer to the question about %2, which stays open.")
                     .arg(policy)
                     .arg(policyName));
        return;
    }
    if (isForTheRest) {
        decisions.SetPolicy(answer.policy, answer.decision);
        record.Journal().Answer(int(answer.policy), policy);
        host.Log(QStringLiteral("The answer about %1 holds for the rest of the run.").arg(policyName));
    }
    isDeciding = true; // Later files are decided when their names are settled.
    Resolve(answer.about.file, answer.about.trouble, answer.decision);
    if (isForTheRest) {
        plan.Settle(answer.about.file + 1, decisions.CurrentPolicies());
    }
    isDeciding = false;
    DecideWaiting();
    Q_EMIT HasTasks();
}

void Run::Resolve(int file, const Trouble& trouble, Decision decision)
{
    const bool givesAnotherName =
        decision == Decision::Overwrite || decision == Decision::Rename || decision == Decision::Nearest;
    if (plan.HasFixedName(file) && givesAnotherName) {
        GiveUp(file, trouble, Action::FileSkipped);
        return;
    }
    switch (decision) {
    case Decision::Stop:
        decisions.Wait(file, trouble);
        Stop(QStringLiteral("as the %1 policy requires").arg(Policies::Name(trouble.kind)));
        break;
    case Decision::Overwrite:
    case Decision::Rename:
        ResolveName(file, trouble, decision);
        break;
    case Decision::Nearest:
        ResolveFormat(file, trouble);
        break;
    case Decision::Skip:
    case Decision::Ask:
        GiveUp(file, trouble, Action::FileSkipped);
        break;
    }
}

void Run::ResolveName(int file, const Trouble& trouble, Decision decision)
{
    // An answer for the rest of the run may have settled the name in the meantime.
    const bool isTaken = trouble.isFromWorker || plan.Names().ClashOf(file) != OutputPlan::Clash::None;
    if (isTaken && decision == Decision::Overwrite && plan.IsOverwriting(file)) {
        GiveUp(file, trouble, Action::FileSkipped); // The worker was to overwrite, and could not.
        return;
    }
    if (isTaken) {
        plan.ResolveName(file, decision);
    }
    ready.append(file);
    Q_EMIT HasTasks();
}

void Run::ResolveFormat(int file, const Trouble& trouble)
{
    // An answer for the rest of the run may have given it a format in the meantime.
    const bool isSettled = !trouble.isFromWorker && plan.Names().Format(file);
    if (!isSettled && !plan.ChangeFormat(file, trouble.nearestFormat)) {
        GiveUp(file, trouble, Action::FileSkipped);
        return;
    }
    plan.SettleName(file, decisions.CurrentPolicies());
    Examine(file);
    Q_EMIT HasTasks();
}

/// The file will not be written.
void Run::GiveUp(int file, const Trouble& trouble, Action action)
{
    record.AddLeftOut(plan.Names(), file, trouble, action);
    OnFileDone(file);
}

void Run::FinishPicture(int file, const Report& report)
{
    record.AddWritten(plan, file, report);
    OnFileDone(file);
}

void Run::FinishProbe()
{
    if (probes.Finish()) {
        BeginNaming();
    }
}

void Run::OnFileDone(int file)
{
    decisions.SetDone(file);
    record.TellProgress();
    DecideWaiting();
    EndWhenDone();
}

void Run::Pause()
{
    if (isPaused || phase == Phase::Over || phase == Phase::Cancelling) {
        host.Log(QStringLiteral("There is nothing to pause."));
        return;
    }
    isPaused = true;
    host.Tell<ZTBatchMessage::MsgPaused>();
}

void Run::Resume()
{
    if (!isPaused || phase == Phase::Over || phase == Phase::Cancelling) {
        host.Log(CommandLog::NotPaused());
        return;
    }
    isPaused = false;
    host.Tell<ZTBatchMessage::MsgResumed>();
    Q_EMIT HasTasks();
}

void Run::Cancel()
{
    if (phase == Phase::Over || phase == Phase::Cancelling) {
        host.Log(QStringLiteral("There is nothing to cancel."));
        return;
    }
    phase = Phase::Cancelling;
    decisions.DropQuestion();
    if (background) {
        background->Cancel(); // The cancellation continues when it has ended.
    } else {
        pool.Drop(number);
    }
}

/// Hands no further file out. Files in work are still finished.
void Run::Stop(const QString& reason)
{
    if (isStopping) {
        return;
    }
    isStopping = true;
    host.Log(QStringLiteral("The run is stopped: %1.").arg(reason));
    ready.clear();
    returned.clear();
    const bool wasDeciding = std::exchange(isDeciding, true);
    const QVector<RunDecisions::FileTrouble> undecided = decisions.TakeAll();
    for (const RunDecisions::FileTrouble& one : undecided) {
        GiveUp(one.file, one.trouble, Action::RunStopped);
    }
    isDeciding = wasDeciding;
    EndWhenDone();
}

void Run::Refuse(const Refusal& refusal)
{
    host.Log(RefusalLine{refusal.message}.Text());
    host.Tell<ZTBatchMessage::MsgError>(QString(), QString(), int(Action::RunStopped), int(refusal.code));
    record.LogTotals(QStringLiteral("Finished"), plan.Count());
    host.Tell<ZTBatchMessage::MsgFinished>();
    End();
}

void Run::EndWhenDone()
{
    if (phase != Phase::Working || !inWork.isEmpty() || isDeciding) {
        return;
    }
    const bool isDone = next == plan.Count() && ready.isEmpty() && returned.isEmpty() && !decisions.HasWaiting() &&
                        !decisions.IsAsking();
    if (isDone || isStopping) {
        record.LogTotals(isStopping ? QStringLiteral("Stopped") : QStringLiteral("Finished"), plan.Count());
        host.Tell<ZTBatchMessage::MsgFinished>();
        End();
    }
}

void Run::End()
{
    phase = Phase::Over;
    Q_EMIT Over();
}

} // namespace BatchSupervisor
