// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ChildProcess.h"

#ifdef Q_OS_UNIX
#include <csignal>
#include <unistd.h>
#endif
#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <pthread.h>
#include <sched.h>
#include <sys/prctl.h>
#elif defined(Q_OS_WIN)
#include <qt_windows.h>
#endif

namespace BatchProtocol {

#ifdef Q_OS_UNIX
namespace {

constexpr int nicenessInBackground = 10;

/// In a child process between fork() and exec().
void YieldToOthers()
{
#ifdef Q_OS_LINUX
    // Longer turns, and no advantage after a wait for a disk.
    const sched_param noPriority{};
    sched_setscheduler(0, SCHED_BATCH, &noPriority);
#endif
    [[maybe_unused]] const int niceness = nice(nicenessInBackground);
}

} // namespace
#endif

#ifdef Q_OS_LINUX

namespace {

pid_t parentId = 0;

constexpr int closeOnExec = 1 << 2;   // CLOSE_RANGE_CLOEXEC of linux/close_range.h, since Linux 5.11
constexpr int mostDescriptors = 4096; // that are looked for on older kernels

void EndWithParent()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parentId) {
        _exit(1); // The parent has ended already.
    }
}

} // namespace

void EndForkedCopiesWithThisProcess()
{
    static const bool isRegistered = [] {
        parentId = getpid();
        return pthread_atfork(nullptr, nullptr, EndWithParent) == 0;
    }();
    Q_UNUSED(isRegistered)
}

ChildProcess::ChildProcess(QObject* parent)
    : QProcess(parent)
{
    EndForkedCopiesWithThisProcess();
}

void ChildProcess::setupChildProcess()
{
    EndWithParent();
    // This process may have been given open files by its own parent.
    if (close_range(STDERR_FILENO + 1, ~0U, closeOnExec) != 0) {
        for (int descriptor = STDERR_FILENO + 1; descriptor < mostDescriptors; ++descriptor) {
            fcntl(descriptor, F_SETFD, FD_CLOEXEC);
        }
    }
    if (isInBackground) {
        YieldToOthers();
    }
}

#else

void EndForkedCopiesWithThisProcess() {}

#ifdef Q_OS_WIN
namespace {

/// Puts this process into a job, together with all that it starts. The job ends with its only handle, and so with this
/// process, however that ends.
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

void ChildProcess::setupChildProcess()
{
#ifdef Q_OS_UNIX
    if (isInBackground) {
        YieldToOthers();
    }
#endif
}

#endif

void ChildProcess::KeepInBackground()
{
    isInBackground = true;
#ifdef Q_OS_WIN
    // There is one modifier, and what reads the streams of a process needs it too.
    const CreateProcessArgumentModifier others = createProcessArgumentsModifier();
    setCreateProcessArgumentsModifier([others](CreateProcessArguments* arguments) {
        if (others) {
            others(arguments);
        }
        arguments->flags |= BELOW_NORMAL_PRIORITY_CLASS;
    });
#endif
}

void ChildProcess::Launch(const QString& program, const QStringList& arguments)
{
    start(program, arguments);
#ifdef Q_OS_UNIX
    // If the process was gone before Qt knew its number, the system's signal found nothing. At each such signal Qt
    // looks at all processes that it knows.
    std::raise(SIGCHLD);
#endif
}

} // namespace BatchProtocol
