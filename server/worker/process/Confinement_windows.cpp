// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Confinement.h"

#include "GivenUpRights_windows.h"

#include <cstdio>
#include <qt_windows.h>

using namespace BatchProtocol;

namespace BatchWorker {

namespace {

/// Puts this process into a job object that bounds its memory and has room for no other process. The object has no
/// name, and its only handle is closed, so that nobody can change it afterwards.
bool EnterJob(qint64 memory)
{
    const HANDLE job = CreateJobObjectW(nullptr, nullptr);
    if (!job) {
        return false;
    }
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags =
        JOB_OBJECT_LIMIT_PROCESS_MEMORY | JOB_OBJECT_LIMIT_ACTIVE_PROCESS | JOB_OBJECT_LIMIT_DIE_ON_UNHANDLED_EXCEPTION;
    limits.BasicLimitInformation.ActiveProcessLimit = 1;
    limits.ProcessMemoryLimit = SIZE_T(memory);
    const bool isEntered =
        SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof(limits)) != 0 &&
        AssignProcessToJobObject(job, GetCurrentProcess()) != 0;
    const DWORD problem = GetLastError();
    CloseHandle(job);
    SetLastError(problem);
    return isEntered;
}

} // namespace

// The supervisor has put the worker into a job object of its own, which ends it with the supervisor.
Confinement::Confinement()
{
    // No window waits for somebody to close it when the process fails.
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
}

// Which files are read and written, and calls of the system, are not restricted here.
bool Confinement::Confine(const WorkerRights&, const ServerLimits& limits)
{
    if (EnterJob(limits.workerMemory)) {
        GiveUpRights();
        return true;
    }
    std::fprintf(stderr, "VelkoraBatchWorker: the process cannot be confined: error %lu\n", GetLastError());
    return false;
}

} // namespace BatchWorker
