// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// The pipe between a host and the server that it starts for itself.
namespace BatchProtocol::HostPipe {

/// The name that the library gives to each server, and connects to.
inline QString Name()
{
    return QStringLiteral("\\\\.\\pipe\\VelkoraBatchProcessing");
}

/// The variable in the server's environment that has the number of a file which it inherits: a socket that listens on
/// the pipe already. So a host is connected at once, before the server runs, and need not try again.
constexpr char listenerVariable[] = "VELKORA_BATCH_LISTENER";

/// The path of the socket of the pipe `name`, in the temporary folder of this process (Unix).
QString SocketPath(const QString& name);

} // namespace BatchProtocol::HostPipe
