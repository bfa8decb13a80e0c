// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ParentProcess.h"

#include <tlhelp32.h>

namespace BatchProtocol {

namespace {

DWORD ParentIdOf(DWORD id)
{
    const HANDLE processes = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof(entry);
    DWORD parent = 0;
    for (BOOL found = Process32FirstW(processes, &entry); found; found = Process32NextW(processes, &entry)) {
        if (entry.th32ProcessID == id) {
            parent = entry.th32ParentProcessID;
            break;
        }
    }
    CloseHandle(processes);
    return parent;
}

/// In units of 100 ns; 0 when it cannot be determined.
ULONGLONG StartOf(HANDLE process)
{
    FILETIME start{};
    FILETIME unused{};
    if (!GetProcessTimes(process, &start, &unused, &unused, &unused)) {
        return 0;
    }
    return ULONGLONG(start.dwHighDateTime) << 32 | start.dwLowDateTime;
}

} // namespace

HANDLE OpenParentOf(DWORD id)
{
    constexpr DWORD rights = SYNCHRONIZE | PROCESS_QUERY_LIMITED_INFORMATION;
    const DWORD parentId = ParentIdOf(id);
    const HANDLE parent = parentId == 0 ? nullptr : OpenProcess(rights, FALSE, parentId);
    const HANDLE child = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id);
    // The number of a process that has ended may be that of a younger one.
    const bool isParent =
        parent && child && StartOf(parent) <= StartOf(child) && WaitForSingleObject(parent, 0) == WAIT_TIMEOUT;
    CloseHandle(child);
    if (parent && !isParent) {
        CloseHandle(parent);
    }
    return isParent ? parent : nullptr;
}

} // namespace BatchProtocol
