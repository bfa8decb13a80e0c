#include "Confinement.h"
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
    GiveUpRights();
    if (!StartImagingLibrary(argv[0])) {
        return EXIT_FAILURE;
    }
    bool isUnderstood = false;
    {
        ReportQueue reports(output);
        Report ready;
        ready.number = workerIsReady;
        reports.Send(ready);
        isUnderstood = Worker(reports).Run(STDIN_FILENO);
    }
    vips_shutdown();
    if (!isUnderstood) {
        std::fprintf(stderr, "VelkoraBatchWorker: the supervisor sent an invalid message.\n");
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
