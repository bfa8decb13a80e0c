#include "Program.h"

#include "Catalogues.h"
#include "CommandLine.h"
#include "Console.h"
#include "JobBuilder.h"
#include "JobFile.h"
#include "JobListing.h"
#include "UsageError.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"

#include <JobCheck.h>

#include <cstdlib>

namespace BatchCli {

namespace {

const QString quiet = QStringLiteral("--quiet");
const QString json = QStringLiteral("--json");

/// What holds for every command that writes or runs a job: the server would accept it.
void CheckJob(const ZTBatchDocument& job)
{
    if (job.GetInputModel()->GetFileNodesCount() == 0) {
        throw UsageError{QStringLiteral("there is no picture: name files, or folders with files that can be read")};
    }
    const BatchServer::CheckedSettings checked = BatchServer::CheckSettings(job);
    if (!checked.IsAccepted()) {
        const bool lacksFolder = job.GetOutputSettings()->GetPath().isEmpty();
        throw UsageError{lacksFolder ? QStringLiteral("where do results go? --output DIR says it")
                                     : checked.refusal.message};
    }
}

ExitCode Create(const ParsedArguments& arguments)
{
    QStringList inputs = arguments.inputs;
    if (inputs.isEmpty()) {
        throw UsageError{
            QStringLiteral("the name of the job's file is missing: velkora-batch create JOB.xml INPUT...")};
    }
    const QString path = inputs.takeFirst();
    if (path != QLatin1String("-") && !path.endsWith(QLatin1String(".xml"), Qt::CaseInsensitive)) {
        throw UsageError{
            QStringLiteral("the job's file comes first and its name ends with .xml, unlike \"%1\"").arg(path)};
    }
    ZTBatchDocument job;
    const int problems = BuildJob(job, arguments, arguments.Value(QStringLiteral("--from")), inputs);
    CheckJob(job);
    SaveJob(job, path, arguments.Has(QStringLiteral("--force")));
    if (!arguments.Has(quiet) && path != QLatin1String("-")) {
        const int count = job.GetInputModel()->GetFileNodesCount();
        WriteError(QStringLiteral("%1: a job of %2 %3.\n")
                       .arg(path)
                       .arg(count)
                       .arg(count == 1 ? QStringLiteral("picture") : QStringLiteral("pictures")));
    }
    return problems == 0 ? ExitCode::Done : ExitCode::Incomplete;
}

ExitCode Show(const ParsedArguments& arguments)
{
    QStringList inputs = arguments.inputs;
    const QString savedJob = TakeSavedJob(inputs);
    ZTBatchDocument job;
    const int problems = BuildJob(job, arguments, savedJob, inputs);
    WriteOut(JobListing(job));
    return problems == 0 ? ExitCode::Done : ExitCode::Incomplete;
}

ExitCode ListEffects(const ParsedArguments& arguments)
{
    WriteOut(arguments.Has(json) ? EffectJson(arguments.inputs) : EffectListing(arguments.inputs));
    return ExitCode::Done;
}

ExitCode ListFormats(const ParsedArguments& arguments)
{
    WriteOut(arguments.Has(json) ? FormatJson(arguments.inputs) : FormatListing(arguments.inputs));
    return ExitCode::Done;
}

bool isVerbose = false;

/// The library's debug lines are for a search for faults only.
void HandleMessage(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type != QtDebugMsg || isVerbose) {
        WriteError(text + QLatin1Char('\n'));
    }
    if (type == QtFatalMsg) {
        std::abort();
    }
}

using Command = ExitCode (*)(const ParsedArguments&);

const QHash<QString, Command>& CommandFunctions()
{
    static const QHash<QString, Command> functions{{QStringLiteral("create"), &Create},
                                                   {QStringLiteral("show"), &Show},
                                                   {QStringLiteral("effects"), &ListEffects},
                                                   {QStringLiteral("formats"), &ListFormats}};
    return functions;
}

} // namespace

ExitCode RunProgram(const QStringList& arguments)
{
    qInstallMessageHandler(&HandleMessage);
    try {
        const ParsedArguments parsed = ParseArguments(arguments);
        isVerbose = parsed.Has(QStringLiteral("--verbose"));
        if (!parsed.message.isEmpty()) {
            WriteOut(parsed.message);
            return ExitCode::Done;
        }
        return CommandFunctions().value(parsed.command)(parsed);
    } catch (const UsageError& error) {
        return ReportUsageError(error.text);
    }
}

ExitCode ReportUsageError(const QString& text)
{
    const QString end = text.endsWith(QLatin1Char('?')) ? QString() : QStringLiteral(".");
    WriteError(QStringLiteral("velkora-batch: %1%2\n").arg(text, end));
    return ExitCode::Usage;
}

} // namespace BatchCli
