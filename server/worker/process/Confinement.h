// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "SystemCallFilter.h"

#include "server/protocol/ServerLimits.h"
#include "server/protocol/WorkerMessages.h"

namespace BatchWorker {

/// Keeps a process that decodes pictures away from everything else. It happens in two steps, as what a worker may touch
/// is known with its job only: nothing that comes from a picture may be looked at between them.
///
/// What the system does not support is left out; BatchProtocol::SystemProtection tells what that is.
class Confinement
{
public:
    /// Gives up new privileges and core files, and ends this process with its supervisor.
    Confinement();

    /// Bounds memory and the size of files by `limits`, files to `rights`, and system calls, for good. To be called
    /// once, when all libraries are loaded and before the first thread starts. False, with the reason on standard
    /// error, when that fails; the process must not go on then.
    bool Confine(const BatchProtocol::WorkerRights& rights, const BatchProtocol::ServerLimits& limits);

private:
    SystemCallFilter filter;
};

} // namespace BatchWorker
