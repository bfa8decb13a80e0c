#include "ProcessEnd.h"

#include <QtGlobal>

#include <cstdlib>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif
#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>
#endif

void EndWithParent()
{
#ifdef Q_OS_LINUX
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() == 1) {
        std::_Exit(98); // It had gone before.
    }
#endif
}

void AbortQuietly()
{
#ifdef Q_OS_UNIX
    const rlimit noCoreFile{0, 0};
    setrlimit(RLIMIT_CORE, &noCoreFile);
#endif
}
