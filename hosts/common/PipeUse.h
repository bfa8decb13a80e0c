// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

namespace BatchHost {

/// Whether another server listens on the pipe that a server of this process would open.
///
/// On Unix the pipe lies in the run's own temporary folder, but Windows has one pipe of this name for the whole
/// machine: a second server could not open it, and its host would talk to the first one's server. A server whose host
/// has ended is about to end too, and is waited for.
bool IsPipeInUse();

} // namespace BatchHost
