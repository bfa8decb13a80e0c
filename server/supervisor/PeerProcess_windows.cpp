// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PeerProcess.h"

#include <QLocalSocket>

#include <qt_windows.h>

namespace BatchSupervisor {

qint64 PeerProcess(const QLocalSocket& socket)
{
    ULONG id = 0;
    const auto pipe = reinterpret_cast<HANDLE>(socket.socketDescriptor());
    return GetNamedPipeClientProcessId(pipe, &id) ? qint64(id) : 0;
}

} // namespace BatchSupervisor
