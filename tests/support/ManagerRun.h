#pragma once

#include "DebugLines.h"
#include "HostLog.h"
#include "PrivateTempDir.h"
#include "ServerStage.h"
#include "ZTBatchManagerTimings_p.h"
#include "ZTBatchSession.h"

#include <QPointer>
#include <QStringList>

#include <functional>

class QProcess;

/// Turns the event loop until `condition` holds, 20 seconds at most; returns whether it does.
bool Eventually(const std::function<bool()>& condition);

/// A host with a manager and a stage for its server: one for each test. Its end releases the manager.
///
/// The manager does not try to connect again by itself unless a test sets the interval: on a machine under load an
/// attempt that comes while the one before it succeeds takes the new connection down again. All other waits are as
/// long as they are for users, until a test changes `timings`; its end puts them back.
class ManagerRun
{
public:
    using Session = ZTBatchManager::ZTBatchSession;

    explicit ManagerRun(const QStringList& rules);
    ~ManagerRun();

    /// Starts the server and waits until it is connected, which it is as soon as it has opened its pipe.
    bool Connect();

    /// The second half of it, when something else has caused the start: waits until `opened` servers of this run have
    /// opened their pipes, connects to the last one, and waits for what is then connection number `connections`.
    bool AwaitConnection(int opened, int connections);

    /// A session whose emissions go to the log; the server knows it when this returns. Null when that failed.
    QPointer<Session> CreateSession();

    /// The manager; null when it was released.
    static ZTBatchManager* Manager() { return ZTBatchManager::Instance(); }
    static QProcess* Process();

    /// What the manager and its private part have written, in order.
    QStringList DebugTexts() const;

    QString SettingsDir() const { return folder.FilePath(QStringLiteral("settings")); }

    PrivateTempDir folder;
    ServerStage stage;
    ZTBatchManagerTimings& timings = ZTBatchManagerTimings::InUse();
    DebugLines debugLines;
    HostLog log;

private:
    Q_DISABLE_COPY(ManagerRun)

    /// For a test that fails: what servers, host and library have noted goes to the terminal.
    void TellWhatHappened() const;
};
