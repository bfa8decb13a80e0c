// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ProcessEnd.h"

#include <QFile>
#include <QString>

#include <cstdlib>

#ifdef Q_OS_WIN
#include <qt_windows.h>
// Needs the header above.
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

template<typename Function>
void ForEachProcess(const Function& function)
{
    const HANDLE processes = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof(entry);
    for (BOOL found = Process32FirstW(processes, &entry); found; found = Process32NextW(processes, &entry)) {
        function(entry);
    }
    CloseHandle(processes);
}

DWORD ParentId()
{
    DWORD parent = 0;
    ForEachProcess([&parent](const PROCESSENTRY32W& entry) {
        if (entry.th32ProcessID == GetCurrentProcessId()) {
            parent = entry.th32ParentProcessID;
        }
    });
    return parent;
}

/// In units of 100 ns; 0 for a process that no longer exists.
quint64 StartTime(DWORD pid)
{
    FILETIME start{};
    FILETIME unused{};
    const HANDLE process = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, pid);
    GetProcessTimes(process, &start, &unused, &unused, &unused);
    CloseHandle(process);
    return quint64(start.dwHighDateTime) << 32 | start.dwLowDateTime;
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
    // On Windows abort() is a normal exit with code 3.
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

QList<qint64> ChildrenOf(qint64 pid)
{
    QList<qint64> children;
    const quint64 start = StartTime(static_cast<DWORD>(pid));
    if (start == 0) {
        return children;
    }
    ForEachProcess([&](const PROCESSENTRY32W& entry) {
        // The system starts these processes for a console and, under Wine, for the desktop. One that is just being made
        // has no name yet.
        const QString name = QString::fromWCharArray(entry.szExeFile);
        const bool isOfSystem =
            name.isEmpty() || name == QLatin1String("conhost.exe") || name == QLatin1String("explorer.exe");
        if (qint64(entry.th32ParentProcessID) != pid || isOfSystem) {
            return;
        }
        // An older process is the child of an earlier process that had the same number.
        if (StartTime(entry.th32ProcessID) >= start) {
            children.append(entry.th32ProcessID);
        }
    });
    return children;
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
#ifdef Q_OS_LINUX
    // A process that has ended is a zombie until its parent waits for it; a new parent may do that seconds later.
    QFile file(QStringLiteral("/proc/%1/stat").arg(pid));
    const QByteArray status = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    return !status.isEmpty() && status.mid(status.lastIndexOf(')') + 2, 1) != "Z";
#else
    return kill(static_cast<pid_t>(pid), 0) == 0 || errno != ESRCH;
#endif
}

void KillProcess(qint64 pid)
{
    kill(static_cast<pid_t>(pid), SIGKILL);
}

QList<qint64> ChildrenOf(qint64 pid)
{
    QList<qint64> ids;
#ifdef Q_OS_LINUX
    QFile children(QStringLiteral("/proc/%1/task/%1/children").arg(pid));
    if (children.open(QIODevice::ReadOnly)) {
        for (const QByteArray& child : children.readAll().simplified().split(' ')) {
            if (!child.isEmpty()) {
                ids.append(child.toLongLong());
            }
        }
    }
#else
    Q_UNUSED(pid)
#endif
    return ids;
}

#endif
