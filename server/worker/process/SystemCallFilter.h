#pragma once

namespace BatchWorker {

/// From here on the system refuses this process network sockets, starting programs, and reaching into other processes,
/// with "permission denied". False when the system knows no such filter; nothing is refused then.
bool FilterSystemCalls();

} // namespace BatchWorker
