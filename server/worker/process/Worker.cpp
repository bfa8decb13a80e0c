#include "Worker.h"

#include "Confinement.h"
#include "FileProbe.h"
#include "ImagingLibrary.h"
#include "PictureMaker.h"

#include "server/worker/pixels/PictureFailure.h"

#include <cerrno>
#include <new>
#include <unistd.h>

using namespace BatchProtocol;

namespace BatchWorker {

namespace {

Report ReportOf(const PictureFailure& problem)
{
    Report report;
    report.failure = problem.failure;
    report.errorCode = problem.error;
    report.reason = problem.reason;
    report.nearestFormat = problem.nearestFormat;
    return report;
}

// Calls `work`, which gives a report or throws.
template<typename Work>
Report Guarded(const Work& work)
{
    try {
        return work();
    } catch (const PictureFailure& problem) {
        return ReportOf(problem);
    } catch (const std::bad_alloc&) {
        return ReportOf(TooLarge(QStringLiteral("it takes more memory than a worker may use")));
    } catch (const std::exception& problem) {
        return ReportOf(ProcessingFailed(QString::fromLocal8Bit(problem.what())));
    }
}

} // namespace

Worker::Worker(ReportQueue& reports)
    : reports(reports)
{
    jobProblem = ReportOf(ProcessingFailed(QStringLiteral("there is no job yet")));
}

bool Worker::Run(int input)
{
    constexpr int pieceSize = 64 << 10;
    FrameReader reader;
    QByteArray piece(pieceSize, '\0');
    for (;;) {
        const ssize_t count = read(input, piece.data(), std::size_t(piece.size()));
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return true;
        }
        reader.Append(piece.left(int(count)));
        while (const std::optional<ToWorker> message = reader.NextToWorker()) {
            Handle(*message);
        }
        if (reader.IsBroken()) {
            return false;
        }
    }
}

void Worker::Handle(const ToWorker& message)
{
    if (const Job* job = std::get_if<Job>(&message)) {
        Take(*job);
    } else if (const ProbeTask* probe = std::get_if<ProbeTask>(&message)) {
        Probe(*probe);
    } else {
        Make(std::get<PictureTask>(message));
    }
}

void Worker::Take(const Job& job)
{
    BoundResources(job.limits);
    settings.reset();
    jobProblem = Guarded([this, &job] {
        settings = ReadJob(job);
        return Report();
    });
}

void Worker::Probe(const ProbeTask& task)
{
    const ServerLimits limits = settings ? settings->limits : ServerLimits();
    reports.Begin(task.number);
    Report report = Guarded([&task, &limits] { return ProbeFile(task, limits); });
    report.number = task.number;
    reports.Send(report);
}

void Worker::Make(const PictureTask& task)
{
    reports.Begin(task.number);
    MadePicture made;
    TakeLibraryWarnings(); // of a task before, which had no use for them
    Report report = Guarded([this, &task, &made] {
        Report done = jobProblem;
        if (settings) {
            made = MakePicture(*settings, task);
            done.outputBytes = made.bytes;
            done.warnings = made.warnings + TakeLibraryWarnings();
        }
        return done;
    });
    report.number = task.number;
    if (made.file) {
        reports.FinishAndSend(std::move(made), task.replaceExisting, report);
    } else {
        reports.Send(report);
    }
}

} // namespace BatchWorker
