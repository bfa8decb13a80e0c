#include "ChildProcess.h"

#ifdef Q_OS_LINUX
#include <csignal>
#include <pthread.h>
#include <sys/prctl.h>
#include <unistd.h>
#elif defined(Q_OS_WIN)
#include <qt_windows.h>
#endif

namespace BatchProtocol {

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

#ifdef Q_OS_WIN
namespace {

/// Puts this process into a job, in which all that it starts are too. The job ends with its only handle: with this
/// process, however that goes.
bool BeginJob()
{
    const HANDLE job = CreateJobObjectW(nullptr, nullptr);
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    return job && SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof(limits)) &&
           AssignProcessToJobObject(job, GetCurrentProcess());
}

} // namespace
#endif

ChildProcess::ChildProcess(QObject* parent)
    : QProcess(parent)
{
#ifdef Q_OS_WIN
    static const bool hasJob = BeginJob();
    Q_UNUSED(hasJob)
#endif
}

void ChildProcess::setupChildProcess() {}

#endif

} // namespace BatchProtocol
