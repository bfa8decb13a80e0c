#include "FileProber.h"

#include "UsageError.h"

#include "server/protocol/ServerLimits.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QProcess>
#include <QQueue>
#include <QTimer>

#include <memory>
#include <vector>

using namespace BatchProtocol;

namespace BatchHost {

namespace {

using BatchProtocol::Report;

QString WorkerProgram()
{
#ifdef Q_OS_WIN
    const QString name = QStringLiteral("VelkoraBatchWorker.exe");
#else
    const QString name = QStringLiteral("VelkoraBatchWorker");
#endif
    return QDir(QCoreApplication::applicationDirPath()).filePath(name);
}

/// One worker and the file that it looks at.
class ProbingWorker : public QObject
{
public:
    ProbingWorker(const BatchProtocol::Job& job, std::function<void(ProbingWorker&)> isIdle,
                  std::function<void(const Report&)> take, std::function<void(ProbingWorker&)> hasEnded)
        : isIdle(std::move(isIdle))
        , take(std::move(take))
        , hasEnded(std::move(hasEnded))
        , time(job.limits.pictureSeconds * 1000)
    {
        clock.setSingleShot(true);
        connect(&clock, &QTimer::timeout, &process, &QProcess::kill);
        connect(&process, &QProcess::readyReadStandardOutput, this, [this] { Read(); });
        connect(&process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart) {
                End();
            }
        });
        connect(&process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, [this] { End(); });
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(WorkerProgram(), QStringList());
        process.write(BatchProtocol::FrameToWorker(job));
    }

    ~ProbingWorker() override
    {
        process.disconnect(this);
        process.kill();
        process.waitForFinished();
    }

    void Give(const FileProber::File& file)
    {
        number = file.number;
        clock.start(time);
        process.write(BatchProtocol::FrameToWorker(BatchProtocol::ProbeTask{file.number, file.path}));
    }

    bool WasReady() const { return wasReady; }

private:
    void Read()
    {
        reader.Append(process.readAllStandardOutput());
        while (const std::optional<BatchProtocol::FromWorker> message = reader.NextFromWorker()) {
            const Report* report = std::get_if<Report>(&*message);
            if (!report) {
                continue; // It has one task at a time, and begins with that.
            }
            clock.stop();
            wasReady = true;
            if (report->number != BatchProtocol::workerIsReady) {
                number = -1;
                take(*report);
            }
            isIdle(*this);
        }
        if (reader.IsBroken()) {
            process.kill();
        }
    }

    void End()
    {
        clock.stop();
        if (number >= 0) {
            Report report;
            report.number = number;
            report.failure = BatchProtocol::Case::Processing;
            report.errorCode = ZTBatchMessage::ApplyAdjustmentError;
            report.reason = QStringLiteral("its worker died");
            number = -1;
            take(report);
        }
        hasEnded(*this);
    }

    const std::function<void(ProbingWorker&)> isIdle;
    const std::function<void(const Report&)> take;
    const std::function<void(ProbingWorker&)> hasEnded;
    const int time;
    QProcess process;
    QTimer clock;
    BatchProtocol::FrameReader reader;
    int number = -1; ///< of the file at hand
    bool wasReady = false;
};

} // namespace

void FileProber::Probe(const QVector<File>& files, const QString& settings, const Taker& take)
{
    const BatchProtocol::Job job{settings, BatchProtocol::ServerLimits::FromEnvironment()};
    QQueue<File> waiting;
    for (const File& file : files) {
        waiting.enqueue(file);
    }
    int open = files.size();
    bool canWork = true;
    QEventLoop loop;
    std::vector<std::unique_ptr<ProbingWorker>> workers;

    const auto isIdle = [&](ProbingWorker& worker) {
        if (!waiting.isEmpty()) {
            worker.Give(waiting.dequeue());
        }
    };
    const auto takeReport = [&](const Report& report) {
        take(report);
        if (--open == 0) {
            loop.quit();
        }
    };
    std::function<void()> addWorker;
    const auto hasEnded = [&](ProbingWorker& worker) {
        canWork = canWork && worker.WasReady();
        if (!canWork) {
            loop.quit();
        } else if (!waiting.isEmpty()) {
            addWorker();
        }
    };
    addWorker = [&] { workers.push_back(std::make_unique<ProbingWorker>(job, isIdle, takeReport, hasEnded)); };
    for (int i = 0; i < std::min(job.limits.workers, files.size()); ++i) {
        addWorker();
    }
    if (open > 0) {
        loop.exec();
    }
    if (!canWork) {
        throw UsageError{QStringLiteral("names depend on capture dates, but %1 does not work").arg(WorkerProgram())};
    }
}

} // namespace BatchHost
