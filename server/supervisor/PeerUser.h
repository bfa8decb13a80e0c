#pragma once

class QLocalSocket;

namespace BatchSupervisor {

/// Whether the process at the other end of `socket`, an accepted connection, belongs to the user of this process. False
/// when that cannot be determined.
bool IsPeerOfThisUser(const QLocalSocket& socket);

} // namespace BatchSupervisor
