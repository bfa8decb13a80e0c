#pragma once

#include "ZTBatchGlobal.h"

#include <QByteArray>
#include <QPointer>
#include <QString>
#include <QThread>

class QLocalSocket;

/// One end of a local named pipe that carries messages, each a name and a payload, on a thread of its own.
///
/// The object itself belongs to the thread that created it, and its users live there: they get its signals queued, in
/// the order of events on the pipe. The socket, the writing and the reading live on the session's thread. Incoming
/// data is polled every 10 ms; each poll delivers every message that is complete by then. A message may arrive in
/// pieces of any size and is delivered once and whole.
///
/// On the wire a message is a QString (32-bit big-endian byte count, UTF-16 big-endian text; count 0xFFFFFFFF for a
/// null string) followed by a QByteArray (the same count, then the bytes). Nothing stands between two messages. A peer
/// whose message has a name longer than 64 KiB, a name of an odd number of bytes or a payload longer than 1 GiB is cut
/// off: the connection ends with a debug line.
///
/// There is no automatic reconnection: a user who wants one calls Reconnect().
class BATCHCORE_EXPORT ZTPipeSession : public QThread
{
    Q_OBJECT

public:
    /// Connects to the pipe `serverName` and starts the session's thread. Returns at once: IsConnected() is false then,
    /// and SessionConnected() comes when the calling thread is back in its event loop, before anything else that the
    /// connection brings. When nobody listens, a debug line "Socket error: ..." is written and the session waits for
    /// Reconnect().
    ZTPipeSession(const QString& serverName, QObject* parent);

    /// Takes over `socket`, which must belong to the calling thread and becomes the session's own, and starts the
    /// session's thread. When the socket is connected, IsConnected() is true at once and reading begins;
    /// SessionConnected() does not come. Such a session does not emit MessageSent(). With a null socket nothing can be
    /// written or read, and Reconnect() must not be called.
    ZTPipeSession(QLocalSocket* socket, QObject* parent);

    /// Ends the thread, closes the pipe and returns when both are done. Messages handed to Send() before are still
    /// written, as long as the peer takes them; it is given one second. Messages received but not delivered yet are
    /// dropped. May be called in a slot that one of the session's signals called.
    ~ZTPipeSession() override;

    /// Whether the pipe is connected, as the session's thread has last seen it. Safe on any thread.
    bool IsConnected() const;

    /// Waits on the calling thread, up to `msecs` milliseconds, until a connection attempt that is under way has ended.
    /// Returns whether the socket is connected. Meant for the moment right after construction by name: it looks at the
    /// socket itself and so may be true before IsConnected() is.
    bool WaitForConnected(int msecs);

    /// Writes a message on the session's thread, followed by MessageSent(). A message that finds the pipe not
    /// connected is dropped with the debug line "Socket error: 19".
    void Send(const QString& name, const QByteArray& data);

    /// Closes the pipe and connects to `serverName` on the session's thread. IsConnected() is false from then until
    /// SessionConnected().
    void Reconnect(const QString& serverName);

    /// Starts the 10 ms polling anew on the session's thread, connected or not.
    void RunReadCycle();

Q_SIGNALS:
    /// The connection has ended, from either side. Comes once for each connection.
    void SessionDown();

    /// A message has arrived.
    void IncomingMessage(const QString& message, const QByteArray& data);

    /// The connection is up. Comes once for each successful attempt.
    void SessionConnected();

    /// Requests to the session's thread, made by Send(), Reconnect() and RunReadCycle().
    void WriteMessage(const QString& name, const QByteArray& data);
    void ReconnectToServer(const QString& serverName);
    void RunUpdateReadTimer();

    /// A message of Send() was handed to the socket.
    void MessageSent();

protected:
    void run() override;

private:
    Q_DISABLE_COPY(ZTPipeSession)

    class Private;

    void Launch();

    QPointer<Private> worker;
};
