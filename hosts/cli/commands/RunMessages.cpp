// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunMessages.h"

#include "hosts/cli/terminal/Console.h"
#include "hosts/common/Language.h"
#include "hosts/common/options/PolicyOptions.h"
#include "hosts/common/options/Words.h"
#include "job/plan/SharedNames.h"
#include "job/values/PathVariable.h"
#include "server/protocol/ServerLimits.h"

#include "ZTBatchMessage.h"

#include <QCoreApplication>
#include <QRegularExpression>

using namespace BatchJob;
using namespace BatchHost;

namespace BatchCli {

namespace {

void Tell(const QString& text)
{
    WriteErrorLine(QStringLiteral("velkora-batch: ") + text);
}

/// `path` in quotes where a shell needs them.
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

void List(const QStringList& paths)
{
    constexpr int most = 20;
    for (const QString& path : paths.mid(0, most)) {
        WriteErrorLine(QStringLiteral("    ") + path);
    }
    if (paths.size() > most) {
        WriteErrorLine(QStringLiteral("    ") + Messages::tr("and %1 more").arg(paths.size() - most));
    }
}

QString ResumeCommand(const QString& outputFolder)
{
    return QStringLiteral("velkora-batch run --resume -o ") + Quoted(outputFolder);
}

} // namespace

void TellOfInterruptedRun()
{
    Tell(Messages::tr("an earlier run of this job was interrupted; this run starts anew. Use --resume to continue "
                      "an interrupted run."));
}

void TellOfOtherRuns(const QString& outputFolder, int count)
{
    const QString text = count == 1
                             ? Messages::tr("1 other run was interrupted in %1; it can still be resumed: %2")
                             : Messages::tr("%3 other runs were interrupted in %1; they can still be resumed: %2");
    const QString told = text.arg(outputFolder, ResumeCommand(outputFolder));
    Tell(count == 1 ? told : told.arg(count));
}

void TellIgnoredJournals(const InterruptedRuns& runs)
{
    for (const QString& text : runs.Ignored()) {
        Tell(WithFullStop(Translated(text)));
    }
}

void TellMissingJournal(const JournaledJob& job)
{
    if (!job.Problem().isEmpty()) {
        Tell(Messages::tr("should it be interrupted, the run cannot be resumed: %1.").arg(Translated(job.Problem())));
    }
}

void TellTroubleOfRecord(const JournaledJob& job)
{
    const JournaledJob::UpdateEnd& update = job.EndOfUpdate();
    if (!update.damage.isEmpty()) {
        Tell(Messages::tr("the record of earlier results was ignored: %1. They were not recognised, and not replaced.")
                 .arg(Translated(update.damage)));
    }
    if (!update.problem.isEmpty()) {
        Tell(Messages::tr("the results of this update cannot be recorded: %1. The next one tries again.")
                 .arg(Translated(update.problem)));
    }
}

void TellOrphans(const QStringList& results)
{
    Tell(results.size() == 1
             ? Messages::tr("1 result is left from an input that is gone; --delete-orphans removes it:")
             : Messages::tr("%1 results are left from inputs that are gone; --delete-orphans removes them:")
                   .arg(results.size()));
    List(results);
}

void TellKeptOrphans(const QStringList& results)
{
    Tell(Messages::tr("not all inputs could be read, so nothing is removed of what seems to be left from inputs that "
                      "are gone:"));
    List(results);
}

void TellRemovedOrphans(int count, const QStringList& left)
{
    const int removed = count - left.size();
    Tell(removed == 1 ? Messages::tr("1 result was removed, because its input is gone.")
                      : Messages::tr("%1 results were removed, because their inputs are gone.").arg(removed));
    if (!left.isEmpty()) {
        Tell(Messages::tr("these results could not be removed:"));
        List(left);
    }
}

void TellObstacle(const JobRun& run)
{
    switch (run.WhatPrevents()) {
    case JobRun::Obstacle::NoTemporaryFolder:
        Tell(Messages::tr("no temporary folder can be made: %1. Set %2 to another folder.")
                 .arg(Translated(run.TemporaryFolderError()), QLatin1String(TemporaryFolderVariables().front())));
        break;
    case JobRun::Obstacle::PipeInUse:
        Tell(Messages::tr("another batch server is running, and this system has only one pipe for it; try again "
                          "when that run is over."));
        break;
    case JobRun::Obstacle::None:
        break;
    }
}

void TellHowToResume(const JournaledJob& job, const RunEnd& end, bool isQuiet)
{
    if (!end.IsFinished() && job.CanBeResumed() && !isQuiet) {
        WriteErrorLine(Messages::tr("To resume: %1").arg(ResumeCommand(end.outputFolder)));
    }
}

void TellUnasked(const RunPolicies& policies, const RunEnd& end)
{
    int files = 0;
    QStringList options;
    for (const PolicyKind kind : policies.unasked) {
        const int ofKind = end.unwritten.value(kind) - end.unwrittenBefore.value(kind);
        if (ofKind > 0) {
            files += ofKind;
            options.append(PolicyOption(kind));
        }
    }
    if (files == 0) {
        return;
    }
    const QString left =
        files == 1 ? Messages::tr("without a terminal nobody could be asked: 1 picture was left out.")
                   : Messages::tr("without a terminal nobody could be asked: %1 pictures were left out.").arg(files);
    const QString last = options.takeLast();
    const QString remedy =
        options.isEmpty() ? Messages::tr("%1 decides such cases.").arg(last)
                          : Messages::tr("%1 and %2 decide such cases.").arg(options.join(QStringLiteral(", ")), last);
    Tell(left + QLatin1Char(' ') + remedy);
}

void TellKeptSources(const RunPolicies& policies, const RunEnd& end)
{
    const int naming = policies.values[std::size_t(PolicyKind::Naming)];
    if (end.renamed == 0 || PolicyWord(PolicyKind::Naming, naming) != QLatin1String("overwrite")) {
        return;
    }
    const bool isInPlace = BatchProtocol::ServerLimits::FromEnvironment().replacesOriginals;
    if (isInPlace) {
        Tell(end.renamed == 1
                 ? Messages::tr("1 result was renamed, because other sources of the job have such names.")
                 : Messages::tr("%1 results were renamed, because other sources of the job have such names.")
                       .arg(end.renamed));
    } else {
        Tell(end.renamed == 1 ? Messages::tr("1 result was renamed, because originals have their names; --in-place "
                                             "replaces originals.")
                              : Messages::tr("%1 results were renamed, because originals have their names; --in-place "
                                             "replaces originals.")
                                    .arg(end.renamed));
    }
}

void TellTroubleOfServer(const RunEnd& end)
{
    const QString program = QCoreApplication::applicationFilePath();
    const RunOutcome outcome = end.Outcome();
    if (outcome == RunOutcome::NoWorkers) {
        Tell(Messages::tr("no worker can be started; VelkoraBatchWorker belongs beside %1.").arg(program));
    } else if (outcome == RunOutcome::Refused) {
        if (end.jobErrorCode != ZTBatchMessage::FileNameAlreadyExists) {
            Tell(Translated(end.jobError));
        } else {
            const QStringList lines = LinesOfSharedNames(end.jobError);
            Tell(Messages::tr("%1:").arg(Translated(lines.first())));
            for (const QString& line : lines.mid(1)) {
                WriteErrorLine(QStringLiteral("    ") + Translated(line));
            }
            WriteErrorLine(Messages::tr("No picture was processed. --structure input keeps the folders of the inputs, "
                                        "--on-name-exists rename numbers such names, and another --name, --prefix or "
                                        "--suffix tells them apart."));
        }
    }
    if (end.isServerLost && end.Processed() == 0) {
        Tell(
            RunController::IsServerInstalled()
                ? Messages::tr("the server ended before it had processed anything; see its messages above.")
                : Messages::tr("the server cannot be started; VelkoraBatchProcessing belongs beside %1.").arg(program));
    }
}

} // namespace BatchCli
