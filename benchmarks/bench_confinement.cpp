// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// What it costs to confine a worker: once for each worker, and for each system call from then on.

#include "Stopwatch.h"

#include "server/worker/process/Confinement.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

using namespace BatchProtocol;
using namespace BatchWorker;

namespace {

constexpr int rounds = 51;
constexpr int calls = 200'000;

struct Cost
{
    double start = 0;   ///< ms, before the worker is ready
    double confine = 0; ///< ms, when it gets its job
    double before = 0;  ///< ns for a call, without the cage
    double after = 0;   ///< ns for a call, in the cage
};

double NanosecondsOfACall(int file)
{
    std::array<char, 64> bytes{};
    const Stopwatch watch;
    for (int i = 0; i < calls; ++i) {
        if (pread(file, bytes.data(), bytes.size(), 0) < 0) {
            std::exit(EXIT_FAILURE);
        }
    }
    return watch.Nanoseconds() / calls;
}

Cost Measure(const WorkerRights& rights, int file)
{
    constexpr double nanosecondsOfMillisecond = 1e6;
    Cost cost;
    cost.before = NanosecondsOfACall(file);
    const Stopwatch startWatch;
    Confinement confinement;
    cost.start = startWatch.Nanoseconds() / nanosecondsOfMillisecond;
    const Stopwatch confineWatch;
    if (!confinement.Confine(rights, ServerLimits())) {
        std::exit(EXIT_FAILURE);
    }
    cost.confine = confineWatch.Nanoseconds() / nanosecondsOfMillisecond;
    cost.after = NanosecondsOfACall(file);
    return cost;
}

// A process is confined for good, so each round has one of its own.
Cost MeasureElsewhere(const WorkerRights& rights, int file)
{
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) {
        std::exit(EXIT_FAILURE);
    }
    const pid_t child = fork();
    if (child == 0) {
        const Cost cost = Measure(rights, file);
        _exit(write(ends[1], &cost, sizeof(cost)) == sizeof(cost) ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    Cost cost;
    const bool isRead = read(ends[0], &cost, sizeof(cost)) == sizeof(cost);
    waitpid(child, nullptr, 0);
    close(ends[0]);
    close(ends[1]);
    if (!isRead) {
        std::exit(EXIT_FAILURE);
    }
    return cost;
}

double Median(const std::vector<Cost>& costs, double Cost::*figure)
{
    std::vector<double> values;
    for (const Cost& cost : costs) {
        values.push_back(cost.*figure);
    }
    return ::Median(std::move(values));
}

void PrintCosts(const char* what, const WorkerRights& rights, int file)
{
    std::vector<Cost> costs;
    for (int round = 0; round < rounds; ++round) {
        costs.push_back(MeasureElsewhere(rights, file));
    }
    std::printf("%-32s %8.2f ms %8.2f ms %8.0f ns %8.0f ns\n", what, Median(costs, &Cost::start),
                Median(costs, &Cost::confine), Median(costs, &Cost::before), Median(costs, &Cost::after));
}

} // namespace

int main()
{
    const QTemporaryDir folder;
    WorkerRights rights;
    rights.readable = QStringList(folder.path());
    rights.writable = QStringList(folder.path());
    WorkerRights ofFiles = rights;
    for (int i = 0; i < 256; ++i) {
        const QString name = folder.filePath(QString::number(i));
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly)) {
            return EXIT_FAILURE;
        }
        ofFiles.readable.append(name);
    }
    WorkerRights ofText = rights;
    ofText.usesFonts = true;
    const int file = open("/usr/share/zoneinfo/UTC", O_RDONLY | O_CLOEXEC);
    std::printf("%-32s %11s %11s %11s %11s\n", "medians", "start", "confine", "call before", "call after");
    PrintCosts("a folder", rights, file);
    PrintCosts("256 single files", ofFiles, file);
    PrintCosts("a folder, and fonts", ofText, file);
    return EXIT_SUCCESS;
}
