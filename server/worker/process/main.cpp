// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Confinement.h"
#include "EarlyLoading.h"
#include "ImagingLibrary.h"
#include "LibraryVersions.h"
#include "ReportQueue.h"
#include "StandardStreams.h"
#include "Worker.h"

#include "server/protocol/WorkerVersions.h"

#include <QFile>

#include <vips/vips8>

#include <cstdio>
#include <cstdlib>
#include <cstring>

using namespace BatchProtocol;
using namespace BatchWorker;

namespace {

/// As bytes: other line ends would become a part of the versions.
bool WriteVersions(int output)
{
    const QByteArray lines = LinesOf(LibraryVersions());
    QFile file;
    return file.open(output, QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(lines) == lines.size();
}

} // namespace

int main(int argc, char** argv)
{
    const int output = TakeStandardOutput();
    if (argc == 2 && std::strcmp(argv[1], versionsArgument) == 0) {
        return WriteVersions(output) ? EXIT_SUCCESS : EXIT_FAILURE;
    }
    if (argc != 1 || IsInputTyped()) {
        std::fprintf(stderr, "VelkoraBatchWorker is started by VelkoraBatchProcessing. --versions lists the "
                             "libraries that make pictures.\n");
        return EXIT_FAILURE;
    }
    Confinement confinement;
    ForbidGeneratedCode();
    if (!StartImagingLibrary(argv[0])) {
        return EXIT_FAILURE;
    }
    LoadWhatWorkNeeds();
    bool isUnderstood = false;
    {
        ReportQueue reports(output);
        Report ready;
        ready.number = workerIsReady;
        reports.SendNow(ready);
        isUnderstood = Worker(reports, confinement).Run(StandardInput());
    }
    vips_shutdown();
    if (!isUnderstood) {
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
