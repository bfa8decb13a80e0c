// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Confinement.h"
#include "EarlyLoading.h"
#include "ImagingLibrary.h"
#include "ReportQueue.h"
#include "StandardStreams.h"
#include "Worker.h"

#include <vips/vips8>

#include <cstdio>
#include <cstdlib>

using namespace BatchProtocol;
using namespace BatchWorker;

int main(int argc, char** argv)
{
    const int output = TakeStandardOutput();
    if (argc != 1 || IsInputTyped()) {
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
        isUnderstood = Worker(reports, confinement).Run(StandardInput());
    }
    vips_shutdown();
    if (!isUnderstood) {
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
