#include "ChildProcess.h"

#ifdef Q_OS_LINUX
#include <csignal>
#include <pthread.h>
#include <sys/prctl.h>
#include <unistd.h>
#endif

// Where there is no such thing, a worker finds out by the end of its input.

#ifdef Q_OS_LINUX

namespace {

pid_t parentId = 0;

void EndWithParent()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parentId) {
        _exit(1); // It has gone already.
    }
}

} // namespace

ChildProcess::ChildProcess(QObject* parent)
    : QProcess(parent)
{
    // QProcess may let a new process wait for a word of this one before it gets as far as setupChildProcess(). If this
    // one were killed meanwhile, the other would wait for ever, and keep the pipe open on which nobody listens.
    static const bool isNoted = [] {
        parentId = getpid();
        return pthread_atfork(nullptr, nullptr, EndWithParent) == 0;
    }();
    Q_UNUSED(isNoted)
}

void ChildProcess::setupChildProcess()
{
    EndWithParent();
}

#else

ChildProcess::ChildProcess(QObject* parent)
    : QProcess(parent)
{
}

void ChildProcess::setupChildProcess() {}

#endif
