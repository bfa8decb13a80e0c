// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ParentProcess.h"

#include <tlhelp32.h>

#include <vector>

namespace BatchProtocol {

namespace {

/// All processes of the system.
std::vector<PROCESSENTRY32W> Processes()
{
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof(entry);
    std::vector<PROCESSENTRY32W> processes;
    for (BOOL found = Process32FirstW(snapshot, &entry); found; found = Process32NextW(snapshot, &entry)) {
        processes.push_back(entry);
    }
    CloseHandle(snapshot);
    return processes;
}

DWORD ParentIdOf(DWORD id)
{
    for (const PROCESSENTRY32W& process : Processes()) {
        if (process.th32ProcessID == id) {
            return process.th32ParentProcessID;
        }
    }
    return 0;
}

/// In units of 100 ns.
ULONGLONG Number(const FILETIME& time)
{
    return ULONGLONG(time.dwHighDateTime) << 32 | time.dwLowDateTime;
}

/// 0 when it cannot be determined.
ULONGLONG StartOf(HANDLE process)
{
    FILETIME start{};
    FILETIME unused{};
    if (!GetProcessTimes(process, &start, &unused, &unused, &unused)) {
        return 0;
    }
    return Number(start);
}

/// The process `parentId` if it has started the process `id` and lives, opened so that its end can be waited for.
HANDLE OpenParent(DWORD id, DWORD parentId)
{
    constexpr DWORD rights = SYNCHRONIZE | PROCESS_QUERY_LIMITED_INFORMATION;
    const HANDLE parent = parentId == 0 ? nullptr : OpenProcess(rights, FALSE, parentId);
    const HANDLE child = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id);
    // The number of a process that has ended may be that of a younger one.
    const bool isParent =
        parent && child && StartOf(parent) <= StartOf(child) && WaitForSingleObject(parent, 0) == WAIT_TIMEOUT;
    if (child) {
        CloseHandle(child);
    }
    if (parent && !isParent) {
        CloseHandle(parent);
    }
    return isParent ? parent : nullptr;
}

} // namespace

HANDLE OpenParentOf(DWORD id)
{
    return OpenParent(id, ParentIdOf(id));
}

HANDLE OpenYoungOrphan(const QString& program, int age)
{
    constexpr ULONGLONG unitsOfMillisecond = 10'000;
    FILETIME now{};
    GetSystemTimeAsFileTime(&now);
    const ULONGLONG earliest = Number(now) - ULONGLONG(age) * unitsOfMillisecond;
    for (const PROCESSENTRY32W& process : Processes()) {
        if (program.compare(QString::fromWCharArray(process.szExeFile), Qt::CaseInsensitive) != 0) {
            continue;
        }
        if (const HANDLE parent = OpenParent(process.th32ProcessID, process.th32ParentProcessID)) {
            CloseHandle(parent);
            continue;
        }
        constexpr DWORD rights = SYNCHRONIZE | PROCESS_QUERY_LIMITED_INFORMATION;
        const HANDLE orphan = OpenProcess(rights, FALSE, process.th32ProcessID);
        if (orphan && StartOf(orphan) > earliest) {
            return orphan;
        }
        if (orphan) {
            CloseHandle(orphan);
        }
    }
    return nullptr;
}

} // namespace BatchProtocol
