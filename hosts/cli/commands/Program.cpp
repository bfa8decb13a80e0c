#include "Program.h"

#include "Catalogues.h"
#include "CommandFunctions.h"

#include "hosts/cli/terminal/Console.h"
#include "hosts/common/Language.h"
#include "hosts/common/RequestError.h"

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

/// Debug lines of the library are printed with --verbose only.
void HandleMessage(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type != QtDebugMsg || isVerbose) {
        WriteErrorLine(text);
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

/// `code`, or that of an incomplete command when standard output could not be written.
ExitCode WithOutput(ExitCode code)
{
    if (OutputError().isEmpty()) {
        return code;
    }
    WriteErrorLine(QStringLiteral("velkora-batch: standard output cannot be written: %1.").arg(OutputError()));
    return std::max(code, ExitCode::Incomplete);
}

/// What the user can do about an error, in terms of the command line.
QString RemedyFor(RequestError::Kind kind)
{
    switch (kind) {
    case RequestError::Kind::NoPictures:
        return QStringLiteral(": name files, or folders with pictures that can be read");
    case RequestError::Kind::NoOutputFolder:
        return QStringLiteral(": use --output DIR");
    case RequestError::Kind::FileExists:
        return QStringLiteral("; use --force to replace it");
    case RequestError::Kind::OtherRunInterrupted:
        return QStringLiteral(". Use --resume with --output alone to resume that run, or run this job without "
                              "--resume");
    case RequestError::Kind::SeveralRunsInterrupted:
        return QStringLiteral("; use --resume with the inputs and options of the run to resume");
    case RequestError::Kind::Other:
        break;
    }
    return {};
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
    } catch (const RequestError& error) {
        return Report(error);
    }
}

ExitCode Report(const RequestError& error)
{
    const QString text = Translated(error.text) + RemedyFor(error.kind);
    const bool isWhole = text.endsWith(QLatin1Char('?')) || text.endsWith(QLatin1Char('.'));
    WriteErrorLine(QStringLiteral("velkora-batch: %1%2").arg(text, isWhole ? QString() : QStringLiteral(".")));
    return ExitCode::Usage;
}

} // namespace BatchCli
