#pragma once

#include <QByteArray>

class QLocalSocket;

/// Takes a local socket to another thread, around QObject::moveToThread().
///
/// On Windows that alone is not enough: the end of an overlapped read or write is told to the thread that began it and
/// to no other, so the socket would go on reading there while it is used here, and wait for ever when it is closed.
/// Elsewhere nothing has to be done.
class ZTSocketMove
{
public:
    /// On the thread that the socket leaves. What has arrived is kept for Arrive(), and nothing is read until then.
    /// What was written is given `msecs` milliseconds; a peer that has not taken it by then loses the connection.
    void Leave(QLocalSocket& socket, int msecs);

    /// On the new thread: reading goes on, with what has been kept.
    void Arrive(QLocalSocket& socket);

private:
#ifdef Q_OS_WIN
    void StopReading(QLocalSocket& socket);

    QByteArray arrived;
#endif
};
