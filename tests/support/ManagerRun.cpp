#include "ManagerRun.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

bool Eventually(const std::function<bool()>& condition)
{
    return QTest::qWaitFor(condition, 20000);
}

ManagerRun::ManagerRun(const QStringList& rules)
{
    stage.Play(rules);
    // Not shorter: an attempt that comes while the one before it succeeds takes the new connection down again.
    timings.reconnectInterval = 100;
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
    const int established = log.Count(QStringLiteral("established"));
    Manager()->Start();
    return Eventually([&] { return log.Count(QStringLiteral("established")) > established; });
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
