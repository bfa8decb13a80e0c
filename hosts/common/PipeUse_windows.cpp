// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PipeUse.h"

#include "server/protocol/HostPipe.h"
#include "server/protocol/ParentProcess.h"

#include <QDeadlineTimer>
#include <QLocalSocket>

namespace BatchHost {

namespace {

// A server gives its runs 10 seconds to end.
constexpr int longestEnd = 15'000;

/// Whether the process ends until `deadline`. It is closed.
bool EndsInTime(HANDLE process, const QDeadlineTimer& deadline)
{
    const bool hasEnded = WaitForSingleObject(process, DWORD(deadline.remainingTime())) == WAIT_OBJECT_0;
    CloseHandle(process);
    return hasEnded;
}

/// Servers that may not listen yet. They end when they see that their hosts have ended.
void AwaitStartingOrphans(const QDeadlineTimer& deadline)
{
    constexpr int longestStart = 30'000;
    const QString server = QStringLiteral("VelkoraBatchProcessing.exe");
    HANDLE orphan = nullptr;
    do {
        orphan = BatchProtocol::OpenYoungOrphan(server, longestStart);
    } while (orphan && EndsInTime(orphan, deadline));
}

/// The server that listens on the pipe.
struct Listening
{
    bool isThere = false;
    HANDLE orphan = nullptr; ///< its process, if its host has ended
};

Listening FindServer()
{
    constexpr int answerTime = 1000;
    QLocalSocket socket;
    socket.connectToServer(BatchProtocol::HostPipe::Name());
    Listening found;
    found.isThere = socket.waitForConnected(answerTime);
    ULONG id = 0;
    if (found.isThere && GetNamedPipeServerProcessId(reinterpret_cast<HANDLE>(socket.socketDescriptor()), &id)) {
        const HANDLE host = BatchProtocol::OpenParentOf(id);
        if (host) {
            CloseHandle(host);
        } else {
            found.orphan = OpenProcess(SYNCHRONIZE, FALSE, id);
        }
    }
    return found;
}

} // namespace

bool IsPipeInUse()
{
    const QDeadlineTimer deadline(longestEnd);
    AwaitStartingOrphans(deadline);
    Listening server = FindServer();
    while (server.orphan && EndsInTime(server.orphan, deadline)) {
        server = FindServer();
    }
    return server.isThere;
}

} // namespace BatchHost
