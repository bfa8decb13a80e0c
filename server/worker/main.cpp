#include "ReportQueue.h"
#include "Worker.h"

#include <vips/vips8>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

using namespace BatchServer;

namespace {

// Libraries print to standard output when they please; the supervisor must see frames alone there.
int TakeStandardOutput()
{
    const int own = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    dup2(STDERR_FILENO, STDOUT_FILENO);
    return own;
}

void StartVips(const char* program)
{
    if (VIPS_INIT(program) != 0) {
        std::fprintf(stderr, "VelkoraBatchWorker: the imaging library does not start: %s\n", vips_error_buffer());
        std::exit(EXIT_FAILURE);
    }
    vips_concurrency_set(1);
    vips_cache_set_max(0);
}

} // namespace

int main(int argc, char** argv)
{
    const int output = TakeStandardOutput();
    if (argc != 1 || isatty(STDIN_FILENO) == 1) {
        std::fprintf(stderr, "VelkoraBatchWorker is started by VelkoraBatchProcessing and takes no arguments.\n");
        return EXIT_FAILURE;
    }
    // A file that grows beyond its limit, and a supervisor that is gone, are results of calls, no reasons to die.
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
    StartVips(argv[0]);
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
        std::fprintf(stderr, "VelkoraBatchWorker: the supervisor sent what is no message.\n");
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
