#include "RunSummary.h"

#include "Console.h"
#include "ProgressText.h"

#include "job/values/VisibleText.h"

#include "ZTBatchMessage.h"

#include <QFileInfo>
#include <QMap>

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

QString Row(const QString& word, int count, const QString& more, Colour colour)
{
    const QString head = Coloured(word.leftJustified(14), count > 0 ? colour : Colour::Green);
    return head + QStringLiteral("%1%2\n").arg(count, 7).arg(more);
}

/// What all failures with `errorCode` have in common. The strict ones have none.
QString DescriptionOf(int errorCode)
{
    if (errorCode == ZTBatchMessage::NoError) {
        return QStringLiteral("Written with a warning");
    }
    QString text = ZTBatchMessage::ErrorDescription(ZTBatchMessage::Error(errorCode));
    return text.endsWith(QLatin1Char('.')) ? text.chopped(1) : text;
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
    const QString hint = QStringLiteral("--verbose names them, --include takes them.");
    return count == 1 ? QStringLiteral("1 file with another extension was left out, but begins like a picture; ") + hint
                      : QStringLiteral("%1 files with other extensions were left out, but begin like pictures; %2")
                            .arg(QString::number(count), hint);
}

void RunSummary::OnStart(const RunInputs& inputs, const QString&)
{
    leftOut = inputs.leftOut.size();
}

void RunSummary::OnEarlierResult(const FileResult& result)
{
    OnResult(result, 0, 0);
    if (result.kind == FileResult::Kind::Written && !QFileInfo::exists(result.output)) {
        gone.append(result.output);
    }
}

void RunSummary::OnResult(const FileResult& result, int, int)
{
    if (result.kind != FileResult::Kind::Written) {
        unwritten.append(result);
    }
    for (const Warning& warning : result.warnings) {
        if (!examples.contains(warning.kind)) {
            examples.insert(warning.kind, QStringLiteral("%1: %2").arg(result.input, warning.text));
        }
    }
}

void RunSummary::OnEnd(const RunEnd& end)
{
    if (end.Outcome() == RunOutcome::Refused) {
        return; // Nothing was done; the command says why.
    }
    if (end.isCancelled) {
        WriteError(QStringLiteral("Cancelled.\n"));
    }
    const double rate = end.seconds > 0 ? end.written / end.seconds : 0;
    WriteError(Row(QStringLiteral("Written"), end.written,
                   QStringLiteral("  to %1, in %2 (%3 a second)")
                       .arg(VisibleText(end.outputFolder), TimeTaken(end.seconds), QString::number(rate, 'f', 1)),
                   Colour::Green));
    if (!gone.isEmpty()) {
        WriteErrorLine(QStringLiteral("    %1 of them, written before the interruption, %2 missing now: %3")
                           .arg(QString::number(gone.size()),
                                gone.size() == 1 ? QStringLiteral("is") : QStringLiteral("are"), Listed(gone)));
    }
    Write(FileResult::Kind::Skipped, end.skipped);
    Write(FileResult::Kind::Failed, end.failed);
    if (end.NotProcessed() > 0) {
        WriteError(Row(QStringLiteral("Not processed"), end.NotProcessed(), QString(), Colour::Red));
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
        kinds.append(QStringLiteral("%1 \u00d7 %2").arg(QString::number(*it), WarningTitle(it.key())));
    }
    const QString head = count == 1 ? QStringLiteral("1 warning: ") : QStringLiteral("%1 warnings: ").arg(count);
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
    WriteError(Row(isSkipped ? QStringLiteral("Skipped") : QStringLiteral("Failed"), count, more,
                   isSkipped ? Colour::Yellow : Colour::Red));
    int lines = 0;
    for (const FileResult& result : unwritten) {
        if (result.kind == kind && lines++ < mostLines) {
            WriteErrorLine(QStringLiteral("    %1: %2").arg(result.input, result.reason));
        }
    }
    if (lines > mostLines) {
        WriteError(QStringLiteral("    and %1 more; use --report FILE for all\n").arg(lines - mostLines));
    }
}

} // namespace BatchCli
