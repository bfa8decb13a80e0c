// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PipeOfHost.h"

#include "server/protocol/HostPipe.h"

#include <QFile>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace BatchProtocol;

namespace BatchSupervisor {

namespace {

bool IsListening(int descriptor)
{
    int value = 0;
    socklen_t size = sizeof(value);
    return ::getsockopt(descriptor, SOL_SOCKET, SO_ACCEPTCONN, &value, &size) == 0 && value != 0;
}

QByteArray PathOf(int descriptor)
{
    sockaddr_un address = {};
    socklen_t size = sizeof(address);
    if (::getsockname(descriptor, reinterpret_cast<sockaddr*>(&address), &size) != 0 || address.sun_family != AF_UNIX) {
        return {};
    }
    // Not every system ends a path that fills its field.
    return QByteArray(address.sun_path, int(qstrnlen(address.sun_path, sizeof(address.sun_path))));
}

} // namespace

int TakePipeOfHost(const QString& pipeName)
{
    bool isNumber = false;
    const int descriptor = qEnvironmentVariableIntValue(HostPipe::listenerVariable, &isNumber);
    qunsetenv(HostPipe::listenerVariable);
    if (!isNumber || descriptor <= STDERR_FILENO || !IsListening(descriptor)) {
        return -1;
    }
    ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
    if (PathOf(descriptor) != QFile::encodeName(HostPipe::SocketPath(pipeName))) {
        // Whoever waits there has to learn that nobody comes.
        ::close(descriptor);
        return -1;
    }
    return descriptor;
}

} // namespace BatchSupervisor
