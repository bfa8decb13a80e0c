// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchGlobal.h"

#include <QList>
#include <QObject>
#include <QProcess>

#include <memory>

class QAction;

/// The singleton through which a host runs batches: it starts the batch server, a separate process, talks to it over a
/// local pipe, and creates the sessions in which runs happen. It also stores the exception policies and the actions and
/// handlers with which other modules extend the host's input view.
///
/// Use it only on the thread that called InitInstance(), which needs an event loop. A slot connected to a signal of the
/// manager or of a session may delete that session and call Start(), Stop() or ReleaseInstance().
///
/// A host must delete its session before the server goes. After a session that is deleted later,
/// IsAllowToCreateSession() stays false until the manager is released.
class BATCHCORE_EXPORT ZTBatchManager : public QObject
{
    Q_OBJECT

public:
    class ZTBatchSession;
    class ZTInputDnDHandler;
    class ZTInputUpdateHandler;

    // Each exception policy determines how the server handles one kind of exceptional case. The library passes any
    // value through; the server understands these.

    /// What happens to a file that cannot be read. Default: InputAsk.
    enum InputPolicy : int { InputSkip = 0, InputStop = 1, InputAsk = 2 };
    Q_ENUM(InputPolicy)

    /// What happens when a result cannot be written to the output folder. Default: OutputAsk.
    enum OutputPolicy : int { OutputSkip = 0, OutputStop = 1, OutputAsk = 2 };
    Q_ENUM(OutputPolicy)

    /// What happens when an effect fails. Default: ProcessingAsk.
    enum ProcessingPolicy : int { ProcessingSkip = 0, ProcessingStop = 1, ProcessingAsk = 2 };
    Q_ENUM(ProcessingPolicy)

    /// What happens when the name of a result already exists. Default: NamingAsk.
    enum NamingPolicy : int { NamingSkip = 0, NamingOverwrite = 1, NamingRename = 2, NamingAsk = 3 };
    Q_ENUM(NamingPolicy)

    /// What happens when a picture cannot be written in the requested format. WriteToFormatNearest selects the nearest
    /// format that can hold it. Default: WriteToFormatAsk.
    enum WriteToFormatPolicy : int {
        WriteToFormatSkip = 0,
        WriteToFormatStop = 1,
        WriteToFormatAsk = 2,
        WriteToFormatNearest = 3
    };
    Q_ENUM(WriteToFormatPolicy)

    /// Creates the instance and reads the policies from "BatchExceptionPolicy.ini" in the folder `settingsDir`. A value
    /// that is missing takes its default, and so do all values if the file cannot be read. Does nothing if there is an
    /// instance.
    static void InitInstance(const QString& settingsDir);

    /// The instance; null before InitInstance() and as soon as ReleaseInstance() is called.
    static ZTBatchManager* Instance();

    /// Writes the policies to the file (a failure is not reported), asks the server to end, and deletes the instance
    /// with all remaining sessions. Waits up to 30 seconds for the server and then kills it. Emits neither
    /// ConnectionFailed() nor a signal of a session.
    static void ReleaseInstance();

    /// Asks a server that listens on the pipe to end, such as one left over from an earlier run. Works without an
    /// instance. If `waitForExit` is true and the instance has a server process, also waits up to 30 seconds for that
    /// process and then kills it. Otherwise returns as soon as the request is written, after 100 ms at the latest; a
    /// request that the server has not read by then remains pending for a second.
    static void KillExistingBatchProcess(bool waitForExit);

    /// Whether there is a server process, connected or not.
    bool IsStarted() const;

    /// Whether there is no session. Only one may exist at a time; CreateBatchSession() does not check that, so the host
    /// must.
    bool IsAllowToCreateSession() const;

    InputPolicy GetInputPolicy() const;
    OutputPolicy GetOutputPolicy() const;
    ProcessingPolicy GetProcessingPolicy() const;
    NamingPolicy GetNamingPolicy() const;
    WriteToFormatPolicy GetWriteToFormatPolicy() const;

    /// The registered actions in ascending order, those of equal order in the order of registration. Not owned by the
    /// caller.
    QList<QAction*> GetInputActions() const;

    /// The registered handler; null if there is none or it was deleted.
    ZTInputDnDHandler* InputDragAndDropHandler() const;
    ZTInputUpdateHandler* InputUpdateHandler() const;

    /// Starts the server, "VelkoraBatchProcessing" in the application's folder, and tries once a second to connect to
    /// it. Returns at once; ConnectionEstablished() or ConnectionFailed() reports the outcome. A server that has not
    /// opened its pipe after 25 seconds is killed. A server that is already started, or a pipe that already exists, is
    /// kept, and a debug line is written.
    void Start();

    /// Kills the server. Sessions are notified and ConnectionFailed() is emitted before this returns. Without a server,
    /// only writes a debug line.
    void Stop();

    /// Creates a session and announces it to the server. Returns null if the pipe is not connected. The host deletes
    /// the session; the manager is its QObject parent.
    ZTBatchSession* CreateBatchSession();

    /// Each setter applies to runs that start later, and to the next instance through the policy file. A run that has
    /// started keeps its policies. The policy's signal is emitted on change.
    void SetInputPolicy(InputPolicy policy);
    void SetOutputPolicy(OutputPolicy policy);
    void SetProcessingPolicy(ProcessingPolicy policy);
    void SetNamingPolicy(NamingPolicy policy);
    void SetWriteToFormatPolicy(WriteToFormatPolicy policy);

    /// Adds `action` with the order `index`, after all actions of the same or a lower order. Does nothing if the action
    /// is registered already. The action is not owned; when it is deleted, it is removed without a signal.
    void RegisterInputAction(QAction* action, int index);

    /// Removes `action`. Does nothing if it is not registered.
    void UnregisterInputAction(QAction* action);

    /// Replaces the registered handler; null removes it. A handler is not owned, and is removed when it is deleted.
    void RegisterDragAndDropHandler(ZTInputDnDHandler* handler);
    void UnregisterDragAndDropHandler();
    void RegisterInputUpdateHandler(ZTInputUpdateHandler* handler);
    void UnregisterInputHandler();

Q_SIGNALS:
    /// The pipe is connected. Emitted again when a lost connection to the same server is restored.
    void ConnectionEstablished();

    /// The server could not be started or has ended; the sessions have been notified. Emitted once for each started
    /// server that ends before ReleaseInstance(). A slot may call Start() again.
    ///
    /// The reason is not passed on. Signs of it are: whether the program exists and is executable; which of Finished()
    /// and Aborted() a session has emitted; debug lines since Start(), such as "The pipe belongs to another user.", or
    /// "Socket error: 2" once a second for a server that does not open its pipe; and the standard error of the server,
    /// which is the host's. docs/reference/diagnostics.md lists all cases.
    void ConnectionFailed();

    void InputActionRegistered(QAction*, int index);
    void InputActionUnregistered(QAction*);

    /// The policy has changed to the given value. Hosts know the last signal without "Policy" in its name.
    void InputPolicyChanged(InputPolicy);
    void OutputPolicyChanged(OutputPolicy);
    void ProcessingPolicyChanged(ProcessingPolicy);
    void NamingPolicyChanged(NamingPolicy);
    void WriteToFormatChanged(WriteToFormatPolicy);

protected:
    void timerEvent(QTimerEvent* event) override;

private Q_SLOTS:
    void OnInputActionDestroyed(QObject*);
    void OnBatchSessionDestroyed(QObject*);
    void OnIncomingMessage(const QString& msgName, const QByteArray& data);
    void OnServerError(QProcess::ProcessError);
    void OnServerFinished(int);
    void OnPipeDown();
    void OnInputUpdateHandlerDestroyed(QObject*);
    void OnDnDHandlerDestroyed(QObject*);

private:
    Q_DISABLE_COPY(ZTBatchManager)

    class Private;

    ZTBatchManager(const QString& settingsDir, QObject* parent);
    ~ZTBatchManager() override;

    // Called by sessions.
    void Process(const QString& id, const QString& document);
    void Pause(const QString& id);
    void Resume(const QString& id);
    void Cancel(const QString& id);
    void InputRespond(const QString& id, InputPolicy policy, bool flag);
    void OutputRespond(const QString& id, OutputPolicy policy, bool flag);
    void ProcessingRespond(const QString& id, ProcessingPolicy policy, bool flag);
    void NamingRespond(const QString& id, NamingPolicy policy, bool flag);
    void WriteToFormatRespond(const QString& id, WriteToFormatPolicy policy, bool flag);

    std::unique_ptr<Private> d;
};
