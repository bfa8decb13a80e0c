// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ServerRun.h"
#include "ZTBatchOutputSettings.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

/// One complete run of the server: its duration and its peak memory. Prints "seconds S supervisor K worker K cpu S busy
/// P": memory in KiB; the processor time of supervisor and workers in the run, which depends little on other load; the
/// part of the run in which cores were busy, with whatever.
namespace {

constexpr int patience = 3'600'000; // ms

qint64 PeakMemory(qint64 process)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(process));
    if (!status.open(QIODevice::ReadOnly)) {
        return -1;
    }
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:")) {
            return line.simplified().split(' ').at(1).toLongLong();
        }
    }
    return -1;
}

double ProcessorSeconds(qint64 process)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0.0;
    }
    // The program's name, which may contain spaces, ends at the last bracket. The times are 11 fields further.
    const QByteArray status = file.readAll();
    const QList<QByteArray> fields = status.mid(status.lastIndexOf(')') + 2).split(' ');
    return double(fields.value(11).toLongLong() + fields.value(12).toLongLong()) / double(sysconf(_SC_CLK_TCK));
}

double ProcessorSeconds(ServerRun& run)
{
    double seconds = ProcessorSeconds(run.Server().processId());
    for (const qint64 id : run.WorkerIds()) {
        seconds += ProcessorSeconds(id);
    }
    return seconds;
}

/// What all cores have done since the machine started, in ticks.
struct CoreTime
{
    qint64 all = 0;
    qint64 idle = 0;

    static CoreTime Now()
    {
        CoreTime time;
        QFile file(QStringLiteral("/proc/stat"));
        if (file.open(QIODevice::ReadOnly)) {
            // "cpu", then user, nice, system, idle, waiting for a disk, and others.
            const QList<QByteArray> fields = file.readLine().simplified().split(' ');
            for (int i = 1; i < fields.size(); ++i) {
                const qint64 ticks = fields.at(i).toLongLong();
                time.all += ticks;
                time.idle += i == 4 || i == 5 ? ticks : 0;
            }
        }
        return time;
    }
};

void ToReducedJpeg(ZTBatchDocument& job, int side)
{
    ZTBatchOutputSettings& settings = *job.GetOutputSettings();
    settings.SetFormat(QStringLiteral("JPEG"), R"({"quality": 85, "chromaSubsampling": "4:2:0"})");
    if (side > 0) {
        ZTBatchOutputSettings::ImageSize size;
        size.restriction = 2; // reduce only
        size.side = 2;        // the long one
        size.size = side;
        settings.SetImageSizeSettings(size);
    }
}

/// Sleeps until the run ends: polling would take processor time from the workers.
bool SleepUntilFinished(ServerRun& run)
{
    QEventLoop loop;
    QObject::connect(run.Pipe(), &ZTPipeSession::IncomingMessage, &loop, [&loop](const QString& name) {
        if (ZTBatchMessage::FromName(name) == ZTBatchMessage::MsgFinished) {
            loop.exit(EXIT_SUCCESS);
        }
    });
    QObject::connect(run.Pipe(), &ZTPipeSession::SessionDown, &loop, [&loop] { loop.exit(EXIT_FAILURE); });
    QTimer::singleShot(patience, &loop, [&loop] { loop.exit(EXIT_FAILURE); });
    return loop.exec() == EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption workers(QStringLiteral("workers"), QStringLiteral("How many."), QStringLiteral("count"),
                                     QStringLiteral("2"));
    const QCommandLineOption side(QStringLiteral("side"), QStringLiteral("Long side; 0 keeps the size."),
                                  QStringLiteral("pixels"), QStringLiteral("1600"));
    const QCommandLineOption output(QStringLiteral("output"), QStringLiteral("The folder for results."),
                                    QStringLiteral("folder"));
    parser.addOptions({workers, side, output});
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("The folder of pictures."));
    parser.addHelpOption();
    parser.process(application);
    if (parser.positionalArguments().size() != 1) {
        parser.showHelp(2);
    }

    QStringList pictures;
    for (const QFileInfo& file : QDir(parser.positionalArguments().constFirst()).entryInfoList(QDir::Files)) {
        pictures.append(file.absoluteFilePath());
    }
    ServerRun run(ServerRun::Worker::Real);
    run.SetVariable(QStringLiteral("VELKORA_BATCH_WORKERS"), parser.value(workers));
    if (!run.Start()) {
        std::fprintf(stderr, "The server does not start.\n");
        return 1;
    }
    const QString job = run.Job(pictures, [&](ZTBatchDocument& document) {
        ToReducedJpeg(document, parser.value(side).toInt());
        if (parser.isSet(output)) {
            document.GetOutputSettings()->SetPath(QDir(parser.value(output)).absolutePath());
        }
    });
    const double processorBefore = ProcessorSeconds(run);
    const CoreTime coresBefore = CoreTime::Now();
    QElapsedTimer clock;
    clock.start();
    run.Process(job);
    const bool hasFinished = SleepUntilFinished(run);
    const double seconds = double(clock.nsecsElapsed()) / 1e9;
    if (!hasFinished || run.Count(QStringLiteral("processed")) != pictures.size()) {
        std::fprintf(stderr, "Not all pictures were written.\n%s\n", qPrintable(run.Report()));
        return 1;
    }
    const CoreTime cores = CoreTime::Now();
    const double processor = ProcessorSeconds(run) - processorBefore;
    const double idle = double(cores.idle - coresBefore.idle) / double(cores.all - coresBefore.all);
    qint64 worker = 0;
    for (const qint64 id : run.WorkerIds()) {
        worker = std::max(worker, PeakMemory(id));
    }
    std::printf("seconds %.3f supervisor %lld worker %lld cpu %.2f busy %.3f\n", seconds,
                PeakMemory(run.Server().processId()), worker, processor, 1.0 - idle);
    return 0;
}
