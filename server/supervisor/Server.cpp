// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Server.h"

#include "HostLink.h"
#include "PeerProcess.h"

#include "job/plan/CommandLog.h"
#include "job/settings/JobCheck.h"

#include <QCoreApplication>
#include <QLocalSocket>

#include <algorithm>
#include <chrono>

using namespace BatchProtocol;

using namespace std::chrono_literals;

namespace BatchSupervisor {

namespace {

/// How long the server waits for a host: for the first one, and for one that disconnected before it began a session.
constexpr auto hostTime = 30s;

/// How long the server waits for its runs when it ends. A file system that does not answer may hold a run for ever.
constexpr auto endTime = 10s;

/// How many connections there may be. Each takes a thread and some of the files that a process may have open; when
/// these are used up, Qt stops to listen.
constexpr int mostPipes = 32;

} // namespace

Server::Server(const QString& workerProgram, const ServerLimits& limits)
    : limits(limits)
    , pool(workerProgram, limits)
{
    connect(&listener, &Listener::Connected, this, &Server::Accept);
    connect(&pool, &WorkerPool::RoomMade, this, &Server::ScheduleHandOut);
    for (QTimer* timer : {&hostTimeout, &endDeadline}) {
        timer->setSingleShot(true);
    }
    connect(&hostTimeout, &QTimer::timeout, this, [this] {
        qWarning("No host is connected: the server ends.");
        End();
    });
    connect(&endDeadline, &QTimer::timeout, this, &Server::Quit);
}

Server::~Server()
{
    qDeleteAll(runs);
    qDeleteAll(pipes);
}

bool Server::Start(const QString& pipeName)
{
    if (!listener.Listen(pipeName)) {
        return false;
    }
    pool.Start();
    hostTimeout.start(hostTime);
    return true;
}

void Server::End()
{
    if (isEnding) {
        return;
    }
    isEnding = true;
    listener.Close();
    if (runs.isEmpty()) {
        Quit();
        return;
    }
    endDeadline.start(endTime);
    const QVector<Run*> all = runs;
    for (Run* run : all) {
        run->Cancel();
    }
}

void Server::EndWithoutHost()
{
    waitsForHosts = false;
    if (pipes.isEmpty()) {
        End();
    }
}

void Server::Accept(QLocalSocket* socket)
{
    if (pipes.size() >= mostPipes && !MakeRoom()) {
        qWarning("A connection was refused: there are %d, each with a session.", mostPipes);
        socket->abort();
        socket->deleteLater();
        return;
    }
    hostTimeout.stop();
    const qint64 process = PeerProcess(*socket);
    auto* const pipe = new ZTPipeSession(socket, nullptr);
    pipes.append(pipe);
    processes.insert(pipe, process);
    connect(pipe, &ZTPipeSession::IncomingMessage, this,
            [this, pipe](const QString& name, const QByteArray& payload) { Handle(pipe, name, payload); });
    connect(pipe, &ZTPipeSession::SessionDown, this, [this, pipe] { LosePipe(pipe); });
    if (!pipe->IsConnected()) {
        LosePipe(pipe); // It was lost before the signal was connected.
    }
}

/// Ends the oldest connection without a session, of the process that has most connections. So a crowd of connections
/// does not push out a host that has not begun its session yet. False if every connection has a session.
bool Server::MakeRoom()
{
    QHash<qint64, int> counts;
    for (const qint64 process : qAsConst(processes)) {
        ++counts[process];
    }
    ZTPipeSession* victim = nullptr;
    for (ZTPipeSession* pipe : qAsConst(pipes)) {
        const auto countOf = [&](ZTPipeSession* of) { return counts.value(processes.value(of)); };
        if (!HasSession(pipe) && (!victim || countOf(pipe) > countOf(victim))) {
            victim = pipe;
        }
    }
    if (victim) {
        LosePipe(victim);
    }
    return victim != nullptr;
}

bool Server::HasSession(ZTPipeSession* pipe) const
{
    return std::any_of(sessions.begin(), sessions.end(),
                       [pipe](const Session& session) { return session.pipe == pipe; });
}

void Server::Handle(ZTPipeSession* pipe, const QString& name, const QByteArray& payload)
{
    if (isEnding) {
        return;
    }
    const ZTBatchMessage::Message message = ZTBatchMessage::FromName(name);
    switch (message) {
    case ZTBatchMessage::MsgCreateSession:
    case ZTBatchMessage::MsgCloseSession:
    case ZTBatchMessage::MsgPause:
    case ZTBatchMessage::MsgResume:
    case ZTBatchMessage::MsgCancel: {
        bool isExact = false;
        const auto session = ZTBatchPayload::Unpack<ZTBatchPayload::Session>(payload, &isExact);
        if (isExact) {
            Command(pipe, message, session.sessionId);
        } else {
            Refuse(pipe, message);
        }
        break;
    }
    case ZTBatchMessage::MsgProcess:
        Process(pipe, payload);
        break;
    case ZTBatchMessage::MsgInputQuestion:
    case ZTBatchMessage::MsgOutputQuestion:
    case ZTBatchMessage::MsgProcessingQuestion:
    case ZTBatchMessage::MsgNamingQuestion:
    case ZTBatchMessage::MsgWriteToFormatQuestion:
        Answer(pipe, message, payload);
        break;
    case ZTBatchMessage::MsgCloseServer:
        End();
        break;
    default:
        qWarning("A message was ignored: \"%s\" is not a message to a server.", qUtf8Printable(name.left(20)));
        break;
    }
}

void Server::Command(ZTPipeSession* pipe, ZTBatchMessage::Message message, const QString& id)
{
    if (message == ZTBatchMessage::MsgCreateSession) {
        CreateSession(pipe, id);
        return;
    }
    if (message == ZTBatchMessage::MsgCloseSession && !sessions.contains(id)) {
        return; // It ended with an earlier connection of its host.
    }
    Session* const session = SessionOf(pipe, id, message);
    if (!session) {
        return;
    }
    if (message == ZTBatchMessage::MsgCloseSession) {
        CloseSession(id);
    } else if (!session->run) {
        HostLink(pipe, id).Log(BatchJob::CommandLog::NoRun());
    } else if (message == ZTBatchMessage::MsgPause) {
        session->run->Pause();
    } else if (message == ZTBatchMessage::MsgResume) {
        session->run->Resume();
    } else {
        session->run->Cancel();
    }
}

void Server::CreateSession(ZTPipeSession* pipe, const QString& id)
{
    if (sessions.contains(id)) {
        qWarning("A session was not created: there is one with its id.");
        return;
    }
    Session session;
    session.pipe = pipe;
    sessions.insert(id, session);
}

void Server::CloseSession(const QString& id)
{
    Run* const run = sessions.take(id).run;
    if (run) {
        run->Cancel();
    }
}

void Server::Process(ZTPipeSession* pipe, const QByteArray& payload)
{
    bool isExact = false;
    const auto order = ZTBatchPayload::Unpack<ZTBatchPayload::Process>(payload, &isExact);
    if (!isExact) {
        Refuse(pipe, ZTBatchMessage::MsgProcess);
        return;
    }
    Session* const session = SessionOf(pipe, order.sessionId, ZTBatchMessage::MsgProcess);
    if (!session) {
        return;
    }
    const HostLink host(pipe, order.sessionId);
    if (session->hadRun) {
        host.Log(QStringLiteral("A session has one run: the second is ignored."));
        return;
    }
    session->hadRun = true;
    auto* const run = new Run(++lastRun, order, host, pool, limits, qEnvironmentVariable(BatchJob::journalVariable));
    session->run = run;
    runs.append(run);
    connect(run, &Run::HasTasks, this, &Server::ScheduleHandOut);
    connect(run, &Run::Over, this, [this, run] { OnRunOver(run); });
    run->Begin();
    pool.Start(); // Workers of earlier runs make room while the job is read.
}

void Server::Answer(ZTPipeSession* pipe, ZTBatchMessage::Message message, const QByteArray& payload)
{
    bool isExact = false;
    const auto answer = ZTBatchPayload::Unpack<ZTBatchPayload::Answer>(payload, &isExact);
    if (!isExact) {
        Refuse(pipe, message);
        return;
    }
    const Session* const session = SessionOf(pipe, answer.sessionId, message);
    if (!session) {
        return;
    }
    if (session->run) {
        session->run->Answer(message, answer.policy, answer.flag);
    } else {
        HostLink(pipe, answer.sessionId).Log(QStringLiteral("No run is active: the answer is ignored."));
    }
}

/// The session `id` of the host at `pipe`; null, with a line on stderr, when that host has no such session.
Server::Session* Server::SessionOf(ZTPipeSession* pipe, const QString& id, ZTBatchMessage::Message message)
{
    const auto session = sessions.find(id);
    if (session == sessions.end() || session->pipe != pipe) {
        qWarning("Message %d was ignored: its session is unknown.", int(message));
        return nullptr;
    }
    return &*session;
}

void Server::Refuse(ZTPipeSession* pipe, ZTBatchMessage::Message message)
{
    qWarning("A connection was ended: the payload of its message %d is malformed.", int(message));
    LosePipe(pipe);
}

void Server::LosePipe(ZTPipeSession* pipe)
{
    if (!pipes.removeOne(pipe)) {
        return;
    }
    processes.remove(pipe);
    pipe->disconnect(this);
    pipe->deleteLater();
    bool hadSession = false;
    const QStringList ids = sessions.keys();
    for (const QString& id : ids) {
        if (sessions.value(id).pipe == pipe) {
            hadSession = true;
            CloseSession(id);
        }
    }
    if (!pipes.isEmpty() || isEnding) {
        return;
    }
    if (hadSession || !waitsForHosts) {
        End();
    } else {
        // A host may drop an early connection and connect again at once.
        hostTimeout.start(hostTime);
    }
}

void Server::ScheduleHandOut()
{
    if (!isHandOutScheduled) {
        isHandOutScheduled = true;
        QMetaObject::invokeMethod(
            this, [this] { HandOut(); }, Qt::QueuedConnection);
    }
}

void Server::HandOut()
{
    isHandOutScheduled = false;
    QVector<QByteArray> jobs;
    for (const Run* run : qAsConst(runs)) {
        if (run->HasWork() && !jobs.contains(run->CurrentGroup())) {
            jobs.append(run->CurrentGroup());
        }
    }
    pool.Serve(jobs);
    // The runs hand out in turn.
    int idle = 0;
    while (idle < runs.size()) {
        Run* const run = runs.first();
        const bool hasGiven = pool.HasRoom(run->CurrentGroup(), run->TasksLeft()) && run->HandOut();
        idle = hasGiven ? 0 : idle + 1;
        if (!runs.isEmpty() && runs.first() == run) {
            runs.append(runs.takeFirst());
        }
    }
}

void Server::OnRunOver(Run* run)
{
    runs.removeOne(run);
    for (Session& session : sessions) {
        if (session.run == run) {
            session.run = nullptr;
        }
    }
    run->deleteLater();
    if (isEnding && runs.isEmpty()) {
        Quit();
    }
}

void Server::Quit()
{
    QCoreApplication::quit();
}

} // namespace BatchSupervisor
