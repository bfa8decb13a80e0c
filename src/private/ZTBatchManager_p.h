// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchManager.h"

#include "ZTBatchMessage.h"
#include "ZTBatchSessionMap_p.h"
#include "ZTIDContainer.h"
#include "ZTInputActionList_p.h"

#include <QString>

class ZTPipeSession;
class ZTServerProcess;

/// The manager's server process, pipe, sessions, policies and registries.
///
/// When a function that emits or ends the server returns, a slot of the host may have deleted the manager and this
/// object.
class Q_DECL_HIDDEN ZTBatchManager::Private
{
public:
    /// Asks a server that listens on the pipe to end. Does not wait for that.
    static void CloseListener();

    explicit Private(ZTBatchManager* manager);
    ~Private();

    void Initialize(const QString& newSettingsDir);

    /// Saves the policies and ends the server. Must be the last call before the destruction.
    void CleanUp();

    void Start();
    void Stop();

    /// Asks the server to end as CloseListener() does, waits for its process and then kills it. There must be a
    /// process.
    void CloseServerProcess();

    ZTBatchSession* CreateSession();

    void HandleTimer(int timerId);
    void HandleMessage(const QString& name, const QByteArray& data);
    void HandleServerError(QProcess::ProcessError error);
    void HandleServerFinished();
    void HandlePipeDown();
    void HandleSessionDestroyed(const QObject* session);

    void SendProcess(const QString& id, const QString& document);
    void SendSessionMessage(ZTBatchMessage::Message message, const QString& id);
    void SendAnswer(ZTBatchMessage::Message question, const QString& id, int policy, bool flag);

    void LoadPolicies();
    void SavePolicies() const;

    void RegisterAction(QAction* action, int order);
    void UnregisterAction(QAction* action);
    void HandleActionDestroyed(const QObject* action);
    QList<QAction*> Actions() const;
    void ReplaceHandler(QObject*& handler, QObject* newHandler, const char* destroyedSlot);

    ZTBatchManager* manager;
    ZTInputActionList inputActions;
    ZTServerProcess* serverProcess = nullptr;
    ZTPipeSession* pipe = nullptr;
    int startupTimerId = -1;
    int reconnectTimerId = -1;
    ZTBatchSessionMap sessions;
    ZTIDContainer idContainer;
    QObject* updateHandler = nullptr;
    QObject* dndHandler = nullptr;
    int inputPolicy = InputAsk;
    int outputPolicy = OutputAsk;
    int processingPolicy = ProcessingAsk;
    int namingPolicy = NamingAsk;
    int writeToFormatPolicy = WriteToFormatAsk;
    QString settingsDir;

private:
    void StartServerProcess();
    void ConnectPipe();
    void EndServerProcess();
    void NotifySessions(void (ZTBatchSession::*end)());
    void TearDown();
    void ReleaseServerProcess();
    void DisconnectServerProcess();
    void RestartTimer(int& timerId, int interval);
    void StopTimer(int& timerId);
    template<typename Payload>
    void Send(ZTBatchMessage::Message message, const Payload& payload);
    QString PolicyFilePath() const;
};
