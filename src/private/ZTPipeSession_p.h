#pragma once

#include "ZTFrame_p.h"
#include "ZTHandOver_p.h"
#include "ZTPipeSession.h"
#include "ZTSocketMove_p.h"

#include <QLocalSocket>
#include <QReadWriteLock>

#include <vector>

/// The worker of a pipe session. It is made on the thread of its session, then lives with its socket and its timer on
/// the session's own thread until that ends. Unless said otherwise a member is used there only.
class Q_DECL_HIDDEN ZTPipeSession::Private : public QObject
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
    /// Writes one message now, ahead of requests that wait.
    void Write(const QString& name, const QByteArray& data);
    void Reconnect(const QString& serverName);
    void OnRunTimer();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    /// Something that the session's thread is to do. Small messages that follow each other share one request.
    struct Request
    {
        enum class Kind { Write, Reconnect, RestartTimer };

        Kind kind = Kind::Write;
        int messageCount = 0;
        QByteArray frames;  ///< of the messages, whole or, when there is a payload, up to it
        QByteArray payload; ///< of one large message, which is not copied into `frames`
        QString serverName;
    };

    /// Something that the session tells its users.
    struct Event
    {
        enum class Kind { Down, Connected, Incoming, Sent };

        Kind kind = Kind::Down;
        QString name;
        QByteArray data;
    };

    void ConnectToOwner();

    /// Calls OnConnected() for a connection that the constructor made, unless that was done already; comes before
    /// anything else that is done with the connection.
    void FinishEarlyConnection();

    void SetConnectionState(int state);
    void StopTimer();
    void RestartTimer();
    void DeliverMessages();
    void WriteFrames(const Request& request);
    void WriteRemainder();

    /// On any thread: have FinishEarlyConnection() called on the session's thread.
    void AnnounceEarlyConnection();

    /// On any thread: have something done on the session's thread, behind what was asked before.
    void AskForWrite(const QString& name, const QByteArray& data);
    void Ask(Request request);
    void WakeWorker();
    void DoRequests();

    /// Has the owner emit `event` on its own thread, behind the earlier ones.
    void Tell(Event event);
    void HandOverEvents();
    void WakeOwner();

    /// On the thread of the owner.
    void EmitEvents();

    /// Null when the session was deleted on a foreign thread, which leaves the worker behind.
    QPointer<ZTPipeSession> owner;
    mutable QReadWriteLock stateLock;
    QLocalSocket* socket = nullptr;
    ZTSocketMove socketMove;
    int timerId = -1;
    int connectionState = QLocalSocket::UnconnectedState;
    ZTFrameReader reader;

    /// Whether the constructor's attempt has succeeded and OnConnected() was not called for it yet.
    bool hasEarlyConnection = false;

    ZTHandOver<Request> requests;
    ZTHandOver<Event> events;

    /// Taken from `requests`, and kept for its memory.
    std::vector<Request> doing;

    /// Events that wait for the lot of them to be complete, while there is one.
    std::vector<Event> telling;
    bool isGathering = false;

    /// Taken from `events`, of which the first ones are emitted already. On the thread of the owner.
    std::vector<Event> emitting;
    std::size_t emitted = 0;
};
