#include "ProcessEnd.h"

#include <cstdlib>

#ifdef Q_OS_WIN
#include <qt_windows.h>
// After it.
#include <tlhelp32.h>
#else
#include <cerrno>
#include <csignal>
#include <sys/resource.h>
#include <sys/types.h>
#endif
#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#include <unistd.h>
#endif

namespace {
[[maybe_unused]] constexpr int parentHasGone = 98;
}

#ifdef Q_OS_WIN

namespace {

DWORD ParentId()
{
    DWORD parent = 0;
    const HANDLE processes = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32 entry{};
    entry.dwSize = sizeof(entry);
    for (BOOL found = Process32First(processes, &entry); found; found = Process32Next(processes, &entry)) {
        if (entry.th32ProcessID == GetCurrentProcessId()) {
            parent = entry.th32ParentProcessID;
        }
    }
    CloseHandle(processes);
    return parent;
}

void CALLBACK OnParentEnd(void*, BOOLEAN)
{
    std::_Exit(parentHasGone);
}

} // namespace

void EndWithParent()
{
    const HANDLE parent = OpenProcess(SYNCHRONIZE, FALSE, ParentId());
    HANDLE wait = nullptr;
    if (!parent || !RegisterWaitForSingleObject(&wait, parent, OnParentEnd, nullptr, INFINITE, WT_EXECUTEONLYONCE)) {
        std::_Exit(parentHasGone);
    }
}

void CrashQuietly()
{
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
}

void Crash()
{
    // abort() is an ordinary end here, with code 3.
    RaiseException(EXCEPTION_ACCESS_VIOLATION, EXCEPTION_NONCONTINUABLE, 0, nullptr);
    std::abort();
}

void EndAtOnce(int exitCode)
{
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(exitCode));
    std::abort();
}

bool IsProcessAlive(qint64 pid)
{
    const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(pid));
    const bool isAlive = process && WaitForSingleObject(process, 0) == WAIT_TIMEOUT;
    CloseHandle(process);
    return isAlive;
}

void KillProcess(qint64 pid)
{
    const HANDLE process = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, static_cast<DWORD>(pid));
    if (process && TerminateProcess(process, 1)) {
        WaitForSingleObject(process, 10000);
    }
    CloseHandle(process);
}

#else

void EndWithParent()
{
#ifdef Q_OS_LINUX
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() == 1) {
        std::_Exit(parentHasGone);
    }
#endif
}

void CrashQuietly()
{
    const rlimit noCoreFile{0, 0};
    setrlimit(RLIMIT_CORE, &noCoreFile);
}

void Crash()
{
    std::abort();
}

void EndAtOnce(int exitCode)
{
    std::_Exit(exitCode);
}

bool IsProcessAlive(qint64 pid)
{
    return kill(static_cast<pid_t>(pid), 0) == 0 || errno != ESRCH;
}

void KillProcess(qint64 pid)
{
    kill(static_cast<pid_t>(pid), SIGKILL);
}

#endif
