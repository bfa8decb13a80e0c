// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

namespace BatchCli {

/// How velkora-batch ends.
enum class ExitCode : int {
    Done = 0,       ///< every picture was written, or left out by a policy that the command line names
    Incomplete = 1, ///< some failed or were left out otherwise, or the run was stopped by a policy
    Usage = 2,      ///< wrong arguments, or a job that cannot be used; nothing was done
    ServerLost = 3, ///< the server could not be started, or was lost for good
    Cancelled = 4,
    NoPictures = 5,      ///< there is none among the inputs; nothing was done
    AlreadyRunning = 6,  ///< the same run, in another process; nothing was done
    NothingToResume = 7, ///< nothing was done
};

} // namespace BatchCli
