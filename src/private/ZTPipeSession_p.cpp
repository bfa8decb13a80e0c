// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTPipeSession_p.h"

#include "ZTDiagnostics_p.h"
#include "ZTPipePeer.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>
#include <QTimerEvent>

#include <algorithm>
#include <utility>

namespace {

constexpr ZTDiagnostics diagnostics("src\\private\\ZTPipeSession_p");

constexpr int readInterval = 10;        // ms
constexpr int lastWritesTimeout = 1000; // ms
constexpr int announceTimeout = 250;    // ms

/// In bytes. Messages with a payload of at most `smallPayload` are combined into requests of about `writeSize`; larger
/// payloads are written in pieces of that size.
constexpr int smallPayload = 16 * 1024;
constexpr int writeSize = 256 * 1024;

/// The maximum number of events of one poll that are handed to the owner together.
constexpr std::size_t largestEventBatch = 128;

QString SocketErrorText(int error)
{
    return QStringLiteral("Socket error: %1").arg(error);
}

} // namespace

ZTPipeSession::Private::Private(ZTPipeSession* owner, const QString& serverName)
    : owner(owner)
{
    ConnectToOwner();
    connect(this, &Private::MessageSent, this, [this] { QueueEvent({Event::Kind::Sent, {}, {}}); });

    socket = new QLocalSocket(this);
    connect(socket, SIGNAL(disconnected()), this, SLOT(OnDisconnected()));
    connect(socket, SIGNAL(error(QLocalSocket::LocalSocketError)), this, SLOT(OnError(QLocalSocket::LocalSocketError)));

    // If the attempt succeeded inside this call, connected() would run OnConnected() on this thread, before the
    // session's thread exists and before the user can connect to signals. So the signal is connected afterwards, and an
    // early success is announced when the user's thread is back in its event loop, makes a request, or after a timeout.
    socket->connectToServer(serverName, QIODevice::ReadWrite);
    connect(socket, SIGNAL(connected()), this, SLOT(OnConnected()));
    socketMove.DetachFromThread(*socket, lastWritesTimeout);
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
    socketMove.DetachFromThread(*socket, lastWritesTimeout);
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
    // A socket must not be destroyed on a foreign thread: it is leaked instead of being deleted with its parent.
    socket->setParent(nullptr);
}

void ZTPipeSession::Private::ConnectToOwner()
{
    diagnostics.Assert(owner);
    // Queued connections would post one event for each message, in both directions. The hand-over keeps the order and
    // posts one event for all waiting messages.
    connect(this, &Private::SessionDown, this, [this] { QueueEvent({Event::Kind::Down, {}, {}}); });
    connect(this, &Private::SessionConnected, this, [this] { QueueEvent({Event::Kind::Connected, {}, {}}); });
    connect(this, &Private::IncomingMessage, this, [this](const QString& message, const QByteArray& data) {
        QueueEvent({Event::Kind::Incoming, message, data});
    });
    connect(
        owner, &ZTPipeSession::WriteMessage, this,
        [this](const QString& name, const QByteArray& data) { QueueWrite(name, data); }, Qt::DirectConnection);
    connect(
        owner, &ZTPipeSession::ReconnectToServer, this,
        [this](const QString& serverName) {
            QueueRequest({Request::Kind::Reconnect, 0, {}, {}, serverName});
        },
        Qt::DirectConnection);
    connect(
        owner, &ZTPipeSession::RunUpdateReadTimer, this,
        [this] {
            QueueRequest({Request::Kind::RestartTimer, 0, {}, {}, {}});
        },
        Qt::DirectConnection);
}

void ZTPipeSession::Private::QueueWrite(const QString& name, const QByteArray& data)
{
    // The frames are built on the sending thread. So a small payload is freed on the thread that allocated it, and the
    // session's thread writes many messages at a time.
    if (data.size() > smallPayload) {
        Request request{Request::Kind::Write, 1, {}, data, {}};
        AppendFrameFront(request.frames, name, data);
        QueueRequest(std::move(request));
        return;
    }
    const bool hasToWake = requests.Put([&](std::vector<Request>& waiting) {
        const bool hasRoom = !waiting.empty() && waiting.back().kind == Request::Kind::Write &&
                             waiting.back().payload.isNull() && waiting.back().frames.size() < writeSize;
        if (!hasRoom) {
            waiting.push_back({Request::Kind::Write, 0, {}, {}, {}});
        }
        Request& request = waiting.back();
        AppendFrameFront(request.frames, name, data);
        request.frames.append(data);
        ++request.messageCount;
    });
    if (hasToWake) {
        WakeWorker();
    }
}

void ZTPipeSession::Private::QueueRequest(Request request)
{
    if (requests.Put([&](std::vector<Request>& waiting) { waiting.push_back(std::move(request)); })) {
        WakeWorker();
    }
}

void ZTPipeSession::Private::WakeWorker()
{
    QMetaObject::invokeMethod(
        this, [this] { HandleRequests(); }, Qt::QueuedConnection);
}

void ZTPipeSession::Private::HandleRequests()
{
    if (!requests.TakeAll(requestsInWork)) {
        return;
    }
    isGathering = true;
    FinishEarlyConnection();
    for (const Request& request : requestsInWork) {
        switch (request.kind) {
        case Request::Kind::Write:
            WriteFrames(request);
            break;
        case Request::Kind::Reconnect:
            Reconnect(request.serverName);
            break;
        case Request::Kind::RestartTimer:
            OnRunTimer();
            break;
        }
    }
    requestsInWork.clear();
    isGathering = false;
    HandOverEvents();
    // Return to the event loop between batches of requests, so that the socket's events are handled.
    WakeWorker();
}

void ZTPipeSession::Private::QueueEvent(Event event)
{
    gatheredEvents.push_back(std::move(event));
    if (gatheredEvents.size() >= largestEventBatch || !isGathering) {
        HandOverEvents();
    }
}

void ZTPipeSession::Private::HandOverEvents()
{
    if (!gatheredEvents.empty() && events.Put(gatheredEvents)) {
        WakeOwner();
    }
}

void ZTPipeSession::Private::WakeOwner()
{
    if (!owner) {
        return;
    }
    QMetaObject::invokeMethod(
        owner,
        [self = QPointer<Private>(this)] {
            if (self) {
                self->EmitEvents();
            }
        },
        Qt::QueuedConnection);
}

void ZTPipeSession::Private::EmitEvents()
{
    if (!events.TakeAll(eventsInWork) && eventsInWork.empty()) {
        return;
    }
    // For events that are queued meanwhile, and for a slot that runs an event loop, which then emits the rest.
    WakeOwner();
    // A slot may delete the session and with it this object.
    const QPointer<Private> self(this);
    while (self && emittedCount < eventsInWork.size()) {
        const Event event = std::move(eventsInWork[emittedCount++]);
        switch (event.kind) {
        case Event::Kind::Down:
            Q_EMIT owner->SessionDown();
            break;
        case Event::Kind::Connected:
            Q_EMIT owner->SessionConnected();
            break;
        case Event::Kind::Incoming:
            Q_EMIT owner->IncomingMessage(event.name, event.data);
            break;
        case Event::Kind::Sent:
            Q_EMIT owner->MessageSent();
            break;
        }
    }
    if (self) {
        eventsInWork.clear();
        emittedCount = 0;
    }
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
    QMetaObject::invokeMethod(
        this, [this] { FinishEarlyConnection(); }, Qt::QueuedConnection);
}

void ZTPipeSession::Private::FinishEarlyConnection()
{
    if (std::exchange(hasEarlyConnection, false)) {
        OnConnected();
    }
}

void ZTPipeSession::Private::Begin()
{
    if (socket) {
        socketMove.AttachToThread(*socket);
    }
    // Before any queued event: an error sets the cached state to unconnected although the socket may still be
    // connected.
    if (IsConnected()) {
        RestartTimer();
    }
    // The timers of a pending attempt move to this thread by an event, which must not be lost if the session is deleted
    // at once.
    QCoreApplication::sendPostedEvents();
    if (hasEarlyConnection) {
        QTimer::singleShot(announceTimeout, this, [this] { FinishEarlyConnection(); });
    }
}

void ZTPipeSession::Private::Finish()
{
    if (socket && socket->state() == QLocalSocket::ConnectedState) {
        WriteRemainder();
    } else if (socket && socket->state() == QLocalSocket::ConnectingState) {
        // The attempt uses a timer of the socket, which must be stopped on its own thread.
        socket->close();
    }
    if (socket) {
        socketMove.DetachFromThread(*socket, 0);
    }
    StopTimer();
}

void ZTPipeSession::Private::WriteRemainder()
{
    // Messages sent before the end are still written: sessions are usually deleted right after their last message. The
    // deadline is for a peer that has stopped reading.
    HandleRequests();
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
    // While data arrives, poll again as soon as the event loop has fetched more: a backlog until the next tick would be
    // slower to read.
    QTimer::singleShot(0, this, SLOT(OnReadyRead()));
}

void ZTPipeSession::Private::DeliverMessages()
{
    isGathering = true;
    ZTFrameReader::Result result = reader.Read(*socket);
    while (result == ZTFrameReader::Result::Message) {
        Q_EMIT IncomingMessage(reader.TakeName(), reader.TakePayload());
        result = reader.Read(*socket);
    }
    isGathering = false;
    HandOverEvents();
    if (result == ZTFrameReader::Result::Refused) {
        diagnostics.Log(reader.Refusal());
        socket->abort();
    }
}

void ZTPipeSession::Private::OnConnected()
{
    if (socket->state() == QLocalSocket::ConnectedState && !ZTPipePeer::IsOfThisUser(*socket)) {
        // As if nobody listened: neither a connection nor its end is reported.
        diagnostics.Log(QStringLiteral("The pipe belongs to another user."));
        const QSignalBlocker blocker(socket);
        socket->abort();
        return;
    }
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
    FinishEarlyConnection();
    // Complete messages that arrived before the peer closed are still delivered; an incomplete one is dropped. If this
    // side closed, the socket has nothing left to read.
    if (socket->bytesAvailable() > 0) {
        DeliverMessages();
    }
    reader.Reset();
    SetConnectionState(QLocalSocket::UnconnectedState);
    Q_EMIT SessionDown();
}

void ZTPipeSession::Private::Write(const QString& name, const QByteArray& data)
{
    Request request{Request::Kind::Write, 1, {}, data, {}};
    AppendFrameFront(request.frames, name, data);
    WriteFrames(request);
}

void ZTPipeSession::Private::WriteFrames(const Request& request)
{
    if (!socket) {
        return;
    }
    if (socket->state() != QLocalSocket::ConnectedState) {
        for (int message = 0; message < request.messageCount; ++message) {
            diagnostics.Log(SocketErrorText(QLocalSocket::OperationError));
        }
        return;
    }
    // Bytes that the pipe takes at once need no memory in the socket; the event loop sends the rest.
    socket->write(request.frames);
    socket->flush();
    for (int begin = 0; begin < request.payload.size(); begin += writeSize) {
        socket->write(request.payload.constData() + begin, std::min(writeSize, request.payload.size() - begin));
        socket->flush();
    }
    for (int message = 0; message < request.messageCount; ++message) {
        Q_EMIT MessageSent();
    }
}

void ZTPipeSession::Private::Reconnect(const QString& serverName)
{
    // A closing socket stays open until the old peer has taken all data; the new connection must not wait for that.
    socket->flush();
    if (socket->bytesToWrite() > 0) {
        socket->abort();
    } else {
        socket->close();
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
