#include "Run.h"

#include "JobReader.h"
#include "TroubleOfWorker.h"

#include "server/protocol/TemporaryFile.h"

#include "ZTBatchDocument.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

using namespace BatchJob;
using namespace BatchProtocol;

using BatchJob::Action;

namespace BatchSupervisor {

namespace {

/// How many files are looked at in one go; the event loop gets its turn in between.
constexpr int filesAtOnce = 256;

} // namespace

Run::Run(quint64 number, const ZTBatchPayload::Process& order, const HostLink& host, WorkerPool& pool,
         const ServerLimits& limits, const QString& journalPath)
    : number(number)
    , host(host)
    , pool(pool)
    , limits(limits)
    , policies(order)
    , policyRefusal(CheckPolicies(order))
    , document(order.document)
    , journalPath(journalPath)
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
    preparation = std::make_shared<Preparation>();
    StartInBackground(
        [preparation = preparation, path = journalPath,
         text = std::exchange(document, {})](const BackgroundTask::Cancelled& isCancelled) mutable {
            HoldJournal(path, *preparation);
            if (preparation->earlier && preparation->earlier->document != text) {
                preparation->earlier.reset();
            }
            const JobReader::Job read = JobReader::Read(std::exchange(text, {}), isCancelled);
            preparation->refusal = read.refusal;
            if (isCancelled() || read.refusal.code != ZTBatchMessage::NoError) {
                return;
            }
            ZTBatchDocument settings;
            settings.Deserialize(read.settings);
            preparation->settings = read.settings;
            preparation->plan = RunPlan(OutputPlan(read.files, CheckSettings(settings).settings));
            FindFinished(*preparation);
            preparation->plan.ReadInputs(isCancelled);
        },
        &Run::TakeJob);
}

/// Reads the journal. A server whose host was killed may be cleaning up yet: it has a while to end.
void Run::HoldJournal(const QString& path, Preparation& preparation)
{
    if (path.isEmpty()) {
        return;
    }
    constexpr int patience = 15'000;
    preparation.hold = std::make_unique<QLockFile>(path + QLatin1String(journalHoldEnd));
    preparation.hold->setStaleLockTime(0); // Only its holder's end makes it stale, not its age.
    if (preparation.hold->tryLock(patience)) {
        preparation.earlier = ReadJournal(path);
    }
}

/// Takes what the journal says into the plan. Where another file stands now than before a worker began, the result was
/// finished: results are whole or absent.
void Run::FindFinished(Preparation& preparation)
{
    if (!preparation.earlier) {
        return;
    }
    JournalState& earlier = *preparation.earlier;
    for (auto it = earlier.begun.constBegin(); it != earlier.begun.constEnd(); ++it) {
        const std::optional<FileIdentity> identity = IdentityOf(it->output);
        if (it.key() < preparation.plan.Count() && identity && identity->Text() != it->before) {
            earlier.results.insert(it.key(), {JournalState::Result::Kind::Written, it->output, 0, {}});
            preparation.found.append(it.key());
        }
    }
    for (auto it = earlier.results.constBegin(); it != earlier.results.constEnd(); ++it) {
        if (it.key() >= preparation.plan.Count()) {
            continue;
        }
        if (it->kind == JournalState::Result::Kind::Written) {
            preparation.plan.Keep(it.key(), it->output);
        } else {
            preparation.plan.Leave(it.key(), it->output);
        }
    }
}

void Run::StartInBackground(std::function<void(const BackgroundTask::Cancelled&)> work, void (Run::*next)())
{
    background = std::make_unique<BackgroundTask>(std::move(work));
    connect(background.get(), &QThread::finished, this, [this, next] {
        background->wait();
        background.reset();
        if (phase == Phase::Cancelling) {
            pool.Drop(number);
        } else {
            (this->*next)();
        }
    });
    background->start();
}

void Run::TakeJob()
{
    if (preparation->refusal.code != ZTBatchMessage::NoError) {
        Refuse(preparation->refusal);
        return;
    }
    plan = std::move(preparation->plan);
    job = FrameToWorker(Job{preparation->settings, limits});
    settled.assign(std::size_t(plan.Count()), false);
    host.Tell<ZTBatchMessage::MsgProgressRange>(0, plan.Count());
    host.Log(QStringLiteral("The job has %1 files.").arg(plan.Count()));
    TakeEarlier();
    probes = plan.Names().FilesToProbe();
    openProbes = probes.size();
    if (probes.isEmpty()) {
        BeginNaming();
        return;
    }
    phase = Phase::Probing;
    pool.Start();
    host.Log(QStringLiteral("Names and formats depend on the pictures; looking at %1 of them.").arg(probes.size()));
    Q_EMIT HasTasks();
}

void Run::TakeEarlier()
{
    if (!preparation->earlier || !journal.Open(journalPath)) {
        return;
    }
    hold = std::move(preparation->hold);
    const JournalState& earlier = *preparation->earlier;
    losses = earlier.losses;
    for (auto it = earlier.answers.begin(); it != earlier.answers.end(); ++it) {
        const auto kind = Case(it.key() + int(Case::Input));
        if (const std::optional<Decision> decision = Policies::Meaning(kind, *it)) {
            policies.Set(kind, *decision);
        }
    }
    for (auto it = earlier.results.constBegin(); it != earlier.results.constEnd(); ++it) {
        if (it.key() < 0 || it.key() >= plan.Count()) {
            continue;
        }
        settled[std::size_t(it.key())] = true;
        ++(it->kind == JournalState::Result::Kind::Written   ? written
           : it->kind == JournalState::Result::Kind::Skipped ? skipped
                                                             : failed);
    }
    if (earlier.results.isEmpty()) {
        return;
    }
    host.Log(QStringLiteral("An earlier part of this run has settled %1 files.").arg(earlier.results.size()));
    for (const int file : qAsConst(preparation->found)) {
        const JournalState::Result& result = earlier.results[file];
        journal.Settle(file, result);
        host.Tell<ZTBatchMessage::MsgFileProcessed>(plan.Names().Input(file), result.output);
    }
    host.Tell<ZTBatchMessage::MsgProgress>(written + skipped + failed);
}

void Run::BeginNaming()
{
    phase = Phase::Naming;
    preparation->plan = std::move(plan);
    StartInBackground(
        [preparation = preparation, policies = policies](const BackgroundTask::Cancelled& isCancelled) {
            if (!preparation->plan.MakeNames(policies, isCancelled)) {
                return;
            }
            for (const QString& folder : preparation->plan.Folders()) {
                preparation->swept += isCancelled() ? 0 : TemporaryFile::Sweep(folder);
            }
        },
        &Run::BeginWork);
}

void Run::BeginWork()
{
    phase = Phase::Working;
    plan = std::move(preparation->plan);
    if (preparation->swept > 0) {
        host.Log(QStringLiteral("Removed %1 unfinished files that an earlier run has left.").arg(preparation->swept));
    }
    preparation.reset();
    pool.Start();
    Q_EMIT HasTasks();
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
        Give(returned.takeFirst());
        return true;
    }
    if (phase == Phase::Probing) {
        if (nextProbe == probes.size()) {
            return false;
        }
        const int file = probes[nextProbe++];
        Give({number, file, job, ProbeTask{file, plan.Names().Input(file)}, {}, false});
        return true;
    }
    if (question && question->trouble.kind == Case::Output) {
        return false;
    }
    for (int looked = 0; phase == Phase::Working && !isStopping; ++looked) {
        if (!ready.isEmpty()) {
            if (GivePicture(ready.takeFirst())) {
                return true;
            }
        } else if (next == plan.Count()) {
            EndWhenDone(); // An earlier part of the run may have left nothing to do.
            return false;
        } else {
            Examine(next++);
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
    return phase == Phase::Probing ? probes.size() - nextProbe + returned.size()
                                   : plan.Count() - next + ready.size() + returned.size();
}

void Run::Give(const Assignment& task)
{
    inWork.insert(task.file);
    pool.Give(task);
}

bool Run::GivePicture(int file)
{
    const OutputPlan& names = plan.Names();
    const QString folder = names.Folder(file);
    if (!MakeFolder(folder)) {
        Meet(file, {Case::Output,
                    ZTBatchMessage::WriteOutputFormatError,
                    QStringLiteral("the folder \"%1\" cannot be made").arg(folder),
                    {}});
        return false;
    }
    const QString output = names.Output(file);
    const std::optional<FileIdentity> before = IdentityOf(output);
    journal.Begin(file, {output, before ? before->Text() : QString()});
    const PictureTask task{file, names.Input(file), output, names.Format(file)->name, plan.IsOverwriting(file)};
    Give({number, file, job, task, before, false});
    return true;
}

bool Run::MakeFolder(const QString& folder)
{
    if (madeFolders.contains(folder)) {
        return true;
    }
    if (!QDir().mkpath(folder)) {
        return false;
    }
    madeFolders.insert(folder);
    return true;
}

/// Looks at a file before it is handed out.
void Run::Examine(int file)
{
    if (settled[std::size_t(file)]) {
        return; // By an earlier part of the run.
    }
    constexpr int patience = 2;
    if (losses.value(file) >= patience) {
        Meet(file, {Case::Processing,
                    ZTBatchMessage::ApplyAdjustmentError,
                    QStringLiteral("the server has died over it %1 times").arg(losses.value(file)),
                    {}});
        return;
    }
    const Trouble trouble = plan.TroubleOf(file);
    if (trouble.kind == Case::None) {
        ready.append(file);
    } else {
        Meet(file, trouble);
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
    if (std::holds_alternative<ProbeTask>(task.task)) {
        if (report.failure == Case::None) {
            plan.TakeProbe(task.file, report);
        } else {
            plan.TakeProbe(task.file, TroubleOfReport(report));
        }
        FinishProbe();
    } else if (report.failure == Case::None) {
        FinishPicture(task.file, report);
    } else {
        Meet(task.file, TroubleOfReport(report));
    }
}

void Run::OnLost(const Assignment& task, WorkerEnd reason, const QString& text)
{
    inWork.remove(task.file);
    const Trouble trouble = TroubleOfEnd(reason, text, limits);
    if (std::holds_alternative<ProbeTask>(task.task)) {
        plan.TakeProbe(task.file, trouble);
        FinishProbe();
        return;
    }
    if (!TakeUnreported(task)) {
        Meet(task.file, trouble);
    }
}

void Run::OnReturned(const Assignment& task)
{
    inWork.remove(task.file);
    if (TakeUnreported(task)) {
        return;
    }
    if (isStopping) {
        EndWhenDone();
        return;
    }
    returned.append(task);
    Q_EMIT HasTasks();
}

/// Whether the worker had finished the result, and only its report is missing: results are whole or absent.
bool Run::TakeUnreported(const Assignment& task)
{
    const auto* picture = std::get_if<PictureTask>(&task.task);
    if (!picture) {
        return false;
    }
    TemporaryFile::Sweep(plan.Names().Folder(task.file));
    const std::optional<FileIdentity> now = IdentityOf(picture->outputFile);
    if (!now || now == task.before) {
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
        return; // They are started again when there is something to do.
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
        TemporaryFile::Sweep(folder);
    }
    LogTotals(QStringLiteral("Cancelled"));
    host.Tell<ZTBatchMessage::MsgCancelled>();
    End();
}

void Run::Meet(int file, const Trouble& trouble)
{
    if (isStopping) {
        GiveUp(file, trouble, Action::RunStopped);
        return;
    }
    if (policies.Of(trouble.kind) == Decision::Ask || NeedsOrder(file, trouble)) {
        waiting.insert(file, trouble);
        DecideWaiting();
    } else {
        Resolve(file, trouble, policies.Of(trouble.kind));
    }
}

/// Whether the decision may give a file another name, or has to find the result of an earlier file in its place.
bool Run::NeedsOrder(int file, const Trouble& trouble) const
{
    switch (policies.Of(trouble.kind)) {
    case Decision::Nearest:
    case Decision::Rename:
        return true;
    case Decision::Overwrite:
        return trouble.isFromWorker || plan.Names().ClashOf(file) == OutputPlan::Clash::Result;
    default:
        return false;
    }
}

/// Decides about the files whose turn it is: those before which every file is done.
void Run::DecideWaiting()
{
    if (isDeciding) {
        return; // The loop below goes on with what has come up.
    }
    isDeciding = true;
    while (!question && !waiting.isEmpty() && waiting.firstKey() == FirstUnsettled()) {
        const int file = waiting.firstKey();
        const Trouble trouble = waiting.take(file);
        const Decision decision = policies.Of(trouble.kind);
        if (decision == Decision::Ask) {
            Ask(file, trouble);
        } else {
            Resolve(file, trouble, decision);
        }
    }
    isDeciding = false;
    EndWhenDone();
}

void Run::Ask(int file, const Trouble& trouble)
{
    question = OpenQuestion{file, trouble};
    ReportTrouble(file, trouble, Action::ReportedOnly, QStringLiteral("asking"));
    host.Ask(Policies::Question(trouble.kind));
}

void Run::Answer(ZTBatchMessage::Message answered, int policy, bool isForTheRest)
{
    if (!question || Policies::Question(question->trouble.kind) != answered) {
        host.Log(QStringLiteral("There is no such question: the answer is ignored."));
        return;
    }
    const Case kind = question->trouble.kind;
    const std::optional<Decision> decision = Policies::Meaning(kind, policy);
    if (!decision || *decision == Decision::Ask) {
        host.Log(QStringLiteral("%1 is no answer to the question about %2: it stays open.")
                     .arg(policy)
                     .arg(Policies::Name(kind)));
        return;
    }
    const OpenQuestion open = *question;
    question.reset();
    if (isForTheRest) {
        policies.Set(kind, *decision);
        journal.Answer(int(kind) - int(Case::Input), policy);
        host.Log(QStringLiteral("The answer about %1 holds for the rest of the run.").arg(Policies::Name(kind)));
    }
    isDeciding = true; // The files behind have their turn when their names are settled.
    Resolve(open.file, open.trouble, *decision);
    if (isForTheRest) {
        plan.Settle(open.file + 1, policies);
    }
    isDeciding = false;
    DecideWaiting();
    Q_EMIT HasTasks();
}

void Run::Resolve(int file, const Trouble& trouble, Decision decision)
{
    switch (decision) {
    case Decision::Stop:
        waiting.insert(file, trouble);
        Stop(QStringLiteral("the %1 policy says so").arg(Policies::Name(trouble.kind)));
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
    // An answer for the rest of the run has settled it meanwhile, perhaps.
    const bool isTaken = trouble.isFromWorker || plan.Names().ClashOf(file) != OutputPlan::Clash::None;
    if (isTaken && decision == Decision::Overwrite && plan.IsOverwriting(file)) {
        GiveUp(file, trouble, Action::FileSkipped); // The worker was told so already.
        return;
    }
    if (isTaken && decision == Decision::Overwrite && !plan.IsAnothersSource(file)) {
        plan.Overwrite(file);
    } else if (isTaken) {
        plan.Rename(file);
    }
    ready.append(file);
    Q_EMIT HasTasks();
}

void Run::ResolveFormat(int file, const Trouble& trouble)
{
    // An answer for the rest of the run has given it one meanwhile, perhaps.
    const bool isSettled = !trouble.isFromWorker && plan.Names().Format(file);
    if (!isSettled && !plan.ChangeFormat(file, trouble.nearestFormat)) {
        GiveUp(file, trouble, Action::FileSkipped);
        return;
    }
    plan.SettleFile(file, policies);
    Examine(file);
    Q_EMIT HasTasks();
}

void Run::ReportTrouble(int file, const Trouble& trouble, Action action, const QString& consequence)
{
    const OutputPlan& names = plan.Names();
    host.Log(QStringLiteral("%1: %2; %3 (%4 policy)")
                 .arg(names.Input(file), trouble.reason, consequence, Policies::Name(trouble.kind)));
    host.Tell<ZTBatchMessage::MsgError>(names.Input(file), names.Output(file), int(action), trouble.code);
}

/// The file will not be written.
void Run::GiveUp(int file, const Trouble& trouble, Action action)
{
    const bool isStop = action == Action::RunStopped;
    ReportTrouble(file, trouble, action, isStop ? QStringLiteral("the run is stopped") : QStringLiteral("skipped"));
    // Nothing was wrong with a picture whose name is taken or whose format cannot be written.
    const bool isFailure = isStop || (trouble.kind != Case::Naming && trouble.kind != Case::WriteToFormat);
    ++(isFailure ? failed : skipped);
    if (!isStop) {
        using Kind = JournalState::Result::Kind;
        journal.Settle(
            file, {isFailure ? Kind::Failed : Kind::Skipped, plan.Names().Output(file), trouble.code, trouble.reason});
    }
    Settle(file);
}

void Run::FinishPicture(int file, const Report& report)
{
    const OutputPlan& names = plan.Names();
    const QString input = names.Input(file);
    const QString output = names.Output(file);
    for (const QString& warning : report.warnings) {
        host.Log(QStringLiteral("%1: warning: %2").arg(input, warning));
    }
    const auto note = [&](Action action, ZTBatchMessage::Error code, const QString& text) {
        host.Log(QStringLiteral("%1: %2").arg(input, text));
        host.Tell<ZTBatchMessage::MsgError>(input, output, int(action), int(code));
    };
    if (plan.HasOtherFormat(file)) {
        note(Action::WrittenInAnotherFormat, ZTBatchMessage::UnsupportedOutputFormat,
             QStringLiteral("written as %1 (write-to-format policy)").arg(names.Format(file)->name));
    }
    if (plan.IsOverwriting(file)) {
        note(Action::ExistingFileOverwritten, ZTBatchMessage::FileNameAlreadyExists,
             QStringLiteral("\"%1\" was overwritten (naming policy)").arg(output));
    } else if (plan.IsRenamed(file)) {
        note(Action::WrittenUnderAnotherName, ZTBatchMessage::FileNameAlreadyExists,
             QStringLiteral("written as \"%1\" (naming policy)").arg(output));
    }
    journal.Settle(file, {JournalState::Result::Kind::Written, output, 0, {}});
    host.Tell<ZTBatchMessage::MsgFileProcessed>(input, output);
    ++written;
    Settle(file);
}

void Run::FinishProbe()
{
    if (--openProbes == 0) {
        BeginNaming();
    }
}

void Run::Settle(int file)
{
    settled[std::size_t(file)] = true;
    host.Tell<ZTBatchMessage::MsgProgress>(written + skipped + failed);
    DecideWaiting();
    EndWhenDone();
}

int Run::FirstUnsettled()
{
    while (firstUnsettled < plan.Count() && settled[std::size_t(firstUnsettled)]) {
        ++firstUnsettled;
    }
    return firstUnsettled;
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
        host.Log(QStringLiteral("There is nothing to resume."));
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
    question.reset();
    if (background) {
        background->Cancel(); // Its end goes on from here.
    } else {
        pool.Drop(number);
    }
}

/// No further file is handed out; those in work are finished.
void Run::Stop(const QString& reason)
{
    if (isStopping) {
        return;
    }
    isStopping = true;
    host.Log(QStringLiteral("The run is stopped: %1.").arg(reason));
    ready.clear();
    returned.clear();
    if (question) {
        waiting.insert(question->file, question->trouble);
        question.reset();
    }
    const bool wasDeciding = std::exchange(isDeciding, true);
    while (!waiting.isEmpty()) {
        const int file = waiting.firstKey();
        GiveUp(file, waiting.take(file), Action::RunStopped);
    }
    isDeciding = wasDeciding;
    EndWhenDone();
}

void Run::Refuse(const Refusal& refusal)
{
    host.Log(QStringLiteral("The job is refused: %1.").arg(refusal.message));
    host.Tell<ZTBatchMessage::MsgError>(QString(), QString(), int(Action::RunStopped), int(refusal.code));
    LogTotals(QStringLiteral("Finished"));
    host.Tell<ZTBatchMessage::MsgFinished>();
    End();
}

void Run::EndWhenDone()
{
    if (phase != Phase::Working || !inWork.isEmpty() || isDeciding) {
        return;
    }
    const bool isDone = next == plan.Count() && ready.isEmpty() && returned.isEmpty() && waiting.isEmpty() && !question;
    if (isDone || isStopping) {
        LogTotals(isStopping ? QStringLiteral("Stopped") : QStringLiteral("Finished"));
        host.Tell<ZTBatchMessage::MsgFinished>();
        End();
    }
}

void Run::LogTotals(const QString& how) const
{
    const int left = plan.Count() - written - skipped - failed;
    QString text =
        QStringLiteral("%1: %2 written, %3 skipped, %4 failed").arg(how).arg(written).arg(skipped).arg(failed);
    if (left > 0) {
        text += QStringLiteral(", %1 not processed").arg(left);
    }
    host.Log(text + QLatin1Char('.'));
}

void Run::End()
{
    phase = Phase::Over;
    Q_EMIT Over();
}

} // namespace BatchSupervisor
