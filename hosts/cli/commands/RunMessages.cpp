#include "RunMessages.h"

#include "hosts/cli/terminal/Console.h"

#include <QCoreApplication>
#include <QRegularExpression>

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

} // namespace

void TellOfInterruptedRun()
{
    Tell(QStringLiteral("an earlier run of this job was interrupted; this run starts anew. Use --resume to continue "
                        "an interrupted run."));
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
        WriteErrorLine(QStringLiteral("To resume: velkora-batch run --resume -o %1").arg(Quoted(end.outputFolder)));
    }
}

void TellTroubleOfServer(const RunEnd& end)
{
    const QString program = QCoreApplication::applicationFilePath();
    const RunOutcome outcome = end.Outcome();
    if (outcome == RunOutcome::NoWorkers) {
        Tell(QStringLiteral("no worker can be started; VelkoraBatchWorker belongs beside %1.").arg(program));
    } else if (outcome == RunOutcome::Refused) {
        Tell(end.jobError);
    }
    if (end.isServerLost && end.Processed() == 0) {
        Tell(RunController::IsServerInstalled()
                 ? QStringLiteral("the server ended before it had processed anything; see its messages above.")
                 : QStringLiteral("the server cannot be started; VelkoraBatchProcessing belongs beside %1.")
                       .arg(program));
    }
}

} // namespace BatchCli
