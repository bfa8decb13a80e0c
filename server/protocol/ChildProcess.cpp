// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ChildProcess.h"

#ifdef Q_OS_UNIX
#include <csignal>
#endif
#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <pthread.h>
#include <sys/prctl.h>
#include <unistd.h>
#elif defined(Q_OS_WIN)
#include <qt_windows.h>
#endif

namespace BatchProtocol {

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

void ChildProcess::setupChildProcess() {}

#endif

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
