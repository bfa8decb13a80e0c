// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Confinement.h"
#include "EarlyLoading.h"
#include "ImagingLibrary.h"
#include "ReportQueue.h"
#include "Worker.h"

#include <vips/vips8>

#include <cstdio>
#include <cstdlib>
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
    const int output = TakeStandardOutput();
    if (argc != 1 || isatty(STDIN_FILENO) == 1) {
        std::fprintf(stderr, "VelkoraBatchWorker is started by VelkoraBatchProcessing and takes no arguments.\n");
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
