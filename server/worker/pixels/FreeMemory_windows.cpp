// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FreeMemory.h"

#include <qt_windows.h>

#include <algorithm>
#include <limits>
#include <psapi.h>

namespace BatchWorker {

namespace {

// What counts against the limit: memory that the system has promised to this process alone.
qint64 TakenMemory()
{
    PROCESS_MEMORY_COUNTERS_EX counters = {};
    GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters), sizeof(counters));
    return qint64(counters.PrivateUsage);
}

} // namespace

void OpenMemoryAccount() {}

qint64 FreeMemory()
{
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    if (!QueryInformationJobObject(nullptr, JobObjectExtendedLimitInformation, &limits, sizeof(limits), nullptr) ||
        (limits.BasicLimitInformation.LimitFlags & JOB_OBJECT_LIMIT_PROCESS_MEMORY) == 0) {
        return std::numeric_limits<qint64>::max();
    }
    return std::max<qint64>(0, qint64(limits.ProcessMemoryLimit) - TakenMemory());
}

} // namespace BatchWorker
