#include "Program.h"

#include "Catalogues.h"
#include "CommandFunctions.h"

#include "hosts/cli/terminal/Console.h"
#include "hosts/common/UsageError.h"

#include <algorithm>
#include <cstdlib>

using namespace BatchHost;

namespace BatchCli {

namespace {

const QString json = QStringLiteral("--json");

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
    static const QHash<QString, Command> functions{
        {QStringLiteral("create"), &CreateJob},    {QStringLiteral("show"), &ShowJob},
        {QStringLiteral("plan"), &PlanJob},        {QStringLiteral("run"), &RunJob},
        {QStringLiteral("effects"), &ListEffects}, {QStringLiteral("formats"), &ListFormats}};
    return functions;
}

/// The exit code of a command that would end with `code` if all that it wrote had arrived.
ExitCode WithOutput(ExitCode code)
{
    if (OutputError().isEmpty()) {
        return code;
    }
    WriteErrorLine(QStringLiteral("velkora-batch: standard output cannot be written: %1.").arg(OutputError()));
    return std::max(code, ExitCode::Incomplete);
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
            return WithOutput(ExitCode::Done);
        }
        return WithOutput(CommandFunctions().value(parsed.command)(parsed));
    } catch (const UsageError& error) {
        return ReportUsageError(error.text);
    }
}

ExitCode ReportUsageError(const QString& text)
{
    const bool isWhole = text.endsWith(QLatin1Char('?')) || text.endsWith(QLatin1Char('.'));
    const QString end = isWhole ? QString() : QStringLiteral(".");
    WriteErrorLine(QStringLiteral("velkora-batch: %1%2").arg(text, end));
    return ExitCode::Usage;
}

} // namespace BatchCli
