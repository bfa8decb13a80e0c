// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ProcessMemory.h"

#include <qt_windows.h>

#include <psapi.h>

namespace BatchProtocol {

qint64 MemoryOfProcess(qint64 id)
{
    const HANDLE process = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION | PROCESS_VM_READ, FALSE, DWORD(id));
    if (!process) {
        return 0;
    }
    PROCESS_MEMORY_COUNTERS counters = {};
    const bool isKnown = GetProcessMemoryInfo(process, &counters, sizeof(counters)) != 0;
    CloseHandle(process);
    return isKnown ? qint64(counters.WorkingSetSize) : 0;
}

} // namespace BatchProtocol
