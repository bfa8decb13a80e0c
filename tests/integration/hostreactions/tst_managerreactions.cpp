// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ManagerRun.h"
#include "OwnFolder.h"

#include <QEventLoop>
#include <QProcess>
#include <QTimer>
#include <QtTest>

#include <functional>

using namespace HostLines;

using Session = ZTBatchManager::ZTBatchSession;

/// What a host may do inside the manager's signals, and inside the signals that report the server's end to several
/// sessions.
class tst_ManagerReactions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eventLoopInsideABlockingCall_data();
    void eventLoopInsideABlockingCall();
    void otherSessionDeletedInTheWalk();
    void sessionCreatedInTheWalk();
    void nextRunFromFinished();

    void managerReleasedInEstablished();
    void managerReleasedInConnectionFailed_data();
    void managerReleasedInConnectionFailed();
    void deferredDeletesInConnectionFailed_data();
    void deferredDeletesInConnectionFailed();
    void managerReleasedWhenTheServerCannotStart();
    void managerReleasedInStopsSignals();
    void managerReleasedInTheWatchdogsSignals_data();
    void managerReleasedInTheWatchdogsSignals();
    void managerReleasedInKillExistingsSignals();
    void stopInEstablished();
    void startAndStopFromConnectionFailed();
    void startFromConnectionFailedOfTheWatchdog();
    void startFromConnectionFailedOfKillExisting();
    void sessionDeletedInConnectionFailed();
    void managerReleasedInASessionsDestruction();
    void sessionDeletesItselfAtRelease();
    void hostDeletesTheSessionWhenTheManagerGoes();
};

void tst_ManagerReactions::eventLoopInsideABlockingCall_data()
{
    QTest::addColumn<bool>("isStop");
    QTest::addColumn<bool>("releases");

    QTest::newRow("Stop") << true << false;
    QTest::newRow("Stop, then released") << true << true;
    QTest::newRow("KillExistingBatchProcess") << false << false;
    QTest::newRow("KillExistingBatchProcess, then released") << false << true;
}

void tst_ManagerReactions::eventLoopInsideABlockingCall()
{
    QFETCH(bool, isStop);
    QFETCH(bool, releases);

    // While the application's own event loop does not run, any nested loop performs all deferred deletes. The process
    // must not be deleted that way while its call is in progress.
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    const QPointer<QProcess> process = run.Process();
    bool hasWaited = false;
    connect(run.Manager(), &ZTBatchManager::ConnectionFailed, this, [&] {
        if (releases) {
            ZTBatchManager::ReleaseInstance();
        }
        QEventLoop loop;
        QTimer::singleShot(50, &loop, &QEventLoop::quit);
        loop.exec();
        hasWaited = true;
        QVERIFY(process);
    });
    if (isStop) {
        run.Manager()->Stop();
    } else {
        ZTBatchManager::KillExistingBatchProcess(true);
    }
    QVERIFY(hasWaited);
    QVERIFY(Eventually([&] { return !process; }));
}

void tst_ManagerReactions::otherSessionDeletedInTheWalk()
{
    ManagerRun run({opensAtOnce, QStringLiteral("5: crash")});
    QVERIFY(run.Connect());
    QList<QPointer<Session>> sessions;
    for (int i = 0; i < 4; ++i) {
        sessions.append(run.CreateSession());
    }
    // The session that hears first deletes all others.
    int told = 0;
    for (const QPointer<Session>& session : sessions) {
        connect(session, &Session::LogMessage, this, [&, session] {
            ++told;
            for (const QPointer<Session>& other : sessions) {
                if (other != session) {
                    delete other;
                }
            }
        });
    }
    sessions.first()->Process(QString());
    QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
    QCOMPARE(told, 1);
    QCOMPARE(run.log.lines, (QStringList{established, abnormalEnd, aborted, failed}));
}

void tst_ManagerReactions::sessionCreatedInTheWalk()
{
    ManagerRun run({opensAtOnce, QStringLiteral("5: crash")});
    QVERIFY(run.OpenSession());
    connect(run.session, &Session::Aborted, this, [&] {
        // No server will serve it. What counts is that the loop over the sessions ends.
        delete run.Manager()->CreateBatchSession();
        run.Manager()->CreateBatchSession();
    });
    run.session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
    QCOMPARE(run.log.Count(failed), 1);
    QVERIFY(!run.Manager()->IsStarted());
}

void tst_ManagerReactions::nextRunFromFinished()
{
    ManagerRun run({opensAtOnce, QStringLiteral("5: send 6 id")});
    QVERIFY(run.Connect());
    int runs = 0;
    const std::function<void()> runNext = [&] {
        QPointer<Session> session = run.Manager()->CreateBatchSession();
        QVERIFY(session);
        connect(session, &Session::Finished, this, [&, session] {
            delete session;
            if (++runs < 20) {
                QVERIFY(run.Manager()->IsAllowToCreateSession());
                runNext();
            }
        });
        session->Process(QString());
    };
    runNext();
    QVERIFY(Eventually([&] { return runs == 20; }));
    QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("message 1")) == 20; }));
}

void tst_ManagerReactions::managerReleasedInEstablished()
{
    ManagerRun run({opensAtOnce});
    connect(run.Manager(), &ZTBatchManager::ConnectionEstablished, this, [] { ZTBatchManager::ReleaseInstance(); });
    QVERIFY(run.Connect());
    QVERIFY(!run.Manager());
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
    QVERIFY(run.DebugTexts().contains(QStringLiteral("Send close server message.")));
}

void tst_ManagerReactions::managerReleasedInConnectionFailed_data()
{
    QTest::addColumn<QString>("end");

    QTest::newRow("crash") << QStringLiteral("crash");
    QTest::newRow("exit") << QStringLiteral("exit 0");
}

void tst_ManagerReactions::managerReleasedInConnectionFailed()
{
    QFETCH(QString, end);

    ManagerRun run({opensAtOnce, QStringLiteral("5: ") + end});
    QVERIFY(run.OpenSession());
    connect(run.Manager(), &ZTBatchManager::ConnectionFailed, this, [] { ZTBatchManager::ReleaseInstance(); });
    run.session->Process(QString());
    QVERIFY(Eventually([&] { return !run.Manager(); }));
    QVERIFY(!run.session);
    QCOMPARE(run.DebugTexts(), (QStringList{QStringLiteral("Destroy"), QStringLiteral("Destroyed")}));
}

void tst_ManagerReactions::deferredDeletesInConnectionFailed_data()
{
    managerReleasedInConnectionFailed_data();
}

void tst_ManagerReactions::deferredDeletesInConnectionFailed()
{
    QFETCH(QString, end);

    // A host may force deferred deletes while the process is still reporting its end.
    ManagerRun run({opensAtOnce, QStringLiteral("5: ") + end});
    QVERIFY(run.OpenSession());
    const QPointer<QProcess> process = ManagerRun::Process();
    QVERIFY(process);
    bool isReporting = false;
    connect(run.Manager(), &ZTBatchManager::ConnectionFailed, this, [&] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        isReporting = !process.isNull();
    });
    run.session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.Count(failed) == 1; }));
    QVERIFY(isReporting);
    QVERIFY(Eventually([&] { return process.isNull(); }));
}

void tst_ManagerReactions::managerReleasedWhenTheServerCannotStart()
{
    ManagerRun run({});
    run.stage.HideServer();
    connect(run.Manager(), &ZTBatchManager::ConnectionFailed, this, [] { ZTBatchManager::ReleaseInstance(); });
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return !run.Manager(); }));
    QCOMPARE(run.DebugTexts(), (QStringList{QStringLiteral("Destroy"), QStringLiteral("Destroyed")}));
}

void tst_ManagerReactions::managerReleasedInStopsSignals()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.OpenSession());
    connect(run.session, &Session::Aborted, this, [] { ZTBatchManager::ReleaseInstance(); });
    run.Manager()->Stop();
    QVERIFY(!run.Manager());
    QVERIFY(!run.session);
    QCOMPARE(run.log.Count(failed), 0);
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

void tst_ManagerReactions::managerReleasedInTheWatchdogsSignals_data()
{
    QTest::addColumn<bool>("hasSession");

    QTest::newRow("in Aborted") << true;
    QTest::newRow("in ConnectionFailed") << false;
}

void tst_ManagerReactions::managerReleasedInTheWatchdogsSignals()
{
    QFETCH(bool, hasSession);

    ManagerRun run({opensAtOnce});
    QVERIFY(run.OpenSession());
    run.Manager()->Stop();
    run.stage.SetRules({});
    run.timings.startupTimeout = 100;
    if (hasSession) {
        connect(run.session, &Session::Aborted, this, [] { ZTBatchManager::ReleaseInstance(); });
    } else {
        connect(run.Manager(), &ZTBatchManager::ConnectionFailed, this, [] { ZTBatchManager::ReleaseInstance(); });
    }
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return !run.Manager(); }));
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

void tst_ManagerReactions::managerReleasedInKillExistingsSignals()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.OpenSession());
    connect(run.session, &Session::Finished, this, [] { ZTBatchManager::ReleaseInstance(); });
    ZTBatchManager::KillExistingBatchProcess(true);
    QVERIFY(!run.Manager());
    QVERIFY(!run.session);
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

void tst_ManagerReactions::stopInEstablished()
{
    ManagerRun run({opensAtOnce});
    connect(run.Manager(), &ZTBatchManager::ConnectionEstablished, this, [&] { run.Manager()->Stop(); });
    QVERIFY(run.Connect());
    QCOMPARE(run.log.lines, (QStringList{established, failed}));
}

void tst_ManagerReactions::startAndStopFromConnectionFailed()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    int rounds = 0;
    connect(run.Manager(), &ZTBatchManager::ConnectionFailed, this, [&] {
        if (++rounds < 5) {
            run.Manager()->Start();
            run.Manager()->Stop(); // Recursive: emits ConnectionFailed() again.
        }
    });
    run.Manager()->Stop();
    QCOMPARE(rounds, 5);
    QCOMPARE(run.log.Count(failed), 5);
    QVERIFY(!run.Manager()->IsStarted());
    QVERIFY(Eventually([&] { return run.stage.LivingServers().isEmpty(); }));
    QVERIFY(run.Connect());
}

void tst_ManagerReactions::startFromConnectionFailedOfTheWatchdog()
{
    ManagerRun run({QStringLiteral("start: hang")});
    run.timings.startupTimeout = 100;
    connect(run.Manager(), &ZTBatchManager::ConnectionFailed, this, [&] {
        run.timings.startupTimeout = 25000;
        run.stage.SetRules({opensAtOnce});
        run.Manager()->Start();
    });
    run.Manager()->Start();
    QVERIFY(run.AwaitConnection(1, 1));
    QCOMPARE(run.log.lines, (QStringList{failed, established}));
    QCOMPARE(run.DebugTexts(), QStringList());
}

void tst_ManagerReactions::startFromConnectionFailedOfKillExisting()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    connect(run.Manager(), &ZTBatchManager::ConnectionFailed, this, [&] { run.Manager()->Start(); });
    ZTBatchManager::KillExistingBatchProcess(true);
    // The call has killed the old server only.
    QVERIFY(run.Manager()->IsStarted());
    QVERIFY(run.AwaitConnection(2, 2));
    QCOMPARE(run.log.lines, (QStringList{established, failed, established}));
}

void tst_ManagerReactions::sessionDeletedInConnectionFailed()
{
    ManagerRun run({opensAtOnce, QStringLiteral("5: crash")});
    QVERIFY(run.OpenSession());
    connect(run.Manager(), &ZTBatchManager::ConnectionFailed, this, [&] { delete run.session; });
    run.session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
    QVERIFY(!run.session);
    QVERIFY(!run.Manager()->IsAllowToCreateSession());
}

void tst_ManagerReactions::managerReleasedInASessionsDestruction()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.OpenSession());
    int gone = 0;
    connect(run.session, &QObject::destroyed, this, [&] {
        ++gone;
        ZTBatchManager::ReleaseInstance();
    });
    delete run.session;
    QCOMPARE(gone, 1);
    QCOMPARE(ZTBatchManager::Instance(), nullptr);
    QVERIFY(Eventually([&] { return run.stage.LivingServers().isEmpty(); }));
    QVERIFY(run.stage.Events().contains(QStringLiteral("message 1")));
}

void tst_ManagerReactions::sessionDeletesItselfAtRelease()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.OpenSession());
    int gone = 0;
    connect(run.session, &QObject::destroyed, this, [&] {
        ++gone;
        ZTBatchManager::ReleaseInstance();
        QCOMPARE(ZTBatchManager::Instance(), nullptr);
    });
    ZTBatchManager::ReleaseInstance();
    QCOMPARE(gone, 1);
}

void tst_ManagerReactions::hostDeletesTheSessionWhenTheManagerGoes()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.OpenSession());
    connect(run.Manager(), &QObject::destroyed, this, [&] { delete run.session; });
    ZTBatchManager::ReleaseInstance();
    QVERIFY(!run.session);
}

OWN_FOLDER_TEST_MAIN(tst_ManagerReactions)
#include "tst_managerreactions.moc"
