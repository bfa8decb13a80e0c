// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Stopwatch.h"

#include "hosts/desktop/pictures/InputModule.h"
#include "hosts/desktop/pictures/PicturesPane.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>

// The pane of the pictures with many files: how soon the first rows are seen, how long the event loop stalls, and the
// memory of the process. The baseline is the same pane with 1,000 files.

using namespace BatchDesktop;

namespace {

/// The resident memory of this process in MiB; 0 where it is not known. `key` is a field of /proc/self/status.
double Mebibytes(const char* key)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith(key)) {
            return line.mid(int(qstrlen(key)) + 1).trimmed().split(' ').first().toDouble() / 1024;
        }
    }
    return 0;
}

/// The processor time of this thread in ms; 0 where it is not known.
double ProcessorTime()
{
#ifdef Q_OS_UNIX
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
#else
    return 0;
#endif
}

/// How long the event loop did not turn, at most.
struct Stall
{
    double time = 0;          ///< ms
    double processorTime = 0; ///< ms, the most between two turns; the rest is waiting for a core or a disk
};

class Watchdog
{
public:
    Watchdog()
    {
        timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer, &QTimer::timeout, [this] {
            longest.time = std::max(longest.time, double(clock.restart() - interval));
            const double now = ProcessorTime();
            longest.processorTime = std::max(longest.processorTime, now - lastProcessorTime);
            lastProcessorTime = now;
        });
    }

    Stall Longest(const std::function<void()>& work, const std::function<bool()>& isDone)
    {
        longest = {};
        clock.start();
        lastProcessorTime = ProcessorTime();
        timer.start(int(interval));
        work();
        while (!isDone()) {
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        QApplication::processEvents();
        timer.stop();
        return longest;
    }

private:
    static constexpr qint64 interval = 5; // ms; a timer without one would keep a core busy

    QTimer timer;
    QElapsedTimer clock;
    double lastProcessorTime = 0;
    Stall longest;
};

/// `files` empty files in folders of `perFolder`.
void MakeFiles(const QString& root, int files, int perFolder)
{
    for (int i = 0; i < files; ++i) {
        const QString folder = QStringLiteral("%1/day %2").arg(root).arg(i / perFolder, 5, 10, QLatin1Char('0'));
        if (i % perFolder == 0) {
            QDir().mkpath(folder);
        }
        QFile file(QStringLiteral("%1/IMG_%2.jpg").arg(folder).arg(i, 6, 10, QLatin1Char('0')));
        if (!file.open(QIODevice::WriteOnly)) {
            qFatal("%s cannot be written.", qUtf8Printable(file.fileName()));
        }
    }
}

void Print(const char* what, double value, const char* unit, double goal)
{
    std::printf("    %-34s %9.1f %s%s\n", what, value, unit, goal > 0 && value > goal ? "  above the goal" : "");
    std::fflush(stdout);
}

void Print(const char* what, const Stall& stall, double goal)
{
    std::printf("    %-34s %9.1f ms, processor time %.1f ms%s\n", what, stall.time, stall.processorTime,
                goal > 0 && stall.time > goal ? "  above the goal" : "");
    std::fflush(stdout);
}

void Measure(int files, int perFolder)
{
    const QTemporaryDir folder;
    const QString root = folder.filePath(QStringLiteral("in"));
    MakeFiles(root, files, perFolder);
    std::printf("%d files, %d in each folder\n", files, perFolder);

    EditedJob job;
    PicturesPane pane(job, ThumbnailFiles(folder.filePath(QStringLiteral("own")), folder.filePath(QString())));
    const InputModule module(pane);
    pane.resize(600, 800);
    pane.show();
    QApplication::processEvents();
    auto& list = *pane.findChild<PictureList*>();
    Watchdog watchdog;

    QElapsedTimer sinceStart;
    qint64 firstRows = -1;
    const QMetaObject::Connection seen = QObject::connect(&pane, &PicturesPane::InputsChanged, &pane, [&] {
        if (firstRows < 0 && list.isVisible() && list.model()->rowCount() > 0) {
            firstRows = sinceStart.elapsed();
        }
    });
    sinceStart.start();
    const Stall stallOfAdding =
        watchdog.Longest([&] { pane.AddPaths({root}); }, [&] { return !pane.Adder().IsBusy(); });
    const qint64 all = sinceStart.elapsed();
    const Stall stallOfPlanning = watchdog.Longest([] {}, [&] { return pane.Names().IsCurrent(); });
    QObject::disconnect(seen);
    Print("first rows after", double(firstRows), "ms", 1000);
    Print("all rows after", double(all), "ms", 0);
    Print("stall while adding", stallOfAdding, 50);
    Print("stall while planning names", stallOfPlanning, 50);

    int steps = 0;
    const Stall stallOfScrolling = watchdog.Longest([] {},
                                                    [&] {
                                                        QScrollBar& bar = *list.verticalScrollBar();
                                                        bar.setValue(bar.maximum() / 50 * steps);
                                                        return ++steps > 50;
                                                    });
    Print("stall while scrolling", stallOfScrolling, 50);
    const auto once = [&](const std::function<void()>& work) {
        bool isDone = false;
        return watchdog.Longest(
            [&] {
                work();
                QTimer::singleShot(300, [&] { isDone = true; });
            },
            [&] { return isDone; });
    };
    Print("filter by text", once([&] { pane.Filter(QStringLiteral("99"), ShownState::All); }), 50);
    Print("filter ended", once([&] { pane.Filter(QString(), ShownState::All); }), 50);
    Print("every tenth picture filtered", once([&] { pane.Filter(QStringLiteral("7."), ShownState::All); }), 50);
    Print("filter ended", once([&] { pane.Filter(QString(), ShownState::All); }), 50);
    Print("all selected", once([&] { list.selectAll(); }), 50);
    Print("filter with all selected", once([&] { pane.Filter(QStringLiteral("99"), ShownState::All); }), 50);
    Print("filter ended", once([&] { pane.Filter(QString(), ShownState::All); }), 50);
    list.selectAll();
    Print("all removed", once([&] { pane.RemoveSelected(); }), 50);
    Print("undo of removing", once([&] { job.History().undo(); }), 50);
    list.selectAll();
    Print("undo of adding", once([&] { job.History().undo(); }), 50);
    Print("redo of adding", once([&] { job.History().redo(); }), 50);
    Print("resident memory", Mebibytes("VmRSS:"), "MiB", 300);
    Print("its peak", Mebibytes("VmHWM:"), "MiB", 300);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QTemporaryDir settings;
    ZTBatchManager::InitInstance(settings.path());
    Measure(1000, 300);
    Measure(100'000, 300);
    Measure(100'000, 100'000);
    ZTBatchManager::ReleaseInstance();
    return 0;
}
