// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTSocketMove_p.h"

#include <QLocalSocket>

#ifdef Q_OS_WIN

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QSignalBlocker>

#include <qt_windows.h>

namespace {

constexpr DWORD cancelLimit = 1000; // ms

HANDLE HandleOf(const QLocalSocket& socket)
{
    return reinterpret_cast<HANDLE>(socket.socketDescriptor());
}

} // namespace

void ZTSocketMove::DetachFromThread(QLocalSocket& socket, int msecs)
{
    buffered.clear();
    // The socket's user must not see the intermediate states.
    const QSignalBlocker blocker(socket);
    const QDeadlineTimer deadline(msecs);
    while (socket.bytesToWrite() > 0 && socket.waitForBytesWritten(static_cast<int>(deadline.remainingTime()))) {
    }
    if (socket.bytesToWrite() > 0) {
        socket.abort();
    }
    if (socket.state() == QLocalSocket::ConnectedState) {
        StopReading(socket);
    }
}

void ZTSocketMove::StopReading(QLocalSocket& socket)
{
    // Reopening the socket would stop the read as well, but would drop a read that has just completed with data. So the
    // read is cancelled without the socket's knowledge. A read that completes all the same delivers its data and starts
    // another one. To the socket a cancelled read is an error that ends the connection, which is undone below.
    bool isCancelled = false;
    while (socket.state() == QLocalSocket::ConnectedState) {
        isCancelled = CancelIoEx(HandleOf(socket), nullptr) || isCancelled;
        if (SleepEx(isCancelled ? cancelLimit : 0, TRUE) != WAIT_IO_COMPLETION) {
            // No read is pending: the peer has closed, and the event that reports it moves to the new thread.
            break;
        }
    }
    buffered = socket.readAll();
    if (socket.state() == QLocalSocket::UnconnectedState) {
        // The queued end of the connection has no effect while the socket is unconnected.
        QCoreApplication::sendPostedEvents(&socket, QEvent::MetaCall);
        // Connected again. Write-only, so that no read starts.
        socket.setSocketDescriptor(socket.socketDescriptor(), QLocalSocket::ConnectedState, QIODevice::WriteOnly);
    }
}

void ZTSocketMove::AttachToThread(QLocalSocket& socket)
{
    if (socket.state() != QLocalSocket::ConnectedState) {
        return;
    }
    const QSignalBlocker blocker(socket);
    socket.setSocketDescriptor(socket.socketDescriptor(), QLocalSocket::ConnectedState, QIODevice::ReadWrite);
    for (int i = buffered.size(); i > 0; --i) {
        socket.ungetChar(buffered.at(i - 1));
    }
    buffered.clear();
}

#else

void ZTSocketMove::DetachFromThread(QLocalSocket&, int) {}
void ZTSocketMove::AttachToThread(QLocalSocket&) {}

#endif
