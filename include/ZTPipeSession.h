// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchGlobal.h"

#include <QByteArray>
#include <QPointer>
#include <QString>
#include <QThread>

class QLocalSocket;

/// One end of a local named pipe that carries messages, each with a name and a payload, on a thread of its own.
///
/// The object belongs to the thread that created it. Its signals are queued to that thread, in the order of events on
/// the pipe. The socket belongs to the session's thread, which does all writing and reading. It polls for incoming data
/// every 10 ms; each poll delivers every message that is complete. A message may arrive in pieces of any size, and is
/// delivered once and whole.
///
/// On the wire a message is a QString (32-bit big-endian byte count, UTF-16 big-endian text; count 0xFFFFFFFF for a
/// null string) followed by a QByteArray (a count of the same kind, then the bytes). Nothing separates two messages. If
/// a name is longer than 64 KiB or has an odd number of bytes, or a payload is longer than 1 GiB, the connection is
/// closed with a debug line.
///
/// There is no automatic reconnection: call Reconnect().
class BATCHCORE_EXPORT ZTPipeSession : public QThread
{
    Q_OBJECT

public:
    /// Starts to connect to the pipe `serverName`, starts the session's thread and returns without waiting.
    /// IsConnected() is false at first; SessionConnected() is emitted when the calling thread is back in its event
    /// loop, before any other signal of the connection. If nobody listens, a debug line "Socket error: ..." is written
    /// and the session waits for Reconnect().
    ZTPipeSession(const QString& serverName, QObject* parent);

    /// Takes ownership of `socket`, which must belong to the calling thread, and starts the session's thread. If the
    /// socket is connected, IsConnected() is true at once and reading begins, but SessionConnected() is not emitted.
    /// Such a session never emits MessageSent(). With a null socket nothing is written or read, and Reconnect() must
    /// not be called.
    ZTPipeSession(QLocalSocket* socket, QObject* parent);

    /// Ends the thread, closes the pipe and returns when both are done. Earlier messages of Send() are still written;
    /// the peer has one second to take them. Messages that were received but not delivered are dropped. May be called
    /// in a slot connected to one of the session's signals.
    ~ZTPipeSession() override;

    /// Whether the pipe is connected, as last recorded by the session's thread. Thread-safe.
    bool IsConnected() const;

    /// Blocks the calling thread up to `msecs` milliseconds until a pending connection attempt has ended. Returns
    /// whether the socket is connected. Intended for use right after construction by name: it looks at the socket
    /// itself, so it may return true before IsConnected() does.
    bool WaitForConnected(int msecs);

    /// Writes a message on the session's thread and then emits MessageSent(). If the pipe is not connected by then, the
    /// message is dropped with the debug line "Socket error: 19".
    void Send(const QString& name, const QByteArray& data);

    /// Closes the pipe and connects to `serverName`, both on the session's thread. IsConnected() is false from then
    /// until the new connection is established.
    void Reconnect(const QString& serverName);

    /// Restarts the 10 ms polling on the session's thread, connected or not.
    void RunReadCycle();

Q_SIGNALS:
    /// Either side has closed the connection. Emitted once for each connection.
    void SessionDown();

    /// A message has arrived.
    void IncomingMessage(const QString& message, const QByteArray& data);

    /// The connection is established. Emitted once for each successful attempt.
    void SessionConnected();

    /// Requests to the session's thread, emitted by Send(), Reconnect() and RunReadCycle().
    void WriteMessage(const QString& name, const QByteArray& data);
    void ReconnectToServer(const QString& serverName);
    void RunUpdateReadTimer();

    /// A message of Send() was passed to the socket.
    void MessageSent();

protected:
    void run() override;

private:
    Q_DISABLE_COPY(ZTPipeSession)

    class Private;

    void Launch();

    QPointer<Private> worker;
};
