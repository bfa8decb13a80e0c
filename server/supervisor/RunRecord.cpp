// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunRecord.h"

#include "job/plan/FactsLine.h"
#include "job/plan/TroubleLine.h"
#include "job/plan/UnchangedLine.h"
#include "job/plan/WarningLine.h"
#include "server/protocol/TaskFailure.h"
#include "server/protocol/WorkerMessages.h"

#include <QDateTime>
#include <QFileInfo>

using namespace BatchJob;
using namespace BatchProtocol;

using BatchJob::Action;

namespace BatchSupervisor {

namespace {

using Kind = JournalState::Result::Kind;

/// What is known of the result `output`: how many bytes it has says the disk, the rest `report`.
PictureFacts FactsOf(const QString& output, const Report& report)
{
    PictureFacts facts = CheckedFacts(report);
    const QFileInfo file(output);
    facts.outputBytes = file.exists() ? file.size() : -1;
    return facts;
}

} // namespace

RunRecord::RunRecord(const HostLink& host, const QString& journalPath)
    : host(host)
    , journalPath(journalPath)
{
}

void RunRecord::Continue(RunJournal&& earlier, std::unique_ptr<QLockFile> lock)
{
    journal = std::move(earlier);
    journal.onFailure = [this](const QString& problem) { TellJournalFailure(problem); };
    journalLock = std::move(lock);
}

void RunRecord::CountEarlier(const JournalState::Result& result)
{
    switch (result.kind) {
    case Kind::Written:
        ++written;
        break;
    case Kind::Unchanged:
        ++unchanged;
        break;
    case Kind::Skipped:
        ++skipped;
        break;
    case Kind::Failed:
        ++failed;
        break;
    }
}

void RunRecord::AddFound(int file, const QString& input, const QString& output)
{
    const PictureFacts facts = FactsOf(output, Report());
    journal.Settle(file, {Kind::Written, output, 0, {}, {}, facts, {}, StampFor(output)});
    LogFacts(input, facts);
    host.Tell<ZTBatchMessage::MsgFileProcessed>(input, output);
}

void RunRecord::AddUnchanged(const QVector<QPair<int, JournalState::Result>>& results)
{
    if (results.isEmpty()) {
        return;
    }
    journal.SettleAll(results);
    unchanged += results.size();
    host.Log(UnchangedLine::Of(results.size()));
}

void RunRecord::AddWritten(const RunPlan& plan, int file, const Report& report)
{
    const OutputPlan& names = plan.Names();
    const QString input = names.Input(file);
    const QString output = names.Output(file);
    const Warnings warnings = CheckedWarnings(report);
    if (plan.HasOtherFormat(file)) {
        TellDeviation(names, file, Action::WrittenInAnotherFormat, ZTBatchMessage::UnsupportedOutputFormat,
                      names.Format(file)->name);
    }
    if (plan.IsOverwriting(file)) {
        TellDeviation(names, file, Action::ExistingFileOverwritten, ZTBatchMessage::FileNameAlreadyExists, output);
    } else if (plan.IsRenamed(file)) {
        TellDeviation(names, file, Action::WrittenUnderAnotherName, ZTBatchMessage::FileNameAlreadyExists, output);
    }
    const PictureFacts facts = FactsOf(output, report);
    journal.Settle(file,
                   {Kind::Written, output, 0, {}, warnings, facts, QDateTime::currentDateTimeUtc(), StampFor(output)});
    for (const Warning& warning : warnings) {
        host.Log(WarningLine{input, warning}.Text());
    }
    LogFacts(input, facts);
    host.Tell<ZTBatchMessage::MsgFileProcessed>(input, output);
    ++written;
}

void RunRecord::AddLeftOut(const OutputPlan& names, int file, const Trouble& trouble, Action action)
{
    TellTrouble(names, file, trouble, action);
    const bool isSkipped = CountsAsSkipped(action, trouble.code);
    ++(isSkipped ? skipped : failed);
    if (action != Action::RunStopped) { // A resumed run tries what a stop has left.
        journal.Settle(file, {isSkipped ? Kind::Skipped : Kind::Failed,
                              names.Output(file),
                              trouble.code,
                              trouble.reason,
                              {},
                              {},
                              QDateTime::currentDateTimeUtc(),
                              {}});
    }
}

void RunRecord::TellTrouble(const OutputPlan& names, int file, const Trouble& trouble, Action action) const
{
    host.Log(TroubleLine{names.Input(file), trouble.reason, action, trouble.kind}.Text());
    host.Tell<ZTBatchMessage::MsgError>(names.Input(file), names.Output(file), int(action), trouble.code);
}

void RunRecord::TellProgress() const
{
    host.Tell<ZTBatchMessage::MsgProgress>(FilesDone());
}

void RunRecord::LogTotals(const QString& how, int files) const
{
    const int left = files - FilesDone();
    QString text =
        QStringLiteral("%1: %2 written, %3 skipped, %4 failed").arg(how).arg(written).arg(skipped).arg(failed);
    if (unchanged > 0) {
        text += QStringLiteral(", %1 unchanged").arg(unchanged);
    }
    if (left > 0) {
        text += QStringLiteral(", %1 not processed").arg(left);
    }
    host.Log(text + QLatin1Char('.'));
}

/// On standard error too, which hosts show to their users.
void RunRecord::TellJournalFailure(const QString& problem) const
{
    const QString text = QStringLiteral("The journal %1 cannot be written: %2. The run goes on, but if it is "
                                        "interrupted now, the run cannot be resumed safely.")
                             .arg(journalPath, problem);
    host.Log(text);
    qWarning("%s", qUtf8Printable(text));
}

/// Reports that a result was not written as planned; see ResultLine.
void RunRecord::TellDeviation(const OutputPlan& names, int file, Action action, ZTBatchMessage::Error code,
                              const QString& result) const
{
    host.Log(ResultLine{names.Input(file), result, action}.Text());
    host.Tell<ZTBatchMessage::MsgError>(names.Input(file), names.Output(file), int(action), int(code));
}

FileStamp RunRecord::StampFor(const QString& output) const
{
    return stampsResults ? StampOfResult(output).value_or(FileStamp()) : FileStamp();
}

void RunRecord::LogFacts(const QString& input, const PictureFacts& facts) const
{
    const QString line = FactsLine{input, facts}.Text();
    if (!line.isEmpty()) {
        host.Log(line);
    }
}

} // namespace BatchSupervisor
