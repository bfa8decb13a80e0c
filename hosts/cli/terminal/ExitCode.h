#pragma once

namespace BatchCli {

/// How velkora-batch ends.
enum class ExitCode : int {
    Done = 0,       ///< every picture was written
    Incomplete = 1, ///< some were skipped or failed, or the run was stopped by a policy
    Usage = 2,      ///< wrong arguments, or a job that cannot be used; nothing was done
    ServerLost = 3, ///< the server could not be started, or was lost for good
    Cancelled = 4
};

} // namespace BatchCli
