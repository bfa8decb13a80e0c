#include "ZTPipeSession_p.h"

#include "ZTDiagnostics_p.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QDeadlineTimer>
#include <QTimerEvent>

namespace {

constexpr ZTDiagnostics diagnostics("src\\private\\ZTPipeSession_p");

constexpr int readInterval = 10;        // ms
constexpr int lastWritesTimeout = 1000; // ms

QString SocketErrorText(int error)
{
    return QStringLiteral("Socket error: %1").arg(error);
}

} // namespace

ZTPipeSession::Private::Private(ZTPipeSession* owner, const QString& serverName)
    : owner(owner)
{
    ConnectToOwner();
    connect(this, SIGNAL(MessageSent()), owner, SIGNAL(MessageSent()), Qt::QueuedConnection);

    socket = new QLocalSocket(this);
    connect(socket, SIGNAL(disconnected()), this, SLOT(OnDisconnected()));
    connect(socket, SIGNAL(error(QLocalSocket::LocalSocketError)), this, SLOT(OnError(QLocalSocket::LocalSocketError)));

    // An attempt that ends inside this call would run OnConnected() on this thread, before the session has its own and
    // before its user can listen. So success here is announced only when the user's thread is back in its event loop.
    socket->connectToServer(serverName, QIODevice::ReadWrite);
    connect(socket, SIGNAL(connected()), this, SLOT(OnConnected()));
    if (socket->state() == QLocalSocket::ConnectedState) {
        hasEarlyConnection = true;
        QMetaObject::invokeMethod(
            owner, [this] { AnnounceEarlyConnection(); }, Qt::QueuedConnection);
    }
}

ZTPipeSession::Private::Private(ZTPipeSession* owner, QLocalSocket* adoptedSocket)
    : owner(owner)
    , socket(adoptedSocket)
{
    ConnectToOwner();
    if (!socket) {
        return;
    }
    socket->setParent(this);
    connectionState = socket->state();
    connect(socket, SIGNAL(disconnected()), this, SLOT(OnDisconnected()));
    connect(socket, SIGNAL(error(QLocalSocket::LocalSocketError)), this, SLOT(OnError(QLocalSocket::LocalSocketError)));
}

ZTPipeSession::Private::~Private()
{
    if (!socket) {
        return;
    }
    if (socket->thread() == QThread::currentThread()) {
        delete socket;
        return;
    }
    diagnostics.LogFailedAssert();
    // A socket must not be destroyed on a foreign thread: it is left behind rather than taken along with its parent.
    socket->setParent(nullptr);
}

void ZTPipeSession::Private::ConnectToOwner()
{
    diagnostics.Assert(owner);
    connect(this, SIGNAL(SessionDown()), owner, SIGNAL(SessionDown()), Qt::QueuedConnection);
    connect(this, SIGNAL(SessionConnected()), owner, SIGNAL(SessionConnected()), Qt::QueuedConnection);
    connect(this, SIGNAL(IncomingMessage(QString, QByteArray)), owner, SIGNAL(IncomingMessage(QString, QByteArray)),
            Qt::QueuedConnection);
    connect(owner, SIGNAL(WriteMessage(QString, QByteArray)), this, SLOT(Write(QString, QByteArray)),
            Qt::QueuedConnection);
    connect(owner, SIGNAL(ReconnectToServer(QString)), this, SLOT(Reconnect(QString)), Qt::QueuedConnection);
    connect(owner, SIGNAL(RunUpdateReadTimer()), this, SLOT(OnRunTimer()), Qt::QueuedConnection);
}

bool ZTPipeSession::Private::IsConnected() const
{
    const QReadLocker locker(&stateLock);
    return connectionState == QLocalSocket::ConnectedState;
}

bool ZTPipeSession::Private::WaitForConnected(int msecs)
{
    if (!socket) {
        return false;
    }
    const bool isConnected = socket->state() == QLocalSocket::ConnectingState
                                 ? socket->waitForConnected(msecs)
                                 : socket->state() == QLocalSocket::ConnectedState;
    if (isConnected) {
        AnnounceEarlyConnection();
    }
    return isConnected;
}

void ZTPipeSession::Private::AnnounceEarlyConnection()
{
    if (hasEarlyConnection.exchange(false)) {
        QMetaObject::invokeMethod(this, "OnConnected", Qt::QueuedConnection);
    }
}

void ZTPipeSession::Private::Begin()
{
    if (IsConnected()) {
        RestartTimer();
    }
}

void ZTPipeSession::Private::Finish()
{
    if (socket && socket->state() == QLocalSocket::ConnectedState) {
        WriteRemainder();
    }
    StopTimer();
}

void ZTPipeSession::Private::WriteRemainder()
{
    // What was sent before the end still goes out: a session that is deleted right after its last message is the rule,
    // not the exception. The deadline is for a peer that has stopped reading.
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    const QDeadlineTimer deadline(lastWritesTimeout);
    while (socket->bytesToWrite() > 0 && !deadline.hasExpired() &&
           socket->waitForBytesWritten(static_cast<int>(deadline.remainingTime()))) {
    }
}

void ZTPipeSession::Private::OnReadyRead()
{
    if (!socket) {
        return;
    }
    diagnostics.Assert(socket->thread() == QThread::currentThread());
    if (socket->state() != QLocalSocket::ConnectedState || socket->bytesAvailable() < 1) {
        return;
    }
    DeliverMessages();
}

void ZTPipeSession::Private::DeliverMessages()
{
    ZTFrameReader::Result result = reader.Read(*socket);
    while (result == ZTFrameReader::Result::Message) {
        const QString name = reader.TakeName();
        const QByteArray payload = reader.TakePayload();
        Q_EMIT IncomingMessage(name, payload);
        result = reader.Read(*socket);
    }
    if (result == ZTFrameReader::Result::Refused) {
        diagnostics.Log(reader.Refusal());
        socket->abort();
    }
}

void ZTPipeSession::Private::OnConnected()
{
    if (socket->state() == QLocalSocket::ConnectedState) {
        const QWriteLocker locker(&stateLock);
        connectionState = QLocalSocket::ConnectedState;
        RestartTimer();
    }
    Q_EMIT SessionConnected();
}

void ZTPipeSession::Private::OnError(QLocalSocket::LocalSocketError error)
{
    SetConnectionState(QLocalSocket::UnconnectedState);
    if (error == QLocalSocket::ConnectionError) {
        socket->close();
    } else {
        diagnostics.Log(SocketErrorText(error));
    }
}

void ZTPipeSession::Private::OnDisconnected()
{
    // Messages that had arrived before the peer went away are still the user's; a piece of one is nobody's. When it was
    // this side that closed, the socket has nothing left to read.
    if (socket->bytesAvailable() > 0) {
        DeliverMessages();
    }
    reader.Reset();
    SetConnectionState(QLocalSocket::UnconnectedState);
    Q_EMIT SessionDown();
}

void ZTPipeSession::Private::Write(const QString& name, const QByteArray& data)
{
    if (!socket) {
        return;
    }
    if (socket->state() != QLocalSocket::ConnectedState) {
        diagnostics.Log(SocketErrorText(QLocalSocket::OperationError));
        return;
    }
    QDataStream stream(socket);
    stream << name << data;
    Q_EMIT MessageSent();
}

void ZTPipeSession::Private::Reconnect(const QString& serverName)
{
    socket->close();
    // Data that the old peer has not taken keeps a closing socket open; the new connection must not wait for it.
    if (socket->state() != QLocalSocket::UnconnectedState) {
        socket->abort();
    }
    reader.Reset();
    SetConnectionState(QLocalSocket::UnconnectedState);
    socket->connectToServer(serverName, QIODevice::ReadWrite);
}

void ZTPipeSession::Private::OnRunTimer()
{
    RestartTimer();
}

void ZTPipeSession::Private::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == timerId) {
        OnReadyRead();
    }
}

void ZTPipeSession::Private::SetConnectionState(int state)
{
    const QWriteLocker locker(&stateLock);
    connectionState = state;
}

void ZTPipeSession::Private::StopTimer()
{
    if (timerId != -1) {
        killTimer(timerId);
        timerId = -1;
    }
}

void ZTPipeSession::Private::RestartTimer()
{
    StopTimer();
    timerId = startTimer(readInterval, Qt::CoarseTimer);
}
