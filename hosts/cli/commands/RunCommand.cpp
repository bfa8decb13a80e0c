#include "CommandFunctions.h"
#include "JobBuilder.h"

#include "hosts/cli/options/RunOptions.h"
#include "hosts/cli/terminal/Console.h"
#include "hosts/cli/terminal/EventWriter.h"
#include "hosts/cli/terminal/InterruptWatcher.h"
#include "hosts/cli/terminal/Questioner.h"
#include "hosts/cli/terminal/RunDisplay.h"
#include "hosts/cli/terminal/RunSummary.h"
#include "hosts/cli/terminal/Startup.h"
#include "hosts/common/JournalFile.h"
#include "hosts/common/PrivateTempFolder.h"
#include "hosts/common/RunController.h"
#include "hosts/common/RunReport.h"
#include "hosts/common/UsageError.h"
#include "job/journal/RunJournal.h"
#include "job/settings/JobFiles.h"

#include "ZTBatchDocument.h"
#include "ZTBatchManager.h"
#include "ZTBatchMessage.h"
#include "ZTBatchOutputSettings.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QRegularExpression>

#include <algorithm>
#include <memory>

using namespace BatchJob;
using namespace BatchHost;

namespace BatchCli {

namespace {

/// The manager for as long as a run takes.
class ManagerInstance
{
public:
    explicit ManagerInstance(const QString& settingsFolder) { ZTBatchManager::InitInstance(settingsFolder); }

    ~ManagerInstance()
    {
        InterruptWatcher::EndAtNext(); // The server may take its time.
        ZTBatchManager::ReleaseInstance();
    }

private:
    Q_DISABLE_COPY(ManagerInstance)
};

RunInputs InputsOf(const ZTBatchDocument& job)
{
    RunInputs inputs;
    for (const BatchJob::JobFile& file : BatchJob::FilesOfJob(*job.GetInputModel())) {
        inputs.files.append(file.path);
        inputs.bytes.append(QFileInfo(file.path).size());
        inputs.allBytes += inputs.bytes.last();
    }
    return inputs;
}

PolicyValues PoliciesOfManager()
{
    const ZTBatchManager& manager = *ZTBatchManager::Instance();
    return {manager.GetInputPolicy(), manager.GetOutputPolicy(), manager.GetProcessingPolicy(),
            manager.GetNamingPolicy(), manager.GetWriteToFormatPolicy()};
}

/// The journal of a run with what is to be written into it, or stands in it.
struct Journal
{
    std::unique_ptr<JournalFile> file;
    QString document;
    PolicyValues policies{};

    bool Begin(const PolicyValues& newPolicies)
    {
        policies = newPolicies;
        return BatchJob::RunJournal().Create(file->Path(), document, policies);
    }
};

Journal NewJournal(const ZTBatchDocument& job)
{
    CheckJob(job);
    Journal journal;
    journal.document = job.Serialize(nullptr);
    journal.file = JournalFile::ForJob(job.GetOutputSettings()->GetPath(), journal.document);
    if (journal.file->Exists()) {
        WriteError(QStringLiteral("velkora-batch: this job was interrupted before; it starts anew, --resume would have "
                                  "gone on.\n"));
    }
    return journal;
}

/// Whether more of a job is given than where its results go.
bool IsJobGiven(const ParsedArguments& arguments)
{
    const auto isGiven = [&arguments](const OptionInfo& option) {
        return option.name != QLatin1String("--output") && arguments.Has(option.name);
    };
    const QVector<OptionInfo> ofJob = OptionsOfJobs();
    return !arguments.inputs.isEmpty() || std::any_of(ofJob.begin(), ofJob.end(), isGiven);
}

/// Makes `job` the one that was interrupted in its output folder.
Journal ResumedJournal(ZTBatchDocument& job, bool isThisJob)
{
    const QString folder = job.GetOutputSettings()->GetPath();
    if (folder.isEmpty()) {
        throw UsageError{QStringLiteral("which run? --output DIR says where it was interrupted")};
    }
    Journal journal;
    journal.file = JournalFile::Interrupted(folder, job.Serialize(nullptr), isThisJob);
    const std::optional<BatchJob::JournalState> state = BatchJob::ReadJournal(journal.file->Path());
    if (!state || !job.Deserialize(state->document)) {
        throw UsageError{QStringLiteral("%1 is damaged; without it the run starts anew").arg(journal.file->Path())};
    }
    journal.document = state->document;
    journal.policies = state->policies;
    return journal;
}

/// The pipe lies in the run's own temporary folder, but on Windows there is one for the whole machine. A second server
/// would not begin, and its host would speak with the first one's.
bool IsPipeTaken()
{
    constexpr int answerTime = 1000;
    QLocalSocket socket;
    socket.connectToServer(QStringLiteral("\\\\.\\pipe\\VelkoraBatchProcessing"));
    return socket.waitForConnected(answerTime);
}

/// Only the settings can hold a value without meaning.
void CheckPolicies(const PolicyValues& policies, const QString& settingsFolder)
{
    for (int i = 0; i < policyCount; ++i) {
        const auto kind = PolicyKind(i);
        const QString word = PolicyWord(kind, policies[std::size_t(i)]);
        if (!PolicyWords(kind).contains(word)) {
            throw UsageError{QStringLiteral("%1/BatchExceptionPolicy.ini holds the value %2, which means nothing; %3 "
                                            "decides in its place")
                                 .arg(settingsFolder, word, PolicyOption(kind))};
        }
    }
}

/// Where nobody can be asked, asking becomes skipping, and that is said.
void ReplaceQuestions(PolicyValues& policies, bool isQuiet)
{
    QStringList options;
    for (int i = 0; i < policyCount; ++i) {
        const auto kind = PolicyKind(i);
        int& value = policies[std::size_t(i)];
        if (value == AskingPolicy(kind)) {
            value = safePolicy;
            options.append(PolicyOption(kind));
        }
    }
    if (!options.isEmpty() && !isQuiet) {
        WriteError(QStringLiteral("velkora-batch: nobody can be asked without a terminal: files with trouble are "
                                  "skipped (%1 decide otherwise).\n")
                       .arg(options.join(QStringLiteral(", "))));
    }
}

/// As a shell reads it as one word.
QString Quoted(QString path)
{
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9_./:~+@%-]+$"));
    if (plain.match(path).hasMatch()) {
        return path;
    }
#ifdef Q_OS_WIN
    return QLatin1Char('"') + path + QLatin1Char('"');
#else
    return QLatin1Char('\'') + path.replace(QLatin1Char('\''), QStringLiteral("'\\''")) + QLatin1Char('\'');
#endif
}

ExitCode CodeOf(const RunEnd& end)
{
    switch (end.jobErrorCode) {
    case ZTBatchMessage::NoError:
        break;
    case ZTBatchMessage::NoAdjustmentManager:
        return ExitCode::ServerLost;
    default:
        return ExitCode::Usage;
    }
    if (end.isServerLost) {
        return ExitCode::ServerLost;
    }
    if (end.isCancelled) {
        return ExitCode::Cancelled;
    }
    return end.written == end.files ? ExitCode::Done : ExitCode::Incomplete;
}

RunDisplay::Detail DetailOf(const ParsedArguments& arguments)
{
    return arguments.Has(QStringLiteral("--quiet"))     ? RunDisplay::Detail::Quiet
           : arguments.Has(QStringLiteral("--verbose")) ? RunDisplay::Detail::Verbose
                                                        : RunDisplay::Detail::Normal;
}

/// Runs `controller` to its end, with the user's questions and interrupts.
RunEnd Execute(RunController& controller, RunDisplay& display)
{
    RunEnd result;
    bool isOver = false;
    QEventLoop loop;
    Questioner questioner;
    InterruptWatcher interrupts;
    bool isInterrupted = false;
    const auto stop = [&] {
        display.Resume();
        if (isInterrupted) {
            controller.EndAtOnce();
        } else {
            isInterrupted = true;
            controller.Cancel();
        }
    };
    QObject::connect(&interrupts, &InterruptWatcher::Interrupted, &loop, stop);
    QObject::connect(&controller, &RunController::Question, &loop,
                     [&](PolicyKind kind, const QString& input, const QString&, const QString& reason) {
                         display.Suspend();
                         questioner.Ask(kind, input, reason);
                     });
    QObject::connect(&questioner, &Questioner::Answered, &loop, [&](const UserAnswer& answer) {
        display.Resume();
        if (answer.value) {
            controller.Answer(*answer.value, answer.isForTheRest);
        } else {
            stop();
        }
    });
    QObject::connect(&controller, &RunController::Ended, &loop, [&](const RunEnd& end) {
        result = end;
        isOver = true;
        loop.quit();
    });
    controller.Start();
    if (!isOver) {
        loop.exec();
    }
    return result;
}

} // namespace

ExitCode RunJob(const ParsedArguments& arguments)
{
    OutliveReaders();
    QStringList inputs = arguments.inputs;
    const QString savedJob = TakeSavedJob(inputs);
    PolicyValues given{};
    ApplyPolicies(arguments, given); // What is wrong is said before folders are read.
    ApplyServerLimits(arguments);
    const QString settingsFolder = SettingsFolder(arguments);
    std::unique_ptr<RunReport> report;
    if (arguments.Has(QStringLiteral("--report"))) {
        report = std::make_unique<RunReport>(arguments.Value(QStringLiteral("--report")));
    }
    ZTBatchDocument job;
    const int problems = BuildJob(job, arguments, savedJob, inputs);
    const bool isResumed = arguments.Has(QStringLiteral("--resume"));
    Journal journal = isResumed ? ResumedJournal(job, IsJobGiven(arguments)) : NewJournal(job);

    const RunDisplay::Detail detail = DetailOf(arguments);
    const bool isQuiet = detail == RunDisplay::Detail::Quiet;
    RunDisplay display(detail);
    EventWriter events;
    RunSummary summary;
    QVector<RunObserver*> observers{&display};
    if (arguments.Has(QStringLiteral("--json"))) {
        observers.append(&events);
    }
    if (report) {
        observers.append(report.get());
    }
    if (!isQuiet) {
        observers.append(&summary);
    }

    const PrivateTempFolder temporary;
    if (!temporary.Error().isEmpty()) {
        WriteErrorLine(QStringLiteral("velkora-batch: no temporary folder can be made: %1. TMPDIR names another place.")
                           .arg(temporary.Error()));
        return ExitCode::ServerLost;
    }
    if (IsPipeTaken()) {
        WriteErrorLine(
            QStringLiteral("velkora-batch: another batch server is at work, and the system has one pipe for it; "
                           "try again when that run is over."));
        return ExitCode::ServerLost;
    }
    RunEnd end;
    {
        const ManagerInstance manager(settingsFolder);
        PolicyValues policies = isResumed ? journal.policies : PoliciesOfManager();
        ApplyPolicies(arguments, policies);
        CheckPolicies(policies, settingsFolder);
        if (!Terminal::IsInputTerminal() || !Terminal::IsErrorTerminal()) {
            ReplaceQuestions(policies, isQuiet);
        }
        const bool isWritten = journal.file->IsHeld() && (isResumed || journal.Begin(policies));
        const QString journalPath = isWritten ? journal.file->Path() : QString();
        qputenv(BatchJob::journalVariable, QFile::encodeName(journalPath));
        RunController controller(journal.document, InputsOf(job), job.GetOutputSettings()->GetPath(), policies,
                                 observers, journalPath);
        end = Execute(controller, display);
    }
    const bool isWithoutWorkers = end.jobErrorCode == ZTBatchMessage::NoAdjustmentManager;
    const bool isRefused = end.jobErrorCode != ZTBatchMessage::NoError && !isWithoutWorkers;
    const bool isFinished = end.NotProcessed() == 0 || isRefused;
    if (isFinished) {
        journal.file->Remove();
    } else if (journal.file->Exists() && !isQuiet) {
        WriteErrorLine(
            QStringLiteral("This goes on from here: velkora-batch run --resume -o %1").arg(Quoted(end.outputFolder)));
    }
    if (isWithoutWorkers) {
        WriteErrorLine(QStringLiteral("velkora-batch: no worker works; VelkoraBatchWorker belongs beside %1.")
                           .arg(QCoreApplication::applicationFilePath()));
    } else if (isRefused) {
        WriteErrorLine(QStringLiteral("velkora-batch: %1").arg(end.jobError));
    }
    if (end.isServerLost && end.written + end.skipped + end.failed == 0) {
        WriteErrorLine(
            RunController::IsServerThere()
                ? QStringLiteral(
                      "velkora-batch: the server ends before it has done anything; what it had to say stands "
                      "above.")
                : QStringLiteral("velkora-batch: no server works; VelkoraBatchProcessing belongs beside %1.")
                      .arg(QCoreApplication::applicationFilePath()));
    }
    if (report && !report->Error().isEmpty()) {
        WriteErrorLine(QStringLiteral("velkora-batch: %1").arg(report->Error()));
        return std::max(CodeOf(end), ExitCode::Incomplete);
    }
    const ExitCode code = CodeOf(end);
    return code == ExitCode::Done && problems > 0 ? ExitCode::Incomplete : code;
}

} // namespace BatchCli
