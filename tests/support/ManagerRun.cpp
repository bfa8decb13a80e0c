// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ManagerRun.h"

#include "ZTPipeSession.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>
#include <QTextStream>

bool Eventually(const std::function<bool()>& condition)
{
    return QTest::qWaitFor(condition, 20000);
}

ManagerRun::ManagerRun(const QStringList& rules)
{
    stage.SetRules(rules);
    timings.reconnectInterval = 3600000;
    ZTBatchManager::InitInstance(SettingsDir());
    log.Watch(Manager());
}

ManagerRun::~ManagerRun()
{
    ZTBatchManager::ReleaseInstance();
    // Deletes what deleteLater() has been called for.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    timings = ZTBatchManagerTimings();
}

bool ManagerRun::Connect()
{
    const int opened = stage.Count(QStringLiteral("open"));
    const int connections = log.connections;
    Manager()->Start();
    return AwaitConnection(opened + 1, connections + 1);
}

bool ManagerRun::AwaitConnection(int opened, int connections)
{
    if (!Eventually([&] { return stage.Count(QStringLiteral("open")) >= opened; })) {
        PrintLogs();
        return false;
    }
    // The pipe to an earlier server may not be deleted yet.
    const QList<ZTPipeSession*> pipes = Manager()->findChildren<ZTPipeSession*>();
    // The manager's own first attempt has succeeded already if the server was faster.
    if (!pipes.isEmpty() && !pipes.last()->WaitForConnected(0)) {
        pipes.last()->Reconnect(ServerStage::PipeName());
    }
    if (!Eventually([&] { return log.connections >= connections; })) {
        PrintLogs();
        return false;
    }
    return true;
}

void ManagerRun::PrintLogs() const
{
    const auto list = [](const char* title, const QStringList& lines) {
        QTextStream(stderr) << title << ":\n    " << lines.join(QLatin1String("\n    ")) << '\n';
    };
    list("Events of the servers", stage.Events());
    list("Signals to the host", log.lines);
    list("Debug lines of the library", debugLines.All());
}

QPointer<ManagerRun::Session> ManagerRun::CreateSession()
{
    const int known = stage.Count(QStringLiteral("message 0"));
    const QPointer<Session> session = Manager()->CreateBatchSession();
    if (session) {
        log.Watch(session);
        if (!Eventually([&] { return stage.Count(QStringLiteral("message 0")) > known; })) {
            return nullptr;
        }
    }
    return session;
}

bool ManagerRun::OpenSession()
{
    session = Connect() ? CreateSession() : nullptr;
    return !session.isNull();
}

QProcess* ManagerRun::Process()
{
    return Manager() ? Manager()->findChild<QProcess*>() : nullptr;
}

QStringList ManagerRun::DebugTexts() const
{
    QStringList texts;
    for (const QString& line : debugLines.All()) {
        if (line.contains(QLatin1String("ZTBatchManager"))) {
            texts.append(line.mid(line.indexOf(QLatin1String("] ")) + 2));
        }
    }
    return texts;
}
