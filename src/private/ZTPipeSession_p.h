#pragma once

#include "ZTFrameReader_p.h"
#include "ZTPipeSession.h"

#include <QLocalSocket>
#include <QReadWriteLock>

#include <atomic>

/// The worker of a pipe session. It is made on the thread of its session, then lives with its socket and its timer on
/// the session's own thread until that ends. Unless said otherwise a member is used there only.
class ZTPipeSession::Private : public QObject
{
    Q_OBJECT

public:
    /// Creates the socket and begins to connect. On the thread of `owner`.
    Private(ZTPipeSession* owner, const QString& serverName);

    /// Adopts `socket`, which may be null. On the thread of `owner`.
    Private(ZTPipeSession* owner, QLocalSocket* socket);

    /// On the thread of the session, which the worker was given back to.
    ~Private() override;

    /// On any thread.
    bool IsConnected() const;

    /// On the caller's thread, whatever it is.
    bool WaitForConnected(int msecs);

    /// The first thing that happens on the session's thread.
    void Begin();

    /// The last thing that happens on the session's thread.
    void Finish();

Q_SIGNALS:
    void SessionDown();
    void SessionConnected();
    void IncomingMessage(const QString& message, const QByteArray& data);
    void MessageSent();

public Q_SLOTS:
    void OnReadyRead();
    void OnConnected();
    void OnError(QLocalSocket::LocalSocketError error);
    void OnDisconnected();
    void Write(const QString& name, const QByteArray& data);
    void Reconnect(const QString& serverName);
    void OnRunTimer();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void ConnectToOwner();
    void AnnounceEarlyConnection();
    void WriteRemainder();
    void SetConnectionState(int state);
    void StopTimer();
    void RestartTimer();
    void DeliverMessages();

    ZTPipeSession* owner;
    mutable QReadWriteLock stateLock;
    QLocalSocket* socket = nullptr;
    int timerId = -1;
    int connectionState = QLocalSocket::UnconnectedState;
    ZTFrameReader reader;

    /// Whether the constructor's attempt has succeeded and OnConnected() was not called for it yet.
    std::atomic<bool> hasEarlyConnection{false};
};
