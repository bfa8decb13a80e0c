// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

namespace BatchWorker {

/// The system calls that a worker may make from Load() on, by seccomp: a list of what is allowed. Every other call
/// gives ENOSYS, as on a kernel that does not know it, so that libraries fall back where they can.
///
/// No programs, processes or namespaces; no sockets; nothing that reaches into another process; no memory that is or
/// becomes executable; no other limits, owners or permissions. Threads, and what files need, are left.
class SystemCallFilter
{
public:
    SystemCallFilter();
    ~SystemCallFilter();

    /// Filters the calls of all threads of this process for good. Does nothing where the kernel has no filters. False,
    /// with errno, when the kernel should be able to and is not.
    bool Load();

private:
    Q_DISABLE_COPY(SystemCallFilter)

    void* context = nullptr; ///< libseccomp's; null where there are no filters
    bool hasFailed = false;
};

} // namespace BatchWorker
