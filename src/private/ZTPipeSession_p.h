// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTFrame_p.h"
#include "ZTHandOver_p.h"
#include "ZTPipeSession.h"
#include "ZTSocketMove_p.h"

#include <QLocalSocket>
#include <QReadWriteLock>

#include <vector>

/// The worker of a pipe session. It is created on the thread of its owner, the ZTPipeSession object, and then lives
/// with its socket and its timer on the session's own thread until that ends. Unless stated otherwise, members are used
/// only on the session's thread.
class Q_DECL_HIDDEN ZTPipeSession::Private : public QObject
{
    Q_OBJECT

public:
    /// Creates the socket and starts to connect. On the thread of `owner`.
    Private(ZTPipeSession* owner, const QString& serverName);

    /// Adopts `socket`, which may be null. On the thread of `owner`.
    Private(ZTPipeSession* owner, QLocalSocket* socket);

    /// On the thread of the owner, to which the worker has returned.
    ~Private() override;

    /// On any thread.
    bool IsConnected() const;

    /// On any thread.
    bool WaitForConnected(int msecs);

    /// Called first on the session's thread.
    void Begin();

    /// Called last on the session's thread.
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
    /// Writes one message at once, before pending requests.
    void Write(const QString& name, const QByteArray& data);
    void Reconnect(const QString& serverName);
    void OnRunTimer();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    /// A request to the session's thread. Successive small messages share one request.
    struct Request
    {
        enum class Kind { Write, Reconnect, RestartTimer };

        Kind kind = Kind::Write;
        int messageCount = 0;
        QByteArray frames;  ///< of all messages, or only the front of the one whose payload follows
        QByteArray payload; ///< of one large message, not copied into `frames`; otherwise null
        QString serverName;
    };

    /// A signal of the session that is to be emitted.
    struct Event
    {
        enum class Kind { Down, Connected, Incoming, Sent };

        Kind kind = Kind::Down;
        QString name;
        QByteArray data;
    };

    void ConnectToOwner();

    /// Calls OnConnected() for a connection that the constructor established, unless that was done already. Must
    /// precede any other use of the connection.
    void FinishEarlyConnection();

    void SetConnectionState(int state);
    void StopTimer();
    void RestartTimer();
    void DeliverMessages();
    void WriteFrames(const Request& request);
    void WriteRemainder();

    /// On any thread. Schedules FinishEarlyConnection() on the session's thread.
    void AnnounceEarlyConnection();

    /// On any thread. Queue a request to the session's thread, after earlier ones.
    void QueueWrite(const QString& name, const QByteArray& data);
    void QueueRequest(Request request);
    void WakeWorker();
    void HandleRequests();

    /// Queues `event` for emission by the owner on the owner's thread, after earlier ones.
    void QueueEvent(Event event);
    void HandOverEvents();
    void WakeOwner();

    /// On the thread of the owner.
    void EmitEvents();

    /// Null if the session was deleted on a foreign thread, which leaks the worker.
    QPointer<ZTPipeSession> owner;
    mutable QReadWriteLock stateLock;
    QLocalSocket* socket = nullptr;
    ZTSocketMove socketMove;
    int timerId = -1;
    int connectionState = QLocalSocket::UnconnectedState;
    ZTFrameReader reader;

    /// Whether the constructor has connected, but OnConnected() has not been called yet.
    bool hasEarlyConnection = false;

    ZTHandOver<Request> requests;
    ZTHandOver<Event> events;

    /// The requests that are being handled. A member only to reuse its memory.
    std::vector<Request> requestsInWork;

    /// Events that are gathered while `isGathering`, to be queued together.
    std::vector<Event> gatheredEvents;
    bool isGathering = false;

    /// The events that are being emitted, and how many have been. On the thread of the owner.
    std::vector<Event> eventsInWork;
    std::size_t emittedCount = 0;
};
