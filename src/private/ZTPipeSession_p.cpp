#include "ZTPipeSession_p.h"

#include "ZTDiagnostics_p.h"

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

/// Messages with a payload up to `smallPayload` are put together into requests of about `writeSize`, and larger
/// payloads are written in pieces of that size. Bytes.
constexpr int smallPayload = 16 * 1024;
constexpr int writeSize = 256 * 1024;

/// How many events of one poll are handed to the owner at a time.
constexpr std::size_t largestLot = 128;

QString SocketErrorText(int error)
{
    return QStringLiteral("Socket error: %1").arg(error);
}

} // namespace

ZTPipeSession::Private::Private(ZTPipeSession* owner, const QString& serverName)
    : owner(owner)
{
    ConnectToOwner();
    connect(this, &Private::MessageSent, this, [this] { Tell({Event::Kind::Sent, {}, {}}); });

    socket = new QLocalSocket(this);
    connect(socket, SIGNAL(disconnected()), this, SLOT(OnDisconnected()));
    connect(socket, SIGNAL(error(QLocalSocket::LocalSocketError)), this, SLOT(OnError(QLocalSocket::LocalSocketError)));

    // An attempt that ends inside this call would run OnConnected() on this thread, before the session has its own and
    // before its user can listen. So success here is announced only when the user's thread is back in its event loop,
    // asks for something or has had its time.
    socket->connectToServer(serverName, QIODevice::ReadWrite);
    connect(socket, SIGNAL(connected()), this, SLOT(OnConnected()));
    socketMove.Leave(*socket, lastWritesTimeout);
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
    socketMove.Leave(*socket, lastWritesTimeout);
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
    // Both ways a queued connection would post one event for each message. The hand-over keeps their order and posts
    // one event for as many as wait.
    connect(this, &Private::SessionDown, this, [this] { Tell({Event::Kind::Down, {}, {}}); });
    connect(this, &Private::SessionConnected, this, [this] { Tell({Event::Kind::Connected, {}, {}}); });
    connect(this, &Private::IncomingMessage, this, [this](const QString& message, const QByteArray& data) {
        Tell({Event::Kind::Incoming, message, data});
    });
    connect(
        owner, &ZTPipeSession::WriteMessage, this,
        [this](const QString& name, const QByteArray& data) { AskForWrite(name, data); }, Qt::DirectConnection);
    connect(
        owner, &ZTPipeSession::ReconnectToServer, this,
        [this](const QString& serverName) {
            Ask({Request::Kind::Reconnect, 0, {}, {}, serverName});
        },
        Qt::DirectConnection);
    connect(
        owner, &ZTPipeSession::RunUpdateReadTimer, this,
        [this] {
            Ask({Request::Kind::RestartTimer, 0, {}, {}, {}});
        },
        Qt::DirectConnection);
}

void ZTPipeSession::Private::AskForWrite(const QString& name, const QByteArray& data)
{
    // The frames are made on the thread that sends: so a small payload is let go where it was made, and the session's
    // thread writes many messages at a time.
    if (data.size() > smallPayload) {
        Request request{Request::Kind::Write, 1, {}, data, {}};
        AppendFrameFront(request.frames, name, data);
        Ask(std::move(request));
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

void ZTPipeSession::Private::Ask(Request request)
{
    if (requests.Put([&](std::vector<Request>& waiting) { waiting.push_back(std::move(request)); })) {
        WakeWorker();
    }
}

void ZTPipeSession::Private::WakeWorker()
{
    QMetaObject::invokeMethod(
        this, [this] { DoRequests(); }, Qt::QueuedConnection);
}

void ZTPipeSession::Private::DoRequests()
{
    if (!requests.TakeAll(doing)) {
        return;
    }
    isGathering = true;
    FinishEarlyConnection();
    for (const Request& request : doing) {
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
    doing.clear();
    isGathering = false;
    HandOverEvents();
    // The event loop gets its turn between two lots, for the socket's sake.
    WakeWorker();
}

void ZTPipeSession::Private::Tell(Event event)
{
    telling.push_back(std::move(event));
    if (telling.size() >= largestLot || !isGathering) {
        HandOverEvents();
    }
}

void ZTPipeSession::Private::HandOverEvents()
{
    if (!telling.empty() && events.Put(telling)) {
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
    if (!events.TakeAll(emitting) && emitting.empty()) {
        return;
    }
    // For the events that come meanwhile, and for a slot with an event loop of its own, which gets the rest there.
    WakeOwner();
    // A slot may delete the session and with it this object.
    const QPointer<Private> self(this);
    while (self && emitted < emitting.size()) {
        const Event event = std::move(emitting[emitted++]);
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
        emitting.clear();
        emitted = 0;
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
        socketMove.Arrive(*socket);
    }
    // Before any queued event: one that reports an error changes the state, but the socket may be connected still.
    if (IsConnected()) {
        RestartTimer();
    }
    // The timers of an attempt that is under way change threads by an event, which must not be lost when the session is
    // deleted at once.
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
        // The attempt runs on a timer of the socket, which has to end on its own thread.
        socket->close();
    }
    if (socket) {
        socketMove.Leave(*socket, 0);
    }
    StopTimer();
}

void ZTPipeSession::Private::WriteRemainder()
{
    // What was sent before the end still goes out: a session that is deleted right after its last message is the rule,
    // not the exception. The deadline is for a peer that has stopped reading.
    DoRequests();
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
    // While data flows the next poll follows as soon as the event loop has fetched more: what would pile up until the
    // next tick is slower to read than to fetch.
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
    // What the pipe takes at once needs no memory in the socket; the event loop sends the rest.
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
    // Data that the old peer has not taken keeps a closing socket open; the new connection must not wait for it.
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
