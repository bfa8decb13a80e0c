// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Listener.h"

#include "PipeOfHost.h"

#include "ZTPipePeer.h"

#include <QLocalSocket>
#include <QThread>

namespace BatchSupervisor {

namespace {

constexpr int answerTime = 1000; // ms

// The pipe of a killed server answers until the child processes that it was starting have ended too, and a server that
// ends needs a moment to release its pipe.
constexpr int attempts = 20;
constexpr int attemptInterval = 50; // ms

bool IsAnswering(const QString& pipeName)
{
    QLocalSocket socket;
    socket.connectToServer(pipeName);
    return socket.waitForConnected(answerTime);
}

} // namespace

Listener::Listener(QObject* parent)
    : QObject(parent)
{
    server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server, &QLocalServer::newConnection, this, &Listener::Accept);
}

bool Listener::Listen(const QString& pipeName)
{
    const int pipeOfHost = TakePipeOfHost(pipeName);
    if (!(pipeOfHost >= 0 ? server.listen(pipeOfHost) : Open(pipeName))) {
        error = error.isEmpty() ? server.errorString() : error;
        return false;
    }
    return true;
}

bool Listener::Open(const QString& pipeName)
{
    for (int attempt = 1; IsAnswering(pipeName); ++attempt) {
        if (attempt == attempts) {
            error = QStringLiteral("another server listens on it already");
            return false;
        }
        QThread::msleep(attemptInterval);
    }
    QLocalServer::removeServer(pipeName);
    return server.listen(pipeName);
}

void Listener::Accept()
{
    while (QLocalSocket* const socket = server.nextPendingConnection()) {
        if (ZTPipePeer::IsOfThisUser(*socket)) {
            socket->setParent(nullptr);
            Q_EMIT Connected(socket);
        } else {
            qWarning("A connection was refused: it comes from another user.");
            socket->abort();
            socket->deleteLater();
        }
    }
}

} // namespace BatchSupervisor
