// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "OfferedPipe.h"

#include "server/protocol/HostPipe.h"

#include <QFile>

#include <cstring>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace BatchProtocol;

namespace BatchHost {

namespace {

/// How many connections may wait until the server runs.
constexpr int mostWaiting = 50;

/// Null when the path is too long for a socket.
bool SetPath(sockaddr_un& address, const QByteArray& path)
{
    address = {};
    address.sun_family = AF_UNIX;
    if (path.size() >= int(sizeof(address.sun_path))) {
        return false;
    }
    std::memcpy(address.sun_path, path.constData(), std::size_t(path.size()));
    return true;
}

int NewSocket()
{
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM, 0);
    if (descriptor >= 0) {
        ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
    }
    return descriptor;
}

bool IsAnswering(const sockaddr_un& address)
{
    const int descriptor = NewSocket();
    const bool isAnswering =
        descriptor >= 0 && ::connect(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
    ::close(descriptor);
    return isAnswering;
}

/// -1 when it cannot be made. Only its user may connect to it.
int ListeningSocket(const sockaddr_un& address)
{
    const int descriptor = NewSocket();
    // The file of the socket takes its rights from the socket.
    if (descriptor >= 0 && ::fchmod(descriptor, S_IRUSR | S_IWUSR) == 0 &&
        ::bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0 &&
        ::chmod(address.sun_path, S_IRUSR | S_IWUSR) == 0 && ::listen(descriptor, mostWaiting) == 0) {
        return descriptor;
    }
    ::close(descriptor);
    return -1;
}

} // namespace

OfferedPipe::OfferedPipe()
{
    sockaddr_un address;
    if (!SetPath(address, QFile::encodeName(HostPipe::SocketPath(HostPipe::Name()))) || IsAnswering(address)) {
        return;
    }
    ::unlink(address.sun_path);
    descriptor = ListeningSocket(address);
    if (descriptor >= 0) {
        ::fcntl(descriptor, F_SETFD, 0);
        qputenv(HostPipe::listenerVariable, QByteArray::number(descriptor));
    }
}

OfferedPipe::~OfferedPipe()
{
    if (descriptor >= 0) {
        qunsetenv(HostPipe::listenerVariable);
        ::close(descriptor);
    }
}

} // namespace BatchHost
