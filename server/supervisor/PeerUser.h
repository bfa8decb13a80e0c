#pragma once

class QLocalSocket;

namespace BatchSupervisor {

/// Whether the process at the other end of `socket`, a connection that was accepted, belongs to the user whose process
/// this is. False when that cannot be found out.
bool IsPeerOfThisUser(const QLocalSocket& socket);

} // namespace BatchSupervisor
