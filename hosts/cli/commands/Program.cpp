// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Program.h"

#include "Catalogues.h"
#include "CommandFunctions.h"

#include "hosts/cli/terminal/Console.h"
#include "hosts/common/Language.h"
#include "hosts/common/RequestError.h"
#include "hosts/common/options/Words.h"
#include "job/journal/LockFiles.h"

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
    if (BatchJob::IsWarningOfLocks(text)) {
        return;
    }
    if (type != QtDebugMsg || isVerbose) {
        WriteErrorLine(type == QtDebugMsg ? text : Translated(text));
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
        {QStringLiteral("watch"), &WatchFolder},   {QStringLiteral("presets"), &KeepPresets},
        {QStringLiteral("split"), &SplitJob},      {QStringLiteral("collect"), &CollectParts},
        {QStringLiteral("effects"), &ListEffects}, {QStringLiteral("formats"), &ListFormats}};
    return functions;
}

/// `code`, or that of an incomplete command when standard output could not be written.
ExitCode WithOutput(ExitCode code)
{
    if (OutputError().isEmpty()) {
        return code;
    }
    WriteErrorLine(QStringLiteral("velkora-batch: ") +
                   Messages::tr("standard output cannot be written: %1.").arg(Translated(OutputError())));
    return std::max(code, ExitCode::Incomplete);
}

/// `text`, and what the user can do about an error of this kind, in terms of the command line.
QString WithRemedy(const QString& text, RequestError::Kind kind)
{
    switch (kind) {
    case RequestError::Kind::NoInputs:
    case RequestError::Kind::NoPictures:
        return Messages::tr("%1: name files, or folders with pictures that can be read").arg(text);
    case RequestError::Kind::NoOutputFolder:
        return Messages::tr("%1: use --output DIR").arg(text);
    case RequestError::Kind::SavedJobAmongInputs:
        return Messages::tr("%1. Saved jobs may be given: as the first arguments of run and plan, one as the first "
                            "argument of show, or to create with --from")
            .arg(text);
    case RequestError::Kind::FileExists:
        return Messages::tr("%1; use --force to replace it").arg(text);
    case RequestError::Kind::OtherRunInterrupted:
        return Messages::tr("%1. Use --resume with --output alone to resume that run, or run this job without "
                            "--resume")
            .arg(text);
    case RequestError::Kind::SeveralRunsInterrupted:
    case RequestError::Kind::NoSuchRun:
        return Messages::tr("%1; use --resume --run NAME with one of these names").arg(text);
    case RequestError::Kind::NothingMatches:
    case RequestError::Kind::NothingToResume:
    case RequestError::Kind::AlreadyRunning:
    case RequestError::Kind::Other:
        break;
    }
    return text;
}

ExitCode CodeFor(RequestError::Kind kind)
{
    switch (kind) {
    case RequestError::Kind::NoPictures:
    case RequestError::Kind::NothingMatches:
        return ExitCode::NoPictures;
    case RequestError::Kind::AlreadyRunning:
        return ExitCode::AlreadyRunning;
    case RequestError::Kind::NothingToResume:
        return ExitCode::NothingToResume;
    default:
        return ExitCode::Usage;
    }
}

} // namespace

ExitCode RunProgram(const QStringList& arguments)
{
    qInstallMessageHandler(&HandleMessage);
    if (arguments.isEmpty()) {
        WriteError(ShortHelp(Terminal::Columns()));
        return ExitCode::Usage;
    }
    try {
        const ParsedArguments parsed = ParseArguments(arguments, Terminal::OutputColumns());
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
    const QString text = WithRemedy(Translated(error.text), error.kind);
    WriteErrorLine(QStringLiteral("velkora-batch: ") +
                   (error.choices.isEmpty() ? WithFullStop(text) : Messages::tr("%1:").arg(text)));
    for (const QString& choice : error.choices) {
        WriteErrorLine(QStringLiteral("    ") + Translated(choice));
    }
    return CodeFor(error.kind);
}

} // namespace BatchCli
