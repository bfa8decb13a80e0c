// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PipeUse.h"

#include "server/protocol/HostPipe.h"

#include <QLocalSocket>

namespace BatchHost {

bool IsPipeInUse()
{
    constexpr int answerTime = 1000;
    QLocalSocket socket;
    socket.connectToServer(BatchProtocol::HostPipe::Name());
    return socket.waitForConnected(answerTime);
}

} // namespace BatchHost
