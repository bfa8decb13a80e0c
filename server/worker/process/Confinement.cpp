#include "Confinement.h"

#include "SystemCallFilter.h"

#include <csignal>
#include <sys/prctl.h>
#include <sys/resource.h>

using namespace BatchProtocol;

namespace BatchWorker {

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool canBoundMemory = false;
#else
constexpr bool canBoundMemory = true;
#endif

void Bound(__rlimit_resource resource, qint64 value)
{
    rlimit limit{};
    if (getrlimit(resource, &limit) == 0 && rlim_t(value) < limit.rlim_max) {
        limit.rlim_cur = rlim_t(value);
        limit.rlim_max = rlim_t(value);
        setrlimit(resource, &limit);
    }
}

} // namespace

void GiveUpRights()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    Bound(RLIMIT_CORE, 0);
    // A file that exceeds its limit and a supervisor that has ended are reported by the calls; signals would end the
    // process.
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
    FilterSystemCalls();
}

void BoundResources(const ServerLimits& limits)
{
    // The largest file: four channels in floating point, in a temporary file.
    constexpr qint64 bytesOfPixel = 16;
    constexpr qint64 metadata = qint64(64) << 20;
    Bound(RLIMIT_FSIZE, limits.pixels * bytesOfPixel + metadata);
    if (canBoundMemory) {
        Bound(RLIMIT_DATA, limits.workerMemory);
    }
}

} // namespace BatchWorker
