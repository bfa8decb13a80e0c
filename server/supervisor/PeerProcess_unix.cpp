// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PeerProcess.h"

#include <QLocalSocket>

#include <sys/socket.h>

namespace BatchSupervisor {

qint64 PeerProcess(const QLocalSocket& socket)
{
#ifdef SO_PEERCRED
    ucred peer = {};
    socklen_t size = sizeof(peer);
    const bool isKnown = ::getsockopt(int(socket.socketDescriptor()), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0;
    return isKnown ? peer.pid : 0;
#else
    Q_UNUSED(socket)
    return 0;
#endif
}

} // namespace BatchSupervisor
