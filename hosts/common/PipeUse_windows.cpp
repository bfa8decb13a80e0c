// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PipeUse.h"

#include "server/protocol/HostPipe.h"
#include "server/protocol/ParentProcess.h"

#include <QElapsedTimer>
#include <QLocalSocket>

#include <algorithm>

namespace BatchHost {

namespace {

/// Waits for the ends of servers whose hosts have ended, also of those that do not listen yet.
void AwaitOrphans()
{
    // A server gives its runs 10 seconds to end.
    constexpr int longestEnd = 15'000;
    QElapsedTimer time;
    time.start();
    bool hasEnded = true;
    while (hasEnded) {
        const HANDLE server = BatchProtocol::OpenOrphan(QStringLiteral("VelkoraBatchProcessing.exe"));
        if (!server) {
            return;
        }
        const int left = std::max(0, longestEnd - int(time.elapsed()));
        hasEnded = WaitForSingleObject(server, DWORD(left)) == WAIT_OBJECT_0;
        CloseHandle(server);
    }
}

} // namespace

bool IsPipeInUse()
{
    constexpr int answerTime = 1000;
    AwaitOrphans();
    QLocalSocket socket;
    socket.connectToServer(BatchProtocol::HostPipe::Name());
    return socket.waitForConnected(answerTime);
}

} // namespace BatchHost
