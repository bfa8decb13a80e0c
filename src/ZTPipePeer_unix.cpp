// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTPipePeer.h"

#include <QLocalSocket>

#include <sys/socket.h>
#include <sys/types.h>
#include <unistd.h>

bool ZTPipePeer::IsOfThisUser(const QLocalSocket& socket)
{
    const int descriptor = int(socket.socketDescriptor());
#ifdef SO_PEERCRED
    ucred peer = {};
    socklen_t size = sizeof(peer);
    return ::getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == ::geteuid();
#else
    uid_t user = 0;
    gid_t group = 0;
    return ::getpeereid(descriptor, &user, &group) == 0 && user == ::geteuid();
#endif
}
