// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Confinement.h"
#include "EarlyLoading.h"
#include "ImagingLibrary.h"
#include "LibraryVersions.h"
#include "ReportQueue.h"
#include "Worker.h"

#include "server/protocol/WorkerVersions.h"

#include <vips/vips8>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

using namespace BatchProtocol;
using namespace BatchWorker;

namespace {

// Libraries may print to standard output at any time; the supervisor must read nothing but frames there.
int TakeStandardOutput()
{
    const int own = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    dup2(STDERR_FILENO, STDOUT_FILENO);
    return own;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 2 && std::strcmp(argv[1], versionsArgument) == 0) {
        std::fputs(LinesOf(LibraryVersions()).constData(), stdout);
        return EXIT_SUCCESS;
    }
    const int output = TakeStandardOutput();
    if (argc != 1 || isatty(STDIN_FILENO) == 1) {
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
        isUnderstood = Worker(reports, confinement).Run(STDIN_FILENO);
    }
    vips_shutdown();
    if (!isUnderstood) {
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
