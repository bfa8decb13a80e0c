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

void ZTSocketMove::Leave(QLocalSocket& socket, int msecs)
{
    arrived.clear();
    // What happens here to the socket is not its user's affair.
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
    // Opened anew the socket would stop by itself, and drop a read that has just ended with data. So the read is
    // cancelled behind its back: one that has ended after all delivers its data, and another follows; one that is
    // cancelled counts as an error that ends the connection, which is made good below.
    bool isCancelled = false;
    while (socket.state() == QLocalSocket::ConnectedState) {
        isCancelled = CancelIoEx(HandleOf(socket), nullptr) || isCancelled;
        if (SleepEx(isCancelled ? cancelLimit : 0, TRUE) != WAIT_IO_COMPLETION) {
            // Nothing is being read: the peer has gone, and the event that says so comes along to the new thread.
            break;
        }
    }
    arrived = socket.readAll();
    if (socket.state() == QLocalSocket::UnconnectedState) {
        // The posted end of the connection comes to nothing while the socket takes it for ended already.
        QCoreApplication::sendPostedEvents(&socket, QEvent::MetaCall);
        // Connected again; what is open for writing only is not read.
        socket.setSocketDescriptor(socket.socketDescriptor(), QLocalSocket::ConnectedState, QIODevice::WriteOnly);
    }
}

void ZTSocketMove::Arrive(QLocalSocket& socket)
{
    if (socket.state() != QLocalSocket::ConnectedState) {
        return;
    }
    const QSignalBlocker blocker(socket);
    socket.setSocketDescriptor(socket.socketDescriptor(), QLocalSocket::ConnectedState, QIODevice::ReadWrite);
    for (int i = arrived.size(); i > 0; --i) {
        socket.ungetChar(arrived.at(i - 1));
    }
    arrived.clear();
}

#else

void ZTSocketMove::Leave(QLocalSocket&, int) {}
void ZTSocketMove::Arrive(QLocalSocket&) {}

#endif
