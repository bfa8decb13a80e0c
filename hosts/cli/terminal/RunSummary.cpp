// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunSummary.h"

#include "Console.h"
#include "ProgressText.h"

#include "hosts/common/DurationText.h"
#include "hosts/common/Language.h"

#include "job/values/VisibleText.h"

#include "ZTBatchMessage.h"

#include <QFileInfo>
#include <QMap>

#include <algorithm>

using namespace BatchJob;
using namespace BatchHost;

namespace BatchCli {

namespace {

/// The report has all of them.
constexpr int mostLines = 20;

enum class Colour { Green = 32, Yellow = 33, Red = 31 };

QString Coloured(const QString& text, Colour colour)
{
    const bool isWanted = Terminal::IsErrorTerminal() && qEnvironmentVariableIsEmpty("NO_COLOR") &&
                          qEnvironmentVariable("TERM") != QLatin1String("dumb");
    return isWanted ? QStringLiteral("\033[%1m%2\033[0m").arg(int(colour)).arg(text) : text;
}

/// Of the column in front of the counts.
int WidthOfWords()
{
    int width = 13;
    for (const QString& word : {Messages::tr("Written"), Messages::tr("Unchanged"), Messages::tr("Skipped"),
                                Messages::tr("Failed"), Messages::tr("Not processed")}) {
        width = std::max(width, Terminal::WidthOf(word));
    }
    return width + 1;
}

QString Row(const QString& word, int count, const QString& more, Colour colour)
{
    const QString padded = word + QString(WidthOfWords() - Terminal::WidthOf(word), QLatin1Char(' '));
    const QString head = Coloured(padded, count > 0 ? colour : Colour::Green);
    return head + QStringLiteral("%1%2\n").arg(count, 7).arg(more);
}

/// What all failures with `errorCode` have in common. The strict ones have none.
QString DescriptionOf(int errorCode)
{
    if (errorCode == ZTBatchMessage::NoError) {
        return Messages::tr("Written with a warning");
    }
    const QString text = Translated(ZTBatchMessage::ErrorDescription(ZTBatchMessage::Error(errorCode)));
    const bool isSentence = text.endsWith(QLatin1Char('.')) || text.endsWith(QChar(0x3002)); // an ideographic full stop
    return isSentence ? text.chopped(1) : text;
}

QString Listed(const QStringList& paths)
{
    constexpr int most = 3;
    const QString first = paths.mid(0, most).join(QStringLiteral(", "));
    return paths.size() > most ? first + QStringLiteral(", ...") : first;
}

/// The duration of a run, with tenths of a second below one minute.
QString TimeTaken(double seconds)
{
    constexpr double minute = 60;
    return seconds < minute ? QStringLiteral("%1 s").arg(seconds, 0, 'f', 1) : DurationText(seconds);
}

} // namespace

QString LeftOutText(int count)
{
    return count == 1 ? Messages::tr("1 file with another extension was left out, but begins like a picture; --verbose "
                                     "names them, --include takes them.")
                      : Messages::tr("%1 files with other extensions were left out, but begin like pictures; --verbose "
                                     "names them, --include takes them.")
                            .arg(count);
}

void RunSummary::OnStart(const RunInputs& inputs, const QString&)
{
    leftOut = inputs.leftOut.size();
}

void RunSummary::OnEarlierResult(const FileResult& result)
{
    OnResult(result, 0, 0);
    if (HasResult(result.kind) && !QFileInfo::exists(result.output)) {
        gone.append(result.output);
    }
}

void RunSummary::OnResult(const FileResult& result, int, int)
{
    if (!HasResult(result.kind)) {
        unwritten.append(result);
    }
    for (const Warning& warning : result.warnings) {
        if (!examples.contains(warning.kind)) {
            examples.insert(warning.kind, QStringLiteral("%1: %2").arg(result.input, Translated(warning.text)));
        }
    }
}

void RunSummary::OnEnd(const RunEnd& end)
{
    if (end.Outcome() == RunOutcome::Refused) {
        return; // Nothing was done; the command says why.
    }
    if (end.isCancelled) {
        WriteErrorLine(Messages::tr("Cancelled."));
    }
    const double rate = end.seconds > 0 ? end.written / end.seconds : 0;
    WriteError(Row(Messages::tr("Written"), end.written,
                   QStringLiteral("  ") +
                       Messages::tr("to %1, in %2 (%3 a second)")
                           .arg(VisibleText(end.outputFolder), TimeTaken(end.seconds), QString::number(rate, 'f', 1)),
                   Colour::Green));
    if (end.unchanged > 0) {
        WriteError(Row(Messages::tr("Unchanged"), end.unchanged, QString(), Colour::Green));
    }
    if (!gone.isEmpty()) {
        const QString text = gone.size() == 1
                                 ? Messages::tr("%1 of them, written before the interruption, is missing now: %2")
                                 : Messages::tr("%1 of them, written before the interruption, are missing now: %2");
        WriteErrorLine(QStringLiteral("    ") + text.arg(QString::number(gone.size()), Listed(gone)));
    }
    Write(FileResult::Kind::Skipped, end.skipped);
    Write(FileResult::Kind::Failed, end.failed);
    if (end.NotProcessed() > 0) {
        WriteError(Row(Messages::tr("Not processed"), end.NotProcessed(), QString(), Colour::Red));
    }
    WriteWarnings(end);
    if (leftOut > 0) {
        WriteErrorLine(LeftOutText(leftOut));
    }
}

/// "5 warnings: 3 × only the first page, 2 × metadata lost", then a line with an example for each kind.
void RunSummary::WriteWarnings(const RunEnd& end) const
{
    const int count = end.WarningCount();
    if (count == 0) {
        return;
    }
    QStringList kinds;
    for (auto it = end.warnings.begin(); it != end.warnings.end(); ++it) {
        kinds.append(QStringLiteral("%1 \u00d7 %2").arg(QString::number(*it), Translated(WarningTitle(it.key()))));
    }
    const QString head =
        (count == 1 ? Messages::tr("1 warning:") : Messages::tr("%1 warnings:").arg(count)) + QLatin1Char(' ');
    WriteError(Coloured(head, Colour::Yellow) + kinds.join(QStringLiteral(", ")) + QLatin1Char('\n'));
    for (const QString& example : examples) {
        WriteErrorLine(QStringLiteral("    ") + example);
    }
}

void RunSummary::Write(FileResult::Kind kind, int count) const
{
    const bool isSkipped = kind == FileResult::Kind::Skipped;
    QMap<int, int> byCode;
    for (const FileResult& result : unwritten) {
        byCode[result.errorCode] += result.kind == kind ? 1 : 0;
    }
    QStringList reasons;
    for (auto it = byCode.begin(); it != byCode.end(); ++it) {
        if (*it > 0) {
            reasons.append(QStringLiteral("%1: %2").arg(DescriptionOf(it.key())).arg(*it));
        }
    }
    const QString more = reasons.isEmpty() ? QString() : QStringLiteral("  ") + reasons.join(QStringLiteral("; "));
    WriteError(Row(isSkipped ? Messages::tr("Skipped") : Messages::tr("Failed"), count, more,
                   isSkipped ? Colour::Yellow : Colour::Red));
    int lines = 0;
    for (const FileResult& result : unwritten) {
        if (result.kind == kind && lines++ < mostLines) {
            WriteErrorLine(QStringLiteral("    %1: %2").arg(result.input, Translated(result.reason)));
        }
    }
    if (lines > mostLines) {
        WriteErrorLine(QStringLiteral("    ") +
                       Messages::tr("and %1 more; use --report FILE for all").arg(lines - mostLines));
    }
}

} // namespace BatchCli
