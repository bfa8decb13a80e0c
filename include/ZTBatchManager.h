#pragma once

#include "ZTBatchGlobal.h"

#include <QList>
#include <QObject>
#include <QProcess>

#include <memory>

class QAction;

/// The one object through which a host runs batches: it starts the batch server, a process of its own, talks to it over
/// a local pipe, and hands out the sessions in which runs happen. It also keeps the exception policies and what other
/// modules register to extend the host's view of inputs.
///
/// Everything here belongs to one thread, the one that called InitInstance(); that thread needs an event loop. A slot
/// connected to a signal of the manager or of a session may delete that session, call Start(), Stop() or
/// ReleaseInstance().
///
/// A host deletes its session before it lets the server go. A session that is deleted later keeps its place:
/// IsAllowToCreateSession() stays false until the manager is released.
class BATCHCORE_EXPORT ZTBatchManager : public QObject
{
    Q_OBJECT

public:
    class ZTBatchSession;
    class ZTInputDnDHandler;
    class ZTInputUpdateHandler;

    // The exception policies say what the server does about a case of their kind. The library passes any value
    // through; these are the ones that the server understands.

    /// What happens to a file that cannot be read. Default: InputAsk.
    enum InputPolicy : int { InputSkip = 0, InputStop = 1, InputAsk = 2 };
    Q_ENUM(InputPolicy)

    /// What happens when a result cannot be written to its place. Default: OutputAsk.
    enum OutputPolicy : int { OutputSkip = 0, OutputStop = 1, OutputAsk = 2 };
    Q_ENUM(OutputPolicy)

    /// What happens when an effect fails. Default: ProcessingAsk.
    enum ProcessingPolicy : int { ProcessingSkip = 0, ProcessingStop = 1, ProcessingAsk = 2 };
    Q_ENUM(ProcessingPolicy)

    /// What happens when the result's name is taken. Default: NamingAsk.
    enum NamingPolicy : int { NamingSkip = 0, NamingOverwrite = 1, NamingRename = 2, NamingAsk = 3 };
    Q_ENUM(NamingPolicy)

    /// What happens when the picture cannot be written in the wanted format; WriteToFormatNearest takes the nearest
    /// format that can hold it. Default: WriteToFormatAsk.
    enum WriteToFormatPolicy : int {
        WriteToFormatSkip = 0,
        WriteToFormatStop = 1,
        WriteToFormatAsk = 2,
        WriteToFormatNearest = 3
    };
    Q_ENUM(WriteToFormatPolicy)

    /// Creates the instance and reads the policies from "BatchExceptionPolicy.ini" in the folder `settingsDir`; what
    /// the file lacks, or a file that cannot be read, gives the defaults. Does nothing when there is an instance.
    static void InitInstance(const QString& settingsDir);

    /// The instance; null before InitInstance() and from ReleaseInstance() on.
    static ZTBatchManager* Instance();

    /// Writes the policies back (a failure is not reported), asks the server to end, deletes the instance with the
    /// sessions that are left, and returns when the server has ended or was killed: after 30 seconds at most.
    /// Neither ConnectionFailed() nor a signal of a session comes from here.
    static void ReleaseInstance();

    /// Ends a server that listens on the pipe, such as one left over from an earlier run; works without an instance.
    /// When `waitForExit` is true and the instance has a server process, also waits for that process, 30 seconds at
    /// most, then kills it. Otherwise returns as soon as the request is written.
    static void KillExistingBatchProcess(bool waitForExit);

    /// Whether there is a server process, connected or not yet.
    bool IsStarted() const;

    /// Whether there is no session: one at a time is the rule. CreateBatchSession() leaves the check to the host.
    bool IsAllowToCreateSession() const;

    InputPolicy GetInputPolicy() const;
    OutputPolicy GetOutputPolicy() const;
    ProcessingPolicy GetProcessingPolicy() const;
    NamingPolicy GetNamingPolicy() const;
    WriteToFormatPolicy GetWriteToFormatPolicy() const;

    /// The registered actions by ascending order, those of one order as they were registered. The caller owns none.
    QList<QAction*> GetInputActions() const;

    /// The handler registered last; null when there is none or it was deleted.
    ZTInputDnDHandler* InputDragAndDropHandler() const;
    ZTInputUpdateHandler* InputUpdateHandler() const;

    /// Starts the server, "VelkoraBatchProcessing" in the application's folder, and connects to it, trying once a
    /// second. Returns at once; ConnectionEstablished() or ConnectionFailed() tells how it went. A server that has not
    /// opened its pipe after 25 seconds is ended. What has been started already is left as it is, with a debug line.
    void Start();

    /// Kills the server. The sessions are told and ConnectionFailed() comes before this returns. Without a server
    /// only a debug line is written.
    void Stop();

    /// A new session, for whose run the server is ready; null when the pipe is not connected. The host deletes it.
    ZTBatchSession* CreateBatchSession();

    /// The setters change the policy for runs that start from now on and for the next life of the manager; a run under
    /// way keeps those that it was started with. A new value is announced by the policy's signal, once.
    void SetInputPolicy(InputPolicy policy);
    void SetOutputPolicy(OutputPolicy policy);
    void SetProcessingPolicy(ProcessingPolicy policy);
    void SetNamingPolicy(NamingPolicy policy);
    void SetWriteToFormatPolicy(WriteToFormatPolicy policy);

    /// Adds `action` behind those whose order is not greater than `index`. An action that is registered stays where it
    /// is. The action is not owned; it leaves the registry when it is deleted, without a signal.
    void RegisterInputAction(QAction* action, int index);

    /// Removes `action`; does nothing when it is not registered.
    void UnregisterInputAction(QAction* action);

    /// Replaces the handler that was registered before; null clears. A handler is not owned and leaves the registry
    /// when it is deleted.
    void RegisterDragAndDropHandler(ZTInputDnDHandler* handler);
    void UnregisterDragAndDropHandler();
    void RegisterInputUpdateHandler(ZTInputUpdateHandler* handler);
    void UnregisterInputHandler();

Q_SIGNALS:
    /// The pipe is up. Comes again when a lost connection to the same server is back.
    void ConnectionEstablished();

    /// The server could not be started or has ended; the sessions were told before. Comes once for each Start() that
    /// was not ended by ReleaseInstance(). Start() may be called again from here.
    void ConnectionFailed();

    void InputActionRegistered(QAction*, int index);
    void InputActionUnregistered(QAction*);

    /// The policy has got another value, the given one. The last signal is known to hosts without "Policy" in its name.
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

    // What sessions ask for.
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
