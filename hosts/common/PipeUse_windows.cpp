// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PipeUse.h"

#include "server/protocol/HostPipe.h"
#include "server/protocol/ParentProcess.h"

#include <QElapsedTimer>
#include <QLocalSocket>

namespace BatchHost {

namespace {

/// The server that listens on the pipe, opened so that its end can be waited for.
struct Listening
{
    bool isThere = false;
    HANDLE process = nullptr; ///< null when it cannot be opened
    bool hasHost = true;
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
        found.process = OpenProcess(SYNCHRONIZE, FALSE, id);
        const HANDLE host = BatchProtocol::OpenParentOf(id);
        found.hasHost = host != nullptr;
        if (host) {
            CloseHandle(host);
        }
    }
    return found;
}

} // namespace

bool IsPipeInUse()
{
    // A server gives its runs 10 seconds to end.
    constexpr int longestEnd = 15'000;
    QElapsedTimer time;
    time.start();
    for (;;) {
        const Listening server = FindServer();
        const int left = longestEnd - int(time.elapsed());
        const bool mayEnd = server.process && !server.hasHost && left > 0;
        const bool hasEnded = mayEnd && WaitForSingleObject(server.process, DWORD(left)) == WAIT_OBJECT_0;
        if (server.process) {
            CloseHandle(server.process);
        }
        if (!hasEnded) {
            return server.isThere;
        }
    }
}

} // namespace BatchHost
