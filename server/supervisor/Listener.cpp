#include "Listener.h"

#include "PeerUser.h"

#include <QLocalSocket>

namespace {

constexpr int answerTime = 1000; // ms

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
    if (IsAnswering(pipeName)) {
        error = QStringLiteral("another server listens on it already");
        return false;
    }
    QLocalServer::removeServer(pipeName);
    if (!server.listen(pipeName)) {
        error = server.errorString();
        return false;
    }
    return true;
}

void Listener::Accept()
{
    while (QLocalSocket* const socket = server.nextPendingConnection()) {
        if (IsPeerOfThisUser(*socket)) {
            socket->setParent(nullptr);
            Q_EMIT Connected(socket);
        } else {
            qWarning("A connection was refused: it comes from another user.");
            socket->abort();
            socket->deleteLater();
        }
    }
}
