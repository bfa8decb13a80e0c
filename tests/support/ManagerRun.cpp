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
    stage.Play(rules);
    timings.reconnectInterval = 3600000;
    ZTBatchManager::InitInstance(SettingsDir());
    log.Watch(Manager());
}

ManagerRun::~ManagerRun()
{
    ZTBatchManager::ReleaseInstance();
    // What was released with deleteLater().
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
        TellWhatHappened();
        return false;
    }
    // The pipe to an earlier server may still wait for its deletion.
    const QList<ZTPipeSession*> pipes = Manager()->findChildren<ZTPipeSession*>();
    // A server may be faster than the first attempt.
    if (!pipes.isEmpty() && !pipes.last()->WaitForConnected(0)) {
        pipes.last()->Reconnect(QStringLiteral("\\\\.\\pipe\\VelkoraBatchProcessing"));
    }
    if (!Eventually([&] { return log.connections >= connections; })) {
        TellWhatHappened();
        return false;
    }
    return true;
}

void ManagerRun::TellWhatHappened() const
{
    const auto list = [](const char* title, const QStringList& lines) {
        QTextStream(stderr) << title << ":\n    " << lines.join(QLatin1String("\n    ")) << '\n';
    };
    list("The servers noted", stage.Events());
    list("The host was told", log.lines);
    list("The library wrote", debugLines.All());
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
