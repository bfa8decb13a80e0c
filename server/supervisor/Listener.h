// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocalServer>
#include <QObject>
#include <QString>

class QLocalSocket;

namespace BatchSupervisor {

/// The server's end of the pipe, to which hosts connect. Only processes of the same user get through.
class Listener : public QObject
{
    Q_OBJECT

public:
    explicit Listener(QObject* parent = nullptr);

    /// Takes over the pipe that the host made before it started this server, or opens it. Replaces the pipe of a server
    /// that no longer runs. False when a server runs on it already, or when it cannot be opened; see Error().
    bool Listen(const QString& pipeName);

    QString Error() const { return error; }

    void Close() { server.close(); }

Q_SIGNALS:
    /// A host has connected. The receiver owns the socket.
    void Connected(QLocalSocket* socket);

private:
    bool Open(const QString& pipeName);
    void Accept();

    QLocalServer server;
    QString error;
};

} // namespace BatchSupervisor
