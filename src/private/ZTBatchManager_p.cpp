// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchManager_p.h"

#include "ZTBatchManagerTimings_p.h"
#include "ZTBatchPayload.h"
#include "ZTDiagnostics_p.h"
#include "ZTPipeSession.h"
#include "ZTPipeSessionEnd_p.h"
#include "ZTServerProcess_p.h"

#include <QAction>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QPointer>
#include <QSettings>

namespace {

constexpr ZTDiagnostics diagnostics("src\\private\\ZTBatchManager_p");

const QString pipeName = QStringLiteral("\\\\.\\pipe\\VelkoraBatchProcessing");
const QString serverBaseName = QStringLiteral("VelkoraBatchProcessing");
const QString policyFileName = QStringLiteral("BatchExceptionPolicy.ini");

const QString inputPolicyKey = QStringLiteral("InputPolicy");
const QString outputPolicyKey = QStringLiteral("OutputPolicy");
const QString processingPolicyKey = QStringLiteral("ProcessingPolicy");
const QString namingPolicyKey = QStringLiteral("NamingPolicy");
const QString writeToFormatPolicyKey = QStringLiteral("WriteToFormatPolicy");

/// Asks the server that listens on the pipe to end, if there is one. Returns the session whose thread writes the
/// message; its destruction waits for that.
std::unique_ptr<ZTPipeSession> AskListenerToClose(const QDeadlineTimer& deadline)
{
    auto session = std::make_unique<ZTPipeSession>(pipeName, nullptr);
    if (session->WaitForConnected(static_cast<int>(deadline.remainingTime()))) {
        session->Send(ZTBatchMessage::Name(ZTBatchMessage::MsgCloseServer),
                      ZTBatchPayload::Pack(ZTBatchPayload::ToServer<ZTBatchMessage::MsgCloseServer>{}));
    }
    return session;
}

QDeadlineTimer ListenerDeadline()
{
    return QDeadlineTimer(ZTBatchManagerTimings::InUse().listenerConnectTimeout);
}

} // namespace

void ZTBatchManager::Private::CloseListener()
{
    // Not left to the event loop: a host that ends without one would lose the message. Not destroyed here either: a
    // server that does not read would block the host.
    const QDeadlineTimer deadline = ListenerDeadline();
    ZTPipeSessionEnd::Begin(AskListenerToClose(deadline), deadline);
}

ZTBatchManager::Private::Private(ZTBatchManager* manager)
    : manager(manager)
{
}

ZTBatchManager::Private::~Private() = default;

void ZTBatchManager::Private::Initialize(const QString& newSettingsDir)
{
    diagnostics.Assert(manager);
    settingsDir = newSettingsDir;
}

void ZTBatchManager::Private::CleanUp()
{
    diagnostics.Assert(manager);
    SavePolicies();
    if (serverProcess) {
        DisconnectServerProcess();
        if (serverProcess->HasEnded()) {
            // Its end is being reported, and a slot of the host is releasing the manager.
            ReleaseServerProcess();
        }
    }
    if (pipe && pipe->IsConnected()) {
        diagnostics.Log(QStringLiteral("Send close server message."));
        Send(ZTBatchMessage::MsgCloseServer, ZTBatchPayload::ToServer<ZTBatchMessage::MsgCloseServer>{});
    } else if (pipe && !pipe->WaitForConnected(ZTBatchManagerTimings::InUse().shutdownConnectTimeout)) {
        diagnostics.Log(QStringLiteral("Client session is not connected."));
        if (serverProcess) {
            serverProcess->Close();
        }
    }
    // A server whose pipe connects only within that second gets no close message: the wait times out, and the server is
    // killed with the process object. A known flaw, kept because hosts expect this shutdown.
    if (serverProcess && !serverProcess->WaitForEnd(ZTBatchManagerTimings::InUse().serverEndTimeout)) {
        diagnostics.Log(QStringLiteral("Finish server process error."));
    }
}

void ZTBatchManager::Private::Start()
{
    diagnostics.Assert(manager);
    const QPointer<ZTBatchManager> guard(manager);
    StartServerProcess();
    // A process that fails inside the call has been reported and torn down already; without it a pipe is useless.
    if (guard && serverProcess) {
        ConnectPipe();
    }
}

void ZTBatchManager::Private::StartServerProcess()
{
    diagnostics.Assert(manager);
    if (serverProcess) {
        diagnostics.Log(QStringLiteral("Batch process already started."));
        return;
    }
    serverProcess = new ZTServerProcess(manager);
    connect(serverProcess, SIGNAL(error(QProcess::ProcessError)), manager, SLOT(OnServerError(QProcess::ProcessError)));
    connect(serverProcess, SIGNAL(finished(int)), manager, SLOT(OnServerFinished(int)));
    serverProcess->Launch(QCoreApplication::applicationDirPath() + QDir::separator() + serverBaseName, {pipeName});
}

void ZTBatchManager::Private::ConnectPipe()
{
    diagnostics.Assert(manager);
    if (pipe) {
        diagnostics.Log(QStringLiteral("Batch server already connected."));
        return;
    }
    pipe = new ZTPipeSession(pipeName, manager);
    connect(pipe, SIGNAL(IncomingMessage(QString, QByteArray)), manager, SLOT(OnIncomingMessage(QString, QByteArray)));
    connect(pipe, SIGNAL(SessionConnected()), manager, SIGNAL(ConnectionEstablished()));
    connect(pipe, SIGNAL(SessionDown()), manager, SLOT(OnPipeDown()));
    RestartTimer(startupTimerId, ZTBatchManagerTimings::InUse().startupTimeout);
    if (!pipe->IsConnected()) {
        RestartTimer(reconnectTimerId, ZTBatchManagerTimings::InUse().reconnectInterval);
    }
}

void ZTBatchManager::Private::Stop()
{
    diagnostics.Assert(manager);
    EndServerProcess();
}

void ZTBatchManager::Private::EndServerProcess()
{
    diagnostics.Assert(manager);
    if (serverProcess && serverProcess->processId() != 0 && !serverProcess->HasEnded()) {
        serverProcess->Close();
    } else {
        diagnostics.Log(QStringLiteral("Batch process does not exist."));
    }
}

void ZTBatchManager::Private::CloseServerProcess()
{
    diagnostics.Assert(manager);
    diagnostics.Assert(serverProcess);
    // The session exists until the wait is over: its thread writes the message meanwhile, and the connection stays open
    // for a server that answers on it.
    const std::unique_ptr<ZTPipeSession> session = AskListenerToClose(ListenerDeadline());
    ZTServerProcess* const process = serverProcess; // A slot of the host may start another one.
    if (!process->WaitForEnd(ZTBatchManagerTimings::InUse().serverEndTimeout)) {
        process->kill();
    }
}

void ZTBatchManager::Private::HandleTimer(int timerId)
{
    diagnostics.Assert(manager);
    diagnostics.Assert(serverProcess);
    if (timerId == reconnectTimerId) {
        if (pipe->IsConnected()) {
            StopTimer(reconnectTimerId);
        } else {
            pipe->Reconnect(pipeName);
        }
    } else if (timerId == startupTimerId) {
        if (pipe->IsConnected()) {
            StopTimer(startupTimerId);
        } else {
            EndServerProcess();
        }
    }
}

void ZTBatchManager::Private::HandlePipeDown()
{
    diagnostics.Assert(manager);
    RestartTimer(reconnectTimerId, ZTBatchManagerTimings::InUse().reconnectInterval);
}

void ZTBatchManager::Private::HandleMessage(const QString& name, const QByteArray& data)
{
    diagnostics.Assert(manager);
    const ZTBatchMessage::Message message = ZTBatchMessage::FromName(name);
    if (message < ZTBatchMessage::MsgFinished || message > ZTBatchMessage::MsgWriteToFormatQuestion) {
        return;
    }
    ZTBatchSession* session = sessions.Find(ZTBatchPayload::Unpack<ZTBatchPayload::Session>(data).sessionId);
    if (!session) {
        return;
    }
    switch (message) {
    case ZTBatchMessage::MsgFinished:
        session->SessionFinished();
        break;
    case ZTBatchMessage::MsgProgress: {
        const auto progress = ZTBatchPayload::Unpack<ZTBatchPayload::FromServer<ZTBatchMessage::MsgProgress>>(data);
        session->SessionProgress(progress.value);
        break;
    }
    case ZTBatchMessage::MsgFileInProgress: {
        const auto file = ZTBatchPayload::Unpack<ZTBatchPayload::FromServer<ZTBatchMessage::MsgFileInProgress>>(data);
        session->SessionFileInProgress(file.inputFileName);
        break;
    }
    case ZTBatchMessage::MsgFileProcessed: {
        const auto files = ZTBatchPayload::Unpack<ZTBatchPayload::FromServer<ZTBatchMessage::MsgFileProcessed>>(data);
        session->SessionProgress(files.inputFileName, files.outputFileName);
        break;
    }
    case ZTBatchMessage::MsgLog: {
        const auto log = ZTBatchPayload::Unpack<ZTBatchPayload::FromServer<ZTBatchMessage::MsgLog>>(data);
        session->SessionLog(log.text);
        break;
    }
    case ZTBatchMessage::MsgProgressRange: {
        const auto range = ZTBatchPayload::Unpack<ZTBatchPayload::FromServer<ZTBatchMessage::MsgProgressRange>>(data);
        session->SessionProgressRange(range.minimum, range.maximum);
        break;
    }
    case ZTBatchMessage::MsgPaused:
        session->SessionPaused();
        break;
    case ZTBatchMessage::MsgResumed:
        session->SessionResumed();
        break;
    case ZTBatchMessage::MsgCancelled:
        session->SessionCancelled();
        break;
    case ZTBatchMessage::MsgError: {
        const auto error = ZTBatchPayload::Unpack<ZTBatchPayload::FromServer<ZTBatchMessage::MsgError>>(data);
        session->SessionError(error.inputFileName, error.outputFileName, error.action, error.errorCode);
        break;
    }
    case ZTBatchMessage::MsgInputQuestion:
        session->SessionInputQuestion();
        break;
    case ZTBatchMessage::MsgOutputQuestion:
        session->SessionOutputQuestion();
        break;
    case ZTBatchMessage::MsgProcessingQuestion:
        session->SessionProcessingQuestion();
        break;
    case ZTBatchMessage::MsgNamingQuestion:
        session->SessionNamingQuestion();
        break;
    case ZTBatchMessage::MsgWriteToFormatQuestion:
        session->SessionWriteToFormatQuestion();
        break;
    default:
        break;
    }
}

ZTBatchManager::ZTBatchSession* ZTBatchManager::Private::CreateSession()
{
    diagnostics.Assert(manager);
    if (!pipe || !pipe->IsConnected()) {
        return nullptr;
    }
    const QString id = idContainer.CreateAndRegisterID();
    SendSessionMessage(ZTBatchMessage::MsgCreateSession, id);
    auto* session = new ZTBatchSession(id, manager);
    sessions.Insert(id, session);
    connect(session, SIGNAL(destroyed(QObject*)), manager, SLOT(OnBatchSessionDestroyed(QObject*)));
    return session;
}

void ZTBatchManager::Private::HandleSessionDestroyed(const QObject* session)
{
    diagnostics.Assert(manager);
    const QString id = sessions.IdOf(session);
    if (id.isEmpty()) {
        return;
    }
    if (!pipe) {
        // The entry remains, so that IsAllowToCreateSession() stays false: a host must delete its session before the
        // server goes.
        sessions.MarkDeleted(id);
        return;
    }
    SendSessionMessage(ZTBatchMessage::MsgCloseSession, id);
    sessions.Remove(id);
    idContainer.UnregisterID(id);
}

void ZTBatchManager::Private::HandleServerError(QProcess::ProcessError error)
{
    diagnostics.Assert(manager);
    if (error != QProcess::FailedToStart && error != QProcess::Crashed) {
        diagnostics.Log(QStringLiteral("Batch server error: %1").arg(error));
        return;
    }
    const QPointer<ZTBatchManager> guard(manager);
    NotifySessions(&ZTBatchSession::SessionAborted);
    if (guard) {
        TearDown();
    }
}

void ZTBatchManager::Private::HandleServerFinished()
{
    diagnostics.Assert(manager);
    // Any exit of the server counts as abnormal, whatever its exit code, but is reported to the sessions as the end of
    // their run, not as an abort.
    const QPointer<ZTBatchManager> guard(manager);
    NotifySessions(&ZTBatchSession::SessionFinished);
    if (guard) {
        TearDown();
    }
}

void ZTBatchManager::Private::NotifySessions(void (ZTBatchSession::*end)())
{
    diagnostics.Assert(manager);
    const QString text = ZTBatchManager::tr("Abnormal process termination.");
    const QVector<QPointer<ZTBatchSession>> all = sessions.All();
    // A session that a slot deletes meanwhile is null, and all are null if a slot releases the manager.
    for (const QPointer<ZTBatchSession>& session : all) {
        if (session) {
            session->SessionLog(text);
        }
        if (session) {
            (session->*end)();
        }
    }
}

void ZTBatchManager::Private::TearDown()
{
    diagnostics.Assert(manager);
    if (pipe) {
        StopTimer(reconnectTimerId);
        StopTimer(startupTimerId);
        disconnect(pipe, SIGNAL(IncomingMessage(QString, QByteArray)), manager,
                   SLOT(OnIncomingMessage(QString, QByteArray)));
        disconnect(pipe, SIGNAL(SessionConnected()), manager, SIGNAL(ConnectionEstablished()));
        disconnect(pipe, SIGNAL(SessionDown()), manager, SLOT(OnPipeDown()));
        pipe->deleteLater();
        pipe = nullptr;
    }
    if (serverProcess) {
        DisconnectServerProcess();
        ReleaseServerProcess();
    }
    Q_EMIT manager->ConnectionFailed();
}

void ZTBatchManager::Private::DisconnectServerProcess()
{
    diagnostics.Assert(manager);
    disconnect(serverProcess, SIGNAL(error(QProcess::ProcessError)), manager,
               SLOT(OnServerError(QProcess::ProcessError)));
    disconnect(serverProcess, SIGNAL(finished(int)), manager, SLOT(OnServerFinished(int)));
}

void ZTBatchManager::Private::ReleaseServerProcess()
{
    diagnostics.Assert(manager);
    // It may be emitting right now, so it must outlive a manager that is released by the slot.
    serverProcess->Release();
    serverProcess = nullptr;
}

void ZTBatchManager::Private::RestartTimer(int& timerId, int interval)
{
    StopTimer(timerId);
    timerId = manager->startTimer(interval, Qt::CoarseTimer);
}

void ZTBatchManager::Private::StopTimer(int& timerId)
{
    diagnostics.Assert(manager);
    if (timerId != -1) {
        manager->killTimer(timerId);
        timerId = -1;
    }
}

template<typename Payload>
void ZTBatchManager::Private::Send(ZTBatchMessage::Message message, const Payload& payload)
{
    diagnostics.Assert(manager);
    // Without a pipe the message is dropped, as on an unconnected one.
    if (pipe) {
        pipe->Send(ZTBatchMessage::Name(message), ZTBatchPayload::Pack(payload));
    }
}

void ZTBatchManager::Private::SendProcess(const QString& id, const QString& document)
{
    Send(ZTBatchMessage::MsgProcess,
         ZTBatchPayload::ToServer<ZTBatchMessage::MsgProcess>{id, document, inputPolicy, outputPolicy, processingPolicy,
                                                              namingPolicy, writeToFormatPolicy});
}

void ZTBatchManager::Private::SendSessionMessage(ZTBatchMessage::Message message, const QString& id)
{
    Send(message, ZTBatchPayload::Session{id});
}

void ZTBatchManager::Private::SendAnswer(ZTBatchMessage::Message question, const QString& id, int policy, bool flag)
{
    Send(question, ZTBatchPayload::Answer{id, policy, flag});
}

void ZTBatchManager::Private::LoadPolicies()
{
    diagnostics.Assert(manager);
    // The fields still hold the defaults. A value that is not a number becomes 0.
    const QSettings file(PolicyFilePath(), QSettings::IniFormat);
    manager->SetInputPolicy(static_cast<InputPolicy>(file.value(inputPolicyKey, inputPolicy).toInt()));
    manager->SetOutputPolicy(static_cast<OutputPolicy>(file.value(outputPolicyKey, outputPolicy).toInt()));
    manager->SetProcessingPolicy(
        static_cast<ProcessingPolicy>(file.value(processingPolicyKey, processingPolicy).toInt()));
    manager->SetNamingPolicy(static_cast<NamingPolicy>(file.value(namingPolicyKey, namingPolicy).toInt()));
    manager->SetWriteToFormatPolicy(
        static_cast<WriteToFormatPolicy>(file.value(writeToFormatPolicyKey, writeToFormatPolicy).toInt()));
}

void ZTBatchManager::Private::SavePolicies() const
{
    diagnostics.Assert(manager);
    QSettings file(PolicyFilePath(), QSettings::IniFormat);
    file.setValue(inputPolicyKey, inputPolicy);
    file.setValue(outputPolicyKey, outputPolicy);
    file.setValue(processingPolicyKey, processingPolicy);
    file.setValue(namingPolicyKey, namingPolicy);
    file.setValue(writeToFormatPolicyKey, writeToFormatPolicy);
}

QString ZTBatchManager::Private::PolicyFilePath() const
{
    diagnostics.Assert(manager);
    return settingsDir + QDir::separator() + policyFileName;
}

void ZTBatchManager::Private::RegisterAction(QAction* action, int order)
{
    if (inputActions.Contains(action)) {
        return;
    }
    inputActions.Insert(order, action);
    connect(action, SIGNAL(destroyed(QObject*)), manager, SLOT(OnInputActionDestroyed(QObject*)));
    diagnostics.Assert(manager);
    Q_EMIT manager->InputActionRegistered(action, order);
}

void ZTBatchManager::Private::UnregisterAction(QAction* action)
{
    diagnostics.Assert(manager);
    if (!inputActions.Contains(action)) {
        return;
    }
    disconnect(action, SIGNAL(destroyed(QObject*)), manager, SLOT(OnInputActionDestroyed(QObject*)));
    inputActions.Remove(action);
    Q_EMIT manager->InputActionUnregistered(action);
}

void ZTBatchManager::Private::HandleActionDestroyed(const QObject* action)
{
    diagnostics.Assert(manager);
    diagnostics.Assert(inputActions.Remove(action));
}

QList<QAction*> ZTBatchManager::Private::Actions() const
{
    diagnostics.Assert(manager);
    QList<QAction*> actions;
    for (QObject* object : inputActions.Actions()) {
        auto* action = qobject_cast<QAction*>(object);
        diagnostics.Assert(action);
        actions.append(action);
    }
    return actions;
}

void ZTBatchManager::Private::ReplaceHandler(QObject*& handler, QObject* newHandler, const char* destroyedSlot)
{
    diagnostics.Assert(manager);
    if (handler) {
        disconnect(handler, SIGNAL(destroyed(QObject*)), manager, destroyedSlot);
    }
    handler = newHandler;
    if (handler) {
        connect(handler, SIGNAL(destroyed(QObject*)), manager, destroyedSlot);
    }
}
