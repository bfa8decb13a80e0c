// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FileProber.h"

#include "job/values/Phrase.h"

#include "RequestError.h"

#include "server/protocol/ServerLimits.h"
#include "server/protocol/TaskFailure.h"
#include "server/protocol/WorkerFiles.h"
#include "server/protocol/WorkerPool.h"
#include "server/protocol/WorkerProgram.h"

#include "ZTBatchDocument.h"

#include <QEventLoop>
#include <QQueue>

#include <algorithm>

using namespace BatchProtocol;

namespace BatchHost {

namespace {

ServerLimits LimitsFor(int files)
{
    ServerLimits limits = ServerLimits::FromEnvironment();
    limits.workers = std::min(limits.workers, files);
    return limits;
}

WorkerRights RightsToProbe(const QVector<FileProber::File>& files, const QString& settings)
{
    ZTBatchDocument document;
    document.Deserialize(settings);
    QVector<BatchJob::JobFile> jobFiles;
    for (const FileProber::File& file : files) {
        jobFiles.append({file.path, QString()});
    }
    return RightsToRead(BatchJob::CheckSettings(document).settings, jobFiles);
}

/// The files that are still to be probed, and the workers that do it.
class ProbeRun
{
public:
    ProbeRun(const QVector<FileProber::File>& files, const QString& settings, const FileProber::ReportHandler& onReport)
        : limits(LimitsFor(files.size()))
        , onReport(onReport)
        , open(files.size())
        , pool(WorkerProgram(), limits)
    {
        job = FrameToWorker(BatchProtocol::Job{settings, limits, RightsToProbe(files, settings)});
        for (const FileProber::File& file : files) {
            Assignment task;
            task.file = file.number;
            task.job = job;
            task.task = ProbeTask{file.number, file.path};
            waiting.enqueue(task);
        }
        const auto handOut = [this] { HandOut(); };
        QObject::connect(&pool, &WorkerPool::RoomMade, &loop, handOut, Qt::QueuedConnection);
        QObject::connect(&pool, &WorkerPool::Reported, &loop,
                         [this](const Assignment&, const Report& report) { Settle(Checked(report)); });
        QObject::connect(&pool, &WorkerPool::Lost, &loop,
                         [this](const Assignment& task, WorkerEnd reason, const QString& text) {
                             Report failure = FailureOfEnd(reason, text, limits);
                             failure.number = task.file;
                             Settle(CheckedFailure(failure));
                         });
        QObject::connect(&pool, &WorkerPool::Returned, &loop, [this, handOut](const Assignment& task) {
            waiting.prepend(task);
            QMetaObject::invokeMethod(&loop, handOut, Qt::QueuedConnection);
        });
        QObject::connect(&pool, &WorkerPool::Broken, &loop, [this](const QString& reason) {
            problem = reason;
            loop.quit();
        });
    }

    /// Returns why there is no worker; nothing when all files are reported.
    QString Execute()
    {
        pool.Start();
        pool.Serve({job});
        if (open > 0) {
            loop.exec();
        }
        return open > 0 ? problem : QString();
    }

private:
    static Report Checked(const Report& report)
    {
        return report.failure == BatchJob::PolicyKind::None ? report : CheckedFailure(report);
    }

    void HandOut()
    {
        while (!waiting.isEmpty() &&
               (waiting.head().isSecondTry ? pool.HasIdleWorker(job) : pool.HasRoom(job, waiting.size()))) {
            pool.Give(waiting.dequeue());
        }
    }

    void Settle(const Report& report)
    {
        onReport(report);
        if (--open == 0) {
            loop.quit();
        }
    }

    const ServerLimits limits;
    const FileProber::ReportHandler& onReport;
    int open; ///< files that are not reported yet
    QByteArray job;
    QQueue<Assignment> waiting;
    QString problem;
    QEventLoop loop;
    WorkerPool pool; ///< destroyed first, as its signals use the other fields
};

} // namespace

void FileProber::Probe(const QVector<File>& files, const QString& settings, const ReportHandler& onReport)
{
    const QString problem = ProbeRun(files, settings, onReport).Execute();
    if (!problem.isEmpty()) {
        throw RequestError{
            BatchJob::Phrase::English("no worker can be started to look at the pictures: %1").arg(problem)};
    }
}

} // namespace BatchHost
