// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// From the end of a change to the exact preview: a JPEG of 24 megapixels, made 1600 pixels long, with three effects.
// The baseline is a worker that has started and only makes the file of the result. The processor time is that of all
// workers that have ended, their starts included; it depends little on other load.

#include "Stopwatch.h"

#include "hosts/desktop/preview/PreviewMaker.h"

#include "server/protocol/WorkerProgram.h"

#include "ZTBatchDocument.h"

#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

using namespace BatchDesktop;
using namespace BatchProtocol;

namespace {

constexpr int rounds = 15;
constexpr double goal = 400;          // ms
constexpr double goalBesideRun = 900; // ms
constexpr double nanosecondsOfMillisecond = 1e6;

void WritePhoto(const QString& path)
{
    QImage photo(6000, 4000, QImage::Format_RGB32);
    unsigned state = 1;
    for (int y = 0; y < photo.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(photo.scanLine(y));
        for (int x = 0; x < photo.width(); ++x) {
            state = state * 1664525U + 1013904223U;
            const int grain = int(state >> 30U);
            line[x] = qRgb((x * 255 / 6000 + grain) & 255, (y * 240 / 4000 + grain) & 255, (x + y) / 40 % 240 + grain);
        }
    }
    if (!photo.save(path, "JPG", 90)) {
        std::exit(EXIT_FAILURE);
    }
}

/// Each round has other settings, as a slider that was moved gives them.
Settings OfRound(int round)
{
    Settings settings = Settings::Of(ZTBatchDocument());
    settings.format = QStringLiteral("JPEG");
    settings.imageSize.restriction = 2;
    settings.imageSize.size = 1600;
    const QByteArray stops = QByteArray::number(0.1 + 0.05 * round);
    settings.effects.append({QStringLiteral("exposure"), R"({"stops": )" + stops + '}', true});
    settings.effects.append({QStringLiteral("saturation"), R"({"amount": 20})", true});
    settings.effects.append({QStringLiteral("sharpen"), R"({"sigma": 1, "amount": 80})", true});
    return settings;
}

/// Runs the event loop for as long as `ms` says, as a user who looks at the picture does.
void Look(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

double MillisecondsOfPreview(PreviewMaker& maker, const QString& photo, int round)
{
    QEventLoop loop;
    QObject::connect(&maker, &PreviewMaker::Made, &loop, &QEventLoop::quit);
    QObject::connect(&maker, &PreviewMaker::Failed, &loop, [](const QString& reason) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(reason));
        std::exit(EXIT_FAILURE);
    });
    const Stopwatch watch;
    maker.Show(photo, OfRound(round));
    loop.exec();
    return watch.Nanoseconds() / nanosecondsOfMillisecond;
}

double MillisecondsOfWorker(SpareWorkers& spares, const MakingFolder& folder, const QString& photo, int round)
{
    const PreviewPlan plan = PreviewPlan::Of(photo, OfRound(round), {folder.Path(), {}});
    TaskWorker worker(spares, {plan.result.job.document, spares.Limits(), plan.result.job.rightsToMake});
    QEventLoop loop;
    QObject::connect(&worker, &TaskWorker::Reported, &loop, [&loop](const Report& report) {
        if (report.failure != BatchJob::PolicyKind::None) {
            std::fprintf(stderr, "%s\n", qUtf8Printable(report.reason));
            std::exit(EXIT_FAILURE);
        }
        loop.quit();
    });
    const Stopwatch watch;
    worker.Give(PictureTask{round, photo, folder.FilePath(QStringLiteral("%1.jpg").arg(round)), folder.Path(),
                            QStringLiteral("JPEG"), false});
    loop.exec();
    return watch.Nanoseconds() / nanosecondsOfMillisecond;
}

/// The processor time of the processes that have ended, in ms; 0 where that is not to be had.
double ProcessorMilliseconds()
{
#ifdef Q_OS_UNIX
    rusage used{};
    getrusage(RUSAGE_CHILDREN, &used);
    const auto milliseconds = [](const timeval& time) {
        return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
    };
    return milliseconds(used.ru_utime) + milliseconds(used.ru_stime);
#else
    return 0;
#endif
}

/// A run of the command line over many copies of the photo, which keeps all cores busy until this object goes.
class Run
{
public:
    Run(const QString& photo, const QString& folder)
    {
        QStringList arguments{QStringLiteral("run"), QStringLiteral("--output"), folder + QStringLiteral("/out"),
                              QStringLiteral("--size"), QStringLiteral("1600")};
        for (int i = 0; i < copies; ++i) {
            const QString copy = QStringLiteral("%1/copy %2.jpg").arg(folder).arg(i);
            QFile::copy(photo, copy);
            arguments.append(copy);
        }
        process.setStandardOutputFile(QProcess::nullDevice());
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/velkora-batch"), arguments);
        process.waitForStarted();
    }

    ~Run()
    {
        process.kill();
        process.waitForFinished();
    }

    bool IsGoingOn() const { return process.state() == QProcess::Running; }

private:
    static constexpr int copies = 400;

    QProcess process;
};

void Print(const char* what, const std::vector<double>& times, double baseline)
{
    const auto [fastest, slowest] = std::minmax_element(times.begin(), times.end());
    std::printf("%-44s %7.0f ms (%.0f to %.0f)  x %5.2f\n", what, Median(times), *fastest, *slowest,
                Median(times) / baseline);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QTemporaryDir files;
    const QString photo = files.filePath(QStringLiteral("photo.jpg"));
    WritePhoto(photo);
    std::printf("The photo has 6000 x 4000 pixels and %.1f MB.\n", double(QFileInfo(photo).size()) / 1e6);
    constexpr int pause = 1500; // ms, for spare workers to start
    std::vector<double> baselines;
    {
        const MakingFolder folder;
        SpareWorkers spares(WorkerProgram(), ServerLimits::FromEnvironment(), folder.TemporaryPath());
        for (int round = 0; round < rounds; ++round) {
            spares.Prepare(1);
            Look(pause);
            baselines.push_back(MillisecondsOfWorker(spares, folder, photo, round));
        }
    }
    const double ofBaseline = ProcessorMilliseconds() / rounds;
    const double baseline = Median(baselines);
    Print("a worker makes the result", baselines, baseline);
    PreviewMaker maker;
    Look(pause);
    std::vector<double> first;
    std::vector<double> changed;
    for (int round = 0; round < rounds; ++round) {
        (round == 0 ? first : changed).push_back(MillisecondsOfPreview(maker, photo, round));
        Look(pause);
    }
    const double ofPreview = (ProcessorMilliseconds() - ofBaseline * rounds) / rounds;
    Print("first preview of a picture", first, baseline);
    Print("preview after a change of an effect", changed, baseline);
    std::printf("Processor time for each: %.0f ms of a worker, %.0f ms of the workers of a preview.\n", ofBaseline,
                ofPreview);
    std::printf("The goal for a change is a median of %.0f ms%s.\n", goal,
                Median(changed) > goal ? ", which is missed" : "");
    std::vector<double> besideRun;
    {
        const Run run(photo, files.path());
        Look(pause);
        for (int round = 0; round < rounds; ++round) {
            besideRun.push_back(MillisecondsOfPreview(maker, photo, rounds + round));
            Look(pause);
        }
        if (!run.IsGoingOn()) {
            std::fprintf(stderr, "The run has ended too early.\n");
            return EXIT_FAILURE;
        }
    }
    Print("the same beside a run", besideRun, baseline);
    std::printf("The goal beside a run is a median of %.0f ms%s.\n", goalBesideRun,
                Median(besideRun) > goalBesideRun ? ", which is missed" : "");
    return EXIT_SUCCESS;
}
