// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchManager.h"

#include "ZTBatchManager_p.h"
#include "ZTDiagnostics_p.h"
#include "ZTInputDnDHandler.h"
#include "ZTInputUpdateHandler.h"

#include <QAction>
#include <QPointer>
#include <QTimerEvent>

#include <utility>

namespace {

constexpr ZTDiagnostics diagnostics("src\\ZTBatchManager");

ZTBatchManager* instance = nullptr;

/// Registers T under `name`, which the signals use, for queued connections and signal spies.
template<typename T>
void RegisterSignalType(const char* name)
{
    if (QMetaType::type(name) == QMetaType::UnknownType) {
        qRegisterMetaType<T>(name);
    }
}

} // namespace

void ZTBatchManager::InitInstance(const QString& settingsDir)
{
    if (!instance) {
        instance = new ZTBatchManager(settingsDir, nullptr);
    }
}

ZTBatchManager* ZTBatchManager::Instance()
{
    return instance;
}

void ZTBatchManager::ReleaseInstance()
{
    // Cleared first, so that slots called during the destruction do not find a half-destroyed manager.
    delete std::exchange(instance, nullptr);
}

void ZTBatchManager::KillExistingBatchProcess(bool waitForExit)
{
    if (instance && waitForExit && instance->IsStarted()) {
        instance->d->CloseServerProcess();
    } else {
        Private::CloseListener();
    }
}

ZTBatchManager::ZTBatchManager(const QString& settingsDir, QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this))
{
    RegisterSignalType<QAction*>("QAction*");
    RegisterSignalType<InputPolicy>("InputPolicy");
    RegisterSignalType<OutputPolicy>("OutputPolicy");
    RegisterSignalType<ProcessingPolicy>("ProcessingPolicy");
    RegisterSignalType<NamingPolicy>("NamingPolicy");
    RegisterSignalType<WriteToFormatPolicy>("WriteToFormatPolicy");
    d->Initialize(settingsDir);
    d->LoadPolicies();
}

ZTBatchManager::~ZTBatchManager()
{
    diagnostics.Log(QStringLiteral("Destroy"));
    d->CleanUp();
    d.reset();
    diagnostics.Log(QStringLiteral("Destroyed"));
}

bool ZTBatchManager::IsStarted() const
{
    diagnostics.Assert(d != nullptr);
    return d->serverProcess != nullptr;
}

bool ZTBatchManager::IsAllowToCreateSession() const
{
    diagnostics.Assert(d != nullptr);
    return d->sessions.IsEmpty();
}

ZTBatchManager::InputPolicy ZTBatchManager::GetInputPolicy() const
{
    diagnostics.Assert(d != nullptr);
    return static_cast<InputPolicy>(d->inputPolicy);
}

ZTBatchManager::OutputPolicy ZTBatchManager::GetOutputPolicy() const
{
    diagnostics.Assert(d != nullptr);
    return static_cast<OutputPolicy>(d->outputPolicy);
}

ZTBatchManager::ProcessingPolicy ZTBatchManager::GetProcessingPolicy() const
{
    diagnostics.Assert(d != nullptr);
    return static_cast<ProcessingPolicy>(d->processingPolicy);
}

ZTBatchManager::NamingPolicy ZTBatchManager::GetNamingPolicy() const
{
    diagnostics.Assert(d != nullptr);
    return static_cast<NamingPolicy>(d->namingPolicy);
}

ZTBatchManager::WriteToFormatPolicy ZTBatchManager::GetWriteToFormatPolicy() const
{
    diagnostics.Assert(d != nullptr);
    return static_cast<WriteToFormatPolicy>(d->writeToFormatPolicy);
}

QList<QAction*> ZTBatchManager::GetInputActions() const
{
    diagnostics.Assert(d != nullptr);
    return d->Actions();
}

ZTBatchManager::ZTInputDnDHandler* ZTBatchManager::InputDragAndDropHandler() const
{
    diagnostics.Assert(d != nullptr);
    return qobject_cast<ZTInputDnDHandler*>(d->dndHandler);
}

ZTBatchManager::ZTInputUpdateHandler* ZTBatchManager::InputUpdateHandler() const
{
    diagnostics.Assert(d != nullptr);
    return qobject_cast<ZTInputUpdateHandler*>(d->updateHandler);
}

void ZTBatchManager::Start()
{
    diagnostics.Assert(d != nullptr);
    d->Start();
}

void ZTBatchManager::Stop()
{
    diagnostics.Assert(d != nullptr);
    d->Stop();
}

ZTBatchManager::ZTBatchSession* ZTBatchManager::CreateBatchSession()
{
    diagnostics.Assert(d != nullptr);
    return d->CreateSession();
}

void ZTBatchManager::SetInputPolicy(InputPolicy policy)
{
    diagnostics.Assert(d != nullptr);
    if (d->inputPolicy == policy) {
        return;
    }
    d->inputPolicy = policy;
    Q_EMIT InputPolicyChanged(policy);
}

void ZTBatchManager::SetOutputPolicy(OutputPolicy policy)
{
    diagnostics.Assert(d != nullptr);
    if (d->outputPolicy == policy) {
        return;
    }
    d->outputPolicy = policy;
    Q_EMIT OutputPolicyChanged(policy);
}

void ZTBatchManager::SetProcessingPolicy(ProcessingPolicy policy)
{
    diagnostics.Assert(d != nullptr);
    if (d->processingPolicy == policy) {
        return;
    }
    d->processingPolicy = policy;
    Q_EMIT ProcessingPolicyChanged(policy);
}

void ZTBatchManager::SetNamingPolicy(NamingPolicy policy)
{
    diagnostics.Assert(d != nullptr);
    if (d->namingPolicy == policy) {
        return;
    }
    d->namingPolicy = policy;
    Q_EMIT NamingPolicyChanged(policy);
}

void ZTBatchManager::SetWriteToFormatPolicy(WriteToFormatPolicy policy)
{
    diagnostics.Assert(d != nullptr);
    if (d->writeToFormatPolicy == policy) {
        return;
    }
    d->writeToFormatPolicy = policy;
    Q_EMIT WriteToFormatChanged(policy);
}

void ZTBatchManager::RegisterInputAction(QAction* action, int index)
{
    diagnostics.Assert(d != nullptr);
    d->RegisterAction(action, index);
}

void ZTBatchManager::UnregisterInputAction(QAction* action)
{
    diagnostics.Assert(d != nullptr);
    d->UnregisterAction(action);
}

void ZTBatchManager::RegisterDragAndDropHandler(ZTInputDnDHandler* handler)
{
    diagnostics.Assert(d != nullptr);
    d->ReplaceHandler(d->dndHandler, handler, SLOT(OnDnDHandlerDestroyed(QObject*)));
}

void ZTBatchManager::UnregisterDragAndDropHandler()
{
    diagnostics.Assert(d != nullptr);
    d->ReplaceHandler(d->dndHandler, nullptr, SLOT(OnDnDHandlerDestroyed(QObject*)));
}

void ZTBatchManager::RegisterInputUpdateHandler(ZTInputUpdateHandler* handler)
{
    diagnostics.Assert(d != nullptr);
    d->ReplaceHandler(d->updateHandler, handler, SLOT(OnInputUpdateHandlerDestroyed(QObject*)));
}

void ZTBatchManager::UnregisterInputHandler()
{
    diagnostics.Assert(d != nullptr);
    d->ReplaceHandler(d->updateHandler, nullptr, SLOT(OnInputUpdateHandlerDestroyed(QObject*)));
}

void ZTBatchManager::timerEvent(QTimerEvent* event)
{
    diagnostics.Assert(d != nullptr);
    // The watchdog ends the server, and a slot may then release the manager.
    const QPointer<ZTBatchManager> guard(this);
    d->HandleTimer(event->timerId());
    if (guard) {
        QObject::timerEvent(event);
    }
}

void ZTBatchManager::OnInputActionDestroyed(QObject* object)
{
    diagnostics.Assert(d != nullptr);
    d->HandleActionDestroyed(object);
}

void ZTBatchManager::OnBatchSessionDestroyed(QObject* object)
{
    diagnostics.Assert(d != nullptr);
    d->HandleSessionDestroyed(object);
}

void ZTBatchManager::OnIncomingMessage(const QString& msgName, const QByteArray& data)
{
    diagnostics.Assert(d != nullptr);
    d->HandleMessage(msgName, data);
}

void ZTBatchManager::OnServerError(QProcess::ProcessError error)
{
    diagnostics.Assert(d != nullptr);
    d->HandleServerError(error);
}

void ZTBatchManager::OnServerFinished(int)
{
    diagnostics.Assert(d != nullptr);
    d->HandleServerFinished();
}

void ZTBatchManager::OnPipeDown()
{
    diagnostics.Assert(d != nullptr);
    d->HandlePipeDown();
}

void ZTBatchManager::OnInputUpdateHandlerDestroyed(QObject*)
{
    diagnostics.Assert(d != nullptr);
    d->updateHandler = nullptr;
}

void ZTBatchManager::OnDnDHandlerDestroyed(QObject*)
{
    diagnostics.Assert(d != nullptr);
    d->dndHandler = nullptr;
}

void ZTBatchManager::Process(const QString& id, const QString& document)
{
    diagnostics.Assert(d != nullptr);
    d->SendProcess(id, document);
}

void ZTBatchManager::Pause(const QString& id)
{
    diagnostics.Assert(d != nullptr);
    d->SendSessionMessage(ZTBatchMessage::MsgPause, id);
}

void ZTBatchManager::Resume(const QString& id)
{
    diagnostics.Assert(d != nullptr);
    d->SendSessionMessage(ZTBatchMessage::MsgResume, id);
}

void ZTBatchManager::Cancel(const QString& id)
{
    diagnostics.Assert(d != nullptr);
    d->SendSessionMessage(ZTBatchMessage::MsgCancel, id);
}

void ZTBatchManager::InputRespond(const QString& id, InputPolicy policy, bool flag)
{
    diagnostics.Assert(d != nullptr);
    d->SendAnswer(ZTBatchMessage::MsgInputQuestion, id, policy, flag);
}

void ZTBatchManager::OutputRespond(const QString& id, OutputPolicy policy, bool flag)
{
    diagnostics.Assert(d != nullptr);
    d->SendAnswer(ZTBatchMessage::MsgOutputQuestion, id, policy, flag);
}

void ZTBatchManager::ProcessingRespond(const QString& id, ProcessingPolicy policy, bool flag)
{
    diagnostics.Assert(d != nullptr);
    d->SendAnswer(ZTBatchMessage::MsgProcessingQuestion, id, policy, flag);
}

void ZTBatchManager::NamingRespond(const QString& id, NamingPolicy policy, bool flag)
{
    diagnostics.Assert(d != nullptr);
    d->SendAnswer(ZTBatchMessage::MsgNamingQuestion, id, policy, flag);
}

void ZTBatchManager::WriteToFormatRespond(const QString& id, WriteToFormatPolicy policy, bool flag)
{
    diagnostics.Assert(d != nullptr);
    d->SendAnswer(ZTBatchMessage::MsgWriteToFormatQuestion, id, policy, flag);
}
