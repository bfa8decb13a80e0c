#include "RunMessages.h"

#include "hosts/cli/options/PolicyOptions.h"
#include "hosts/cli/terminal/Console.h"
#include "job/plan/SharedNames.h"
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

QString ResumeCommand(const QString& outputFolder)
{
    return QStringLiteral("velkora-batch run --resume -o ") + Quoted(outputFolder);
}

} // namespace

void TellOfInterruptedRun()
{
    Tell(QStringLiteral("an earlier run of this job was interrupted; this run starts anew. Use --resume to continue "
                        "an interrupted run."));
}

void TellOfOtherRuns(const QString& outputFolder, int count)
{
    const QString text = count == 1
                             ? QStringLiteral("1 other run was interrupted in %1; it can still be resumed: %2")
                             : QStringLiteral("%3 other runs were interrupted in %1; they can still be resumed: %2");
    const QString told = text.arg(outputFolder, ResumeCommand(outputFolder));
    Tell(count == 1 ? told : told.arg(count));
}

void TellIgnoredJournals(const InterruptedRuns& runs)
{
    for (const QString& text : runs.Ignored()) {
        Tell(text + QLatin1Char('.'));
    }
}

void TellMissingJournal(const JournaledJob& job)
{
    if (!job.Problem().isEmpty()) {
        Tell(QStringLiteral("should it be interrupted, the run cannot be resumed: %1.").arg(job.Problem()));
    }
}

void TellObstacle(const JobRun& run)
{
    switch (run.WhatPrevents()) {
    case JobRun::Obstacle::NoTemporaryFolder:
        Tell(QStringLiteral("no temporary folder can be made: %1. Set TMPDIR to another folder.")
                 .arg(run.TemporaryFolderError()));
        break;
    case JobRun::Obstacle::PipeInUse:
        Tell(QStringLiteral("another batch server is running, and this system has only one pipe for it; try again "
                            "when that run is over."));
        break;
    case JobRun::Obstacle::None:
        break;
    }
}

void TellHowToResume(const JournaledJob& job, const RunEnd& end, bool isQuiet)
{
    if (!end.IsFinished() && job.CanBeResumed() && !isQuiet) {
        WriteErrorLine(QStringLiteral("To resume: ") + ResumeCommand(end.outputFolder));
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
    Tell(QStringLiteral("without a terminal nobody could be asked: %1 left out. %2 %3 such cases.")
             .arg(files == 1 ? QStringLiteral("1 picture was") : QStringLiteral("%1 pictures were").arg(files),
                  options.join(QStringLiteral(" and ")),
                  options.size() == 1 ? QStringLiteral("decides") : QStringLiteral("decide")));
}

void TellKeptSources(const RunPolicies& policies, const RunEnd& end)
{
    const int naming = policies.values[std::size_t(PolicyKind::Naming)];
    if (end.renamed == 0 || PolicyWord(PolicyKind::Naming, naming) != QLatin1String("overwrite")) {
        return;
    }
    const bool isInPlace = BatchProtocol::ServerLimits::FromEnvironment().replacesOriginals;
    Tell(QStringLiteral("%1, because %2 %3.")
             .arg(end.renamed == 1 ? QStringLiteral("1 result was renamed")
                                   : QStringLiteral("%1 results were renamed").arg(end.renamed),
                  isInPlace ? QStringLiteral("other sources of the job") : QStringLiteral("originals"),
                  isInPlace ? QStringLiteral("have such names")
                            : QStringLiteral("have their names; --in-place replaces originals")));
}

void TellTroubleOfServer(const RunEnd& end)
{
    const QString program = QCoreApplication::applicationFilePath();
    const RunOutcome outcome = end.Outcome();
    if (outcome == RunOutcome::NoWorkers) {
        Tell(QStringLiteral("no worker can be started; VelkoraBatchWorker belongs beside %1.").arg(program));
    } else if (outcome == RunOutcome::Refused) {
        if (end.jobErrorCode != ZTBatchMessage::FileNameAlreadyExists) {
            Tell(end.jobError);
        } else {
            const QStringList lines = LinesOfSharedNames(end.jobError);
            Tell(lines.first() + QLatin1Char(':'));
            for (const QString& line : lines.mid(1)) {
                WriteErrorLine(QStringLiteral("    ") + line);
            }
            WriteErrorLine(
                QStringLiteral("No picture was processed. --structure input keeps the folders of the inputs, "
                               "--on-name-exists rename numbers such names, and another --name, --prefix or "
                               "--suffix tells them apart."));
        }
    }
    if (end.isServerLost && end.Processed() == 0) {
        Tell(RunController::IsServerInstalled()
                 ? QStringLiteral("the server ended before it had processed anything; see its messages above.")
                 : QStringLiteral("the server cannot be started; VelkoraBatchProcessing belongs beside %1.")
                       .arg(program));
    }
}

} // namespace BatchCli
