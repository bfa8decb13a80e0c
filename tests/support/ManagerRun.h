// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

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

/// The rule of a server that opens its pipe when it starts.
inline const QString opensAtOnce = QStringLiteral("start: open");

/// Runs the event loop until `condition` holds, 20 seconds at most; returns whether it does.
bool Eventually(const std::function<bool()>& condition);

/// A host with a manager and a scripted server: one for each test. The destructor releases the manager and resets the
/// timings.
///
/// The manager does not reconnect by itself unless a test sets the interval: under load, an attempt that starts while
/// the previous one succeeds would close the new connection. All other timeouts are those of production until a test
/// changes `timings`.
class ManagerRun
{
public:
    using Session = ZTBatchManager::ZTBatchSession;

    explicit ManagerRun(const QStringList& rules);
    ~ManagerRun();

    /// Starts the server and waits until the manager is connected to it.
    bool Connect();

    /// For a start that something else has caused: waits until `opened` servers of this run have opened their pipes,
    /// connects to the last one, and waits for connection number `connections`.
    bool AwaitConnection(int opened, int connections);

    /// Creates a session whose signals are logged, and waits until the server knows it. Null on failure.
    QPointer<Session> CreateSession();

    /// Connect() and CreateSession(): how most tests begin. The session is `session`.
    bool OpenSession();

    /// The manager; null after its release.
    static ZTBatchManager* Manager() { return ZTBatchManager::Instance(); }
    static QProcess* Process();

    /// The debug texts of the manager and of its private part, in order.
    QStringList DebugTexts() const;

    QString SettingsDir() const { return folder.FilePath(QStringLiteral("settings")); }

    PrivateTempDir folder;
    ServerStage stage;
    ZTBatchManagerTimings& timings = ZTBatchManagerTimings::InUse();
    DebugLines debugLines;
    HostLog log;
    QPointer<Session> session; ///< the one of OpenSession()

private:
    Q_DISABLE_COPY(ManagerRun)

    /// Prints the logs of servers, host and library, for a test that fails.
    void PrintLogs() const;
};
