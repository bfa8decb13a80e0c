// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunController.h"

#include "ManagerPolicies.h"
#include "OfferedPipe.h"

#include "job/journal/RunJournal.h"
#include "job/plan/CommandLog.h"
#include "job/plan/FactsLine.h"
#include "job/plan/Trouble.h"
#include "job/plan/TroubleLine.h"
#include "job/plan/UnchangedLine.h"
#include "job/plan/WarningLine.h"
#include "job/values/JobValues.h"

#include "ZTBatchMessage.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

using namespace BatchJob;

namespace BatchHost {

namespace {

using Session = ZTBatchManager::ZTBatchSession;

/// How many servers are started for a run.
constexpr int mostServers = 10;

/// How many servers in a row may die before they have begun with a picture.
constexpr int mostIdleServers = 3;

/// How many lines of the log are kept for the next message. More warnings belong to no picture.
constexpr int mostLogs = 100;

} // namespace

RunController::RunController(const Order& order, const QVector<RunObserver*>& observers)
    : order(order)
    , observers(observers)
    , manager(ZTBatchManager::Instance())
{
    end.files = order.inputs.files.size();
    end.outputFolder = order.outputFolder;
    for (int i = 0; i < order.inputs.files.size(); ++i) {
        open[order.inputs.files.at(i)].append(i);
    }
    connect(&watch, &ServerWatch::Quiet, this, &RunController::OnServerQuiet);
    connect(&watch, &ServerWatch::Lost, this, &RunController::OnServerLost);
    sessionOver.setSingleShot(true);
    connect(&sessionOver, &QTimer::timeout, this, [this] {
        SettleFromJournal();
        End(phase == Phase::Cancelling, false);
    });
    connect(manager, &ZTBatchManager::ConnectionEstablished, this, &RunController::BeginSession);
    connect(manager, &ZTBatchManager::ConnectionFailed, this, &RunController::OnServerGone);
}

RunController::~RunController() = default;

void RunController::Start()
{
    phase = Phase::Running;
    time.start();
    for (RunObserver* const observer : observers) {
        observer->OnStart(order.inputs, end.outputFolder);
    }
    for (const auto& [index, journaled] : JournaledResults()) {
        const FileResult result = Judged(journaled);
        if (Count(result, index)) {
            for (RunObserver* const observer : observers) {
                observer->OnEarlierResult(result);
            }
        }
    }
    end.unwrittenBefore = end.unwritten;
    StartServer();
}

void RunController::StartServer()
{
    if (phase != Phase::Running) {
        return;
    }
    ++serversStarted;
    settledByThisServer = 0;
    isAskedForLife = false;
    watch.Start();
    std::optional<OfferedPipe> pipe;
    if (!manager->IsStarted()) {
        pipe.emplace();
    }
    manager->Start();
}

/// The connection is made, or was lost and is made again. A session ends with its connection: the server at the other
/// end may even be another one, as a killed server answers until its last child has ended.
void RunController::BeginSession()
{
    if (phase != Phase::Running) {
        return;
    }
    if (session) {
        delete session;
        question.reset();
        inWork.clear();
        SettleFromJournal();
    }
    isAskedForLife = false;
    watch.Start();
    session = manager->CreateBatchSession();
    if (!session) {
        return; // The connection is lost again. It returns, or the watch ends the server.
    }
    ConnectSession();
    // The manager saves its policies as the user's settings; those of this run are for this run only.
    const PolicyValues saved = PoliciesOfManager();
    SetPoliciesOfManager(order.policies);
    session->Process(order.document);
    SetPoliciesOfManager(saved);
    if (isPaused) {
        session->Pause();
    }
}

void RunController::ConnectSession()
{
    connect(session, &Session::FileInProgress, this, &RunController::OnFileInProgress);
    connect(session, &Session::FileProcessed, this, &RunController::OnFileProcessed);
    connect(session, &Session::ProcessError, this, &RunController::OnProcessError);
    connect(session, &Session::LogMessage, this, &RunController::OnLog);
    connect(session, &Session::InputQuestion, this, [this] { OnQuestion(PolicyKind::Input); });
    connect(session, &Session::OutputQuestion, this, [this] { OnQuestion(PolicyKind::Output); });
    connect(session, &Session::ProcessingQuestion, this, [this] { OnQuestion(PolicyKind::Processing); });
    connect(session, &Session::NamingQuestion, this, [this] { OnQuestion(PolicyKind::Naming); });
    connect(session, &Session::WriteToFormatQuestion, this, [this] { OnQuestion(PolicyKind::WriteToFormat); });
    connect(session, &Session::Paused, this, &RunController::OnPaused);
    connect(session, &Session::Resumed, this, &RunController::OnResumed);
    connect(session, &Session::Finished, this, &RunController::OnSessionOver);
    connect(session, &Session::Cancelled, this, &RunController::OnSessionCancelled);
    connect(session, QOverload<int>::of(&Session::Progress), &watch, &ServerWatch::Heard);
    connect(session, &Session::ProgressRange, &watch, &ServerWatch::Heard);
}

void RunController::Pause()
{
    if (phase != Phase::Running || isPaused) {
        return;
    }
    isPaused = true;
    if (session) {
        session->Pause();
    }
}

void RunController::Resume()
{
    if (phase != Phase::Running || !isPaused) {
        return;
    }
    isPaused = false;
    if (session) {
        session->Resume();
    }
    if (!question) {
        watch.Start();
    }
}

void RunController::OnPaused()
{
    isAskedForLife = false;
    if (isPaused && phase == Phase::Running) {
        watch.Stop(); // The server has nothing to say, as long as the user likes.
        Q_EMIT Paused();
    }
}

void RunController::OnResumed()
{
    watch.Heard();
    if (!isPaused && phase == Phase::Running) {
        Q_EMIT Resumed();
    }
}

void RunController::Cancel()
{
    if (phase != Phase::Running) {
        return;
    }
    phase = Phase::Cancelling;
    watch.ExpectEnd();
    for (RunObserver* const observer : observers) {
        observer->OnCancelling();
    }
    if (session) {
        session->Cancel();
    } else {
        End(true, false);
    }
}

void RunController::EndAtOnce()
{
    if (phase == Phase::Over) {
        return;
    }
    phase = Phase::Cancelling;
    manager->Stop();
    End(true, false);
}

void RunController::OnFileInProgress(const QString& input)
{
    watch.Heard();
    // A file whose name was taken meanwhile is begun once more.
    if (inWork.count(input) < open.value(input).size()) {
        inWork.append(input);
    }
    for (RunObserver* const observer : observers) {
        observer->OnInWork(inWork, input);
    }
}

void RunController::OnFileProcessed(const QString& input, const QString& output)
{
    watch.Heard();
    FileResult result{input, output, FileResult::Kind::Written, ZTBatchMessage::NoError, {}};
    for (const QString& text : std::exchange(logs, {})) {
        if (const std::optional<WarningLine> warning = WarningLine::Parse(text, input)) {
            result.warnings.append(warning->warning);
        } else if (const std::optional<FactsLine> known = FactsLine::Parse(text, input)) {
            result.facts = known->facts;
        }
    }
    result.warnings += order.ofEachResult;
    result.finished = QDateTime::currentDateTimeUtc();
    Settle(result);
}

void RunController::OnProcessError(const QString& input, const QString& output, int action, int errorCode)
{
    watch.Heard();
    const QString reason = ReasonOfError(input, BatchJob::Action(action), errorCode);
    if (input.isEmpty()) {
        end.jobErrorCode = errorCode;
        end.jobError = reason;
        return;
    }
    switch (BatchJob::Action(action)) {
    case BatchJob::Action::ReportedOnly:
        asked = Judged({input, output, FileResult::Kind::Failed, errorCode, reason});
        break;
    case BatchJob::Action::FileSkipped:
    case BatchJob::Action::RunStopped: {
        const bool isSkipped = CountsAsSkipped(BatchJob::Action(action), errorCode);
        FileResult result{input, output, isSkipped ? FileResult::Kind::Skipped : FileResult::Kind::Failed, errorCode,
                          reason};
        result.finished = QDateTime::currentDateTimeUtc();
        Settle(result);
        break;
    }
    default: {
        end.renamed += BatchJob::Action(action) == BatchJob::Action::WrittenUnderAnotherName ? 1 : 0;
        const BatchJob::Word* const word = BatchJob::FindWord(BatchJob::ActionWords, action);
        const QString what = word == nullptr ? QString::number(action) : QString::fromLatin1(word->word);
        for (RunObserver* const observer : observers) {
            observer->OnNote(input, output, what, reason);
        }
        break;
    }
    }
}

void RunController::OnLog(const QString& text)
{
    if (isAskedForLife && text == CommandLog::NoRun()) {
        OnServerLost();
        return;
    }
    watch.Heard();
    if (isAskedForLife && text == CommandLog::NotPaused()) {
        isAskedForLife = false;
        return;
    }
    if (UnchangedLine::Is(text)) {
        SettleFromJournal();
    }
    if (logs.size() == mostLogs) {
        logs.removeFirst();
    }
    logs.append(text);
    for (RunObserver* const observer : observers) {
        observer->OnLog(text);
    }
}

/// The reason of an error message. The server logs it right before the message; without that line the reason is the
/// description of the error.
QString RunController::ReasonOfError(const QString& input, BatchJob::Action action, int errorCode)
{
    const QString log = logs.isEmpty() ? QString() : logs.last();
    logs.clear();
    if (input.isEmpty()) {
        if (const std::optional<RefusalLine> refusal = RefusalLine::Parse(log)) {
            return refusal->message;
        }
    } else if (const std::optional<TroubleLine> trouble = TroubleLine::Parse(log, input, action)) {
        return trouble->reason;
    } else if (const std::optional<ResultLine> result = ResultLine::Parse(log, input, action)) {
        return result->Remark();
    }
    QString text = ZTBatchMessage::ErrorDescription(ZTBatchMessage::Error(errorCode));
    if (text.endsWith(QLatin1Char('.'))) {
        text.chop(1);
    }
    return text;
}

void RunController::OnQuestion(PolicyKind kind)
{
    if (phase != Phase::Running) {
        return;
    }
    question = kind;
    watch.Stop(); // The server waits, as long as the user takes.
    for (RunObserver* const observer : observers) {
        observer->OnQuestion(kind, asked.input, asked.reason);
    }
    Q_EMIT Question(kind, asked.input, asked.output, asked.reason);
}

void RunController::Answer(int value, bool isForTheRest)
{
    if (!session || !question || phase != Phase::Running) {
        return;
    }
    const PolicyKind kind = *question;
    question.reset();
    if (!isPaused) {
        watch.Start();
    }
    for (RunObserver* const observer : observers) {
        observer->OnAnswer(kind, PolicyWord(kind, value), isForTheRest);
    }
    switch (kind) {
    case PolicyKind::Input:
        session->InputRespond(ZTBatchManager::InputPolicy(value), isForTheRest);
        break;
    case PolicyKind::Output:
        session->OutputRespond(ZTBatchManager::OutputPolicy(value), isForTheRest);
        break;
    case PolicyKind::Processing:
        session->ProcessingRespond(ZTBatchManager::ProcessingPolicy(value), isForTheRest);
        break;
    case PolicyKind::Naming:
        session->NamingRespond(ZTBatchManager::NamingPolicy(value), isForTheRest);
        break;
    case PolicyKind::WriteToFormat:
        session->WriteToFormatRespond(ZTBatchManager::WriteToFormatPolicy(value), isForTheRest);
        break;
    case PolicyKind::None:
        break;
    }
}

FileResult RunController::Judged(const FileResult& result) const
{
    FileResult judged = order.isStrict ? StrictResult(result) : result;
    if (judged.preset.isEmpty()) {
        judged.preset = order.inputs.VariantOf(result.output);
    }
    if (judged.output.endsWith(QLatin1Char('/'))) {
        judged.output.clear(); // Only the folder is known: there is no name yet.
    }
    const QVector<int> places = open.value(result.input);
    judged.inputBytes = places.isEmpty() ? -1 : order.inputs.bytes.at(places.first());
    return judged;
}

void RunController::Settle(const FileResult& settled)
{
    const FileResult result = Judged(settled);
    inWork.removeOne(result.input);
    if (!Count(result)) {
        return;
    }
    ++settledByThisServer;
    const int done = end.Processed();
    for (RunObserver* const observer : observers) {
        observer->OnResult(result, done, end.files);
    }
}

/// Counts the result of an input, that at `index` if it is not negative. False when it was counted before.
bool RunController::Count(const FileResult& result, int index)
{
    const auto waiting = open.find(result.input);
    if (waiting == open.end() || (index >= 0 && !waiting->contains(index))) {
        return false;
    }
    const auto isWanted = [this, &result, index](int place) {
        return index >= 0 ? place == index : order.inputs.VariantAt(place) == result.preset;
    };
    const auto place = std::find_if(waiting->begin(), waiting->end(), isWanted);
    if (place == waiting->end()) {
        return false;
    }
    waiting->erase(place);
    if (waiting->isEmpty()) {
        open.erase(waiting);
    }
    switch (result.kind) {
    case FileResult::Kind::Written:
        ++end.written;
        break;
    case FileResult::Kind::Unchanged:
        ++end.unchanged;
        break;
    case FileResult::Kind::Skipped:
        ++end.skipped;
        break;
    case FileResult::Kind::Failed:
        ++end.failed;
        break;
    }
    if (!HasResult(result.kind)) {
        ++end.unwritten[PolicyOfError(result.errorCode)];
    }
    for (const Warning& warning : result.warnings) {
        ++end.warnings[warning.kind];
    }
    return true;
}

QVector<QPair<int, FileResult>> RunController::JournaledResults() const
{
    QVector<QPair<int, FileResult>> results;
    const std::optional<BatchJob::JournalState> state = BatchJob::ReadJournal(order.journalPath);
    for (int i = 0; state && i < order.inputs.files.size(); ++i) {
        const auto found = state->results.constFind(i);
        if (found != state->results.constEnd()) {
            results.append({i,
                            {order.inputs.files.at(i), found->output, found->kind, found->errorCode, found->reason,
                             found->warnings, found->facts, found->finished, -1, order.inputs.VariantAt(i)}});
        }
    }
    return results;
}

bool RunController::IsServerInstalled()
{
    return !QStandardPaths::findExecutable(QStringLiteral("VelkoraBatchProcessing"),
                                           {QCoreApplication::applicationDirPath()})
                .isEmpty();
}

/// Tells the next server, in the journal, which inputs were in work when the last one died.
void RunController::NoteLoss(const QStringList& lost) const
{
    QVector<int> indexes;
    const bool hasVariants = !order.inputs.variants.isEmpty();
    const auto state = hasVariants ? BatchJob::ReadJournal(order.journalPath) : std::nullopt;
    for (const QString& input : lost) {
        for (const int index : open.value(input)) {
            // Not every result of the picture was in work.
            if (!indexes.contains(index) && (!state || state->begun.contains(index))) {
                indexes.append(index);
            }
        }
    }
    BatchJob::RunJournal journal;
    if (indexes.isEmpty() || order.journalPath.isEmpty()) {
        return;
    }
    journal.onFailure = [this](const QString& problem) {
        qWarning("%s", qUtf8Printable(
                           Phrase::English("The journal %1 cannot be written: %2.").arg(order.journalPath, problem)));
    };
    if (journal.Open(order.journalPath)) {
        journal.Lose(indexes);
    } else {
        journal.onFailure(journal.Problem());
    }
}

/// The session is over, either with the run or with the server. In the latter case OnServerGone() is called before the
/// timer fires.
void RunController::OnSessionOver()
{
    if (phase != Phase::Over) {
        sessionOver.start(0);
    }
}

/// Nobody cancelled the run if the host did not: the server is ending, as somebody has asked it to.
void RunController::OnSessionCancelled()
{
    if (phase == Phase::Cancelling) {
        OnSessionOver();
        return;
    }
    question.reset();
    inWork.clear(); // They were put back. No picture is to blame for the end of the server.
    watch.ExpectEnd();
}

/// Any server that is alive answers a command in the log of the session, also when the command changes nothing.
void RunController::OnServerQuiet()
{
    if (session && !isAskedForLife) {
        isAskedForLife = true;
        isPaused ? session->Pause() : session->Resume();
    }
}

void RunController::OnServerLost()
{
    if (phase == Phase::Cancelling) {
        EndAtOnce();
    } else if (manager->IsStarted()) {
        OnLog(QStringLiteral("The server does not answer any more: it is killed."));
        watch.Start();
        manager->Stop();
    } else {
        OnServerGone();
    }
}

/// The journal may know results that were not reported: the server was killed, or its host was and this run had already
/// started, or an update has left them as they were.
void RunController::SettleFromJournal()
{
    if (open.isEmpty()) {
        return;
    }
    for (auto& [index, result] : JournaledResults()) {
        if (open.value(result.input).contains(index)) {
            result.warnings += HasResult(result.kind) ? order.ofEachResult : Warnings();
            Settle(result);
        }
    }
}

void RunController::OnServerGone()
{
    sessionOver.stop();
    watch.Stop();
    if (phase == Phase::Over) {
        return;
    }
    delete session;
    question.reset();
    SettleFromJournal();
    if (phase == Phase::Cancelling || open.isEmpty() || end.jobErrorCode != ZTBatchMessage::NoError) {
        End(phase == Phase::Cancelling, false);
        return;
    }
    const QStringList lost = inWork;
    inWork.clear();
    NoteLoss(lost);
    idleServers = settledByThisServer > 0 || !lost.isEmpty() ? 0 : idleServers + 1;
    const bool goesOn = !order.journalPath.isEmpty() && IsServerInstalled() && serversStarted < mostServers &&
                        idleServers < mostIdleServers;
    for (RunObserver* const observer : observers) {
        observer->OnServerLost(lost, goesOn);
    }
    if (goesOn) {
        // Later: the manager is still handling the end of the last server.
        QTimer::singleShot(0, this, [this] { StartServer(); });
    } else {
        End(false, true);
    }
}

void RunController::End(bool isCancelled, bool isServerLost)
{
    if (phase == Phase::Over) {
        return;
    }
    phase = Phase::Over;
    watch.Stop();
    delete session;
    end.isCancelled = isCancelled && !open.isEmpty();
    end.isServerLost = isServerLost;
    end.seconds = double(time.elapsed()) / 1000;
    for (RunObserver* const observer : observers) {
        observer->OnEnd(end);
    }
    Q_EMIT Ended(end);
}

} // namespace BatchHost
