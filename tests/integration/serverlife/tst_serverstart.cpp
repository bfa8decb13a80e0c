// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ManagerRun.h"
#include "OwnFolder.h"
#include "ServerLife.h"
#include "ZTPipeSession.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QtTest>

using namespace HostLines;

using Session = ZTBatchManager::ZTBatchSession;

/// Starting the server, connecting to it, and reconnecting.
class tst_ServerStart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startRunsTheServerAndConnects();
    void startMakesChildrenAndTimers();
    void timersEndOnceConnected();
    void startTwice();
    void startTwiceWhenConnected();
    void reconnectsOnceASecond();
    void lateServerIsReached();
    void connectionIsThereInItsSignal();
    void unknownTimerIsIgnored();

    void startsAgainAfterTheEnd();
    void startsAgainFromConnectionFailed();

    void lostConnectionComesBack();
    void lostConnectionIsTriedUntilTheServerOpensAgain();
};

void tst_ServerStart::startRunsTheServerAndConnects()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(!run.Manager()->IsStarted());
    run.Manager()->Start();
    QVERIFY(run.Manager()->IsStarted());
    QCOMPARE(run.log.lines, QStringList());
    QCOMPARE(run.Manager()->CreateBatchSession(), nullptr);

    QVERIFY(run.AwaitConnection(1, 1));
    QCOMPARE(run.log.lines, QStringList{established});
    QVERIFY(run.Manager()->IsStarted());
    QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("connect 1")) == 1; }));
    QCOMPARE(run.stage.Count(QStringLiteral("arguments ") + ServerStage::PipeName()), 1);
    QCOMPARE(run.stage.LivingServers(), QList<qint64>{run.Process()->processId()});
    // Nothing has been sent: the session that the host tried to create before the connection is not created later.
    QCOMPARE(run.stage.Received(), QByteArray());
}

void tst_ServerStart::startMakesChildrenAndTimers()
{
    ManagerRun run({});
    run.timings.reconnectInterval = 1000;
    run.Manager()->Start();
    const QProcess* process = run.Process();
    QVERIFY(process);
    QCOMPARE(process->parent(), run.Manager());
    QCOMPARE(process->program(),
             QCoreApplication::applicationDirPath() + QDir::separator() + QStringLiteral("VelkoraBatchProcessing"));
    QCOMPARE(process->arguments(), QStringList{ServerStage::PipeName()});
    QCOMPARE(process->openMode(), QIODevice::ReadWrite);
    QCOMPARE(run.Manager()->findChildren<ZTPipeSession*>().size(), 1);

    QCOMPARE(TimerIntervals(run.Manager()), (QList<int>{1000, 25000}));
#ifdef Q_OS_WIN
    const Qt::TimerType longTimer = Qt::CoarseTimer;
#else
    // The dispatcher makes coarse timers above 20 seconds very coarse.
    const Qt::TimerType longTimer = Qt::VeryCoarseTimer;
#endif
    for (const QAbstractEventDispatcher::TimerInfo& timer : TimersOf(run.Manager())) {
        QCOMPARE(timer.timerType, timer.interval == 1000 ? Qt::CoarseTimer : longTimer);
    }
}

void tst_ServerStart::timersEndOnceConnected()
{
    ManagerRun run({opensAtOnce});
    run.timings.reconnectInterval = 1000;
    run.timings.startupTimeout = 3000;
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return TimerIntervals(run.Manager()) == QList<int>{3000}; }));
    QVERIFY(Eventually([&] { return TimerIntervals(run.Manager()).isEmpty(); }));
    QCOMPARE(run.log.lines, QStringList{established});
    QVERIFY(run.Manager()->IsStarted());
}

void tst_ServerStart::startTwice()
{
    ManagerRun run({opensAtOnce});
    run.Manager()->Start();
    const QProcess* process = run.Process();
    run.Manager()->Start();
    QCOMPARE(run.DebugTexts(), (QStringList{QStringLiteral("Batch process already started."),
                                            QStringLiteral("Batch server already connected.")}));
    QCOMPARE(run.Manager()->findChildren<QProcess*>(), QList<QProcess*>{const_cast<QProcess*>(process)});
    QCOMPARE(run.Manager()->findChildren<ZTPipeSession*>().size(), 1);
    QVERIFY(run.AwaitConnection(1, 1));
    QCOMPARE(run.stage.Count(QStringLiteral("open")), 1);
}

void tst_ServerStart::startTwiceWhenConnected()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    run.Manager()->Start();
    QCOMPARE(run.debugLines.TextsFrom(QStringLiteral("src\\private\\ZTBatchManager_p")),
             (QStringList{QStringLiteral("Batch process already started."),
                          QStringLiteral("Batch server already connected.")}));
    QCOMPARE(run.log.lines, QStringList{established});
}

void tst_ServerStart::reconnectsOnceASecond()
{
    ManagerRun run({QStringLiteral("start: wait 2500; open")});
    run.timings.reconnectInterval = ZTBatchManagerTimings().reconnectInterval;
    QElapsedTimer clock;
    clock.start();
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return run.log.Count(established) > 0; }));
    const qint64 elapsed = clock.elapsed();
    // At least the first attempt and those after one and two seconds fail. There is one attempt per second.
    const int failures = run.debugLines.CountEndingWith(QStringLiteral("] Socket error: 2"));
    QVERIFY2(failures >= 3, qPrintable(QString::number(failures)));
    QVERIFY2(elapsed >= failures * 900, qPrintable(QString::number(elapsed)));
}

void tst_ServerStart::lateServerIsReached()
{
    ManagerRun run({QStringLiteral("start: wait 700; open")});
    run.timings.reconnectInterval = 100;
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return run.log.Count(established) > 0; }));
    QVERIFY(run.debugLines.CountEndingWith(QStringLiteral("] Socket error: 2")) > 2);
    QVERIFY(run.CreateSession());
}

void tst_ServerStart::connectionIsThereInItsSignal()
{
    ManagerRun run({opensAtOnce});
    QPointer<Session> session;
    connect(run.Manager(), &ZTBatchManager::ConnectionEstablished, this,
            [&] { session = run.Manager()->CreateBatchSession(); });
    QVERIFY(run.Connect());
    QVERIFY(session);
    QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("message 0")) == 1; }));
}

void tst_ServerStart::unknownTimerIsIgnored()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    QTimerEvent event(1000000);
    QCoreApplication::sendEvent(run.Manager(), &event);
    QVERIFY(run.Manager()->IsStarted());
    QCOMPARE(run.DebugTexts(), QStringList());
}

void tst_ServerStart::startsAgainAfterTheEnd()
{
    ManagerRun run({opensAtOnce, QStringLiteral("1: exit 3")});
    for (int life = 1; life <= 5; ++life) {
        QVERIFY(run.Connect());
        QVERIFY(run.Manager()->IsAllowToCreateSession());
        const QPointer<Session> session = run.CreateSession();
        QVERIFY(session);
        delete session;
        QVERIFY(Eventually([&] { return run.log.Count(failed) == life; }));
    }
    QCOMPARE(run.log.lines.size(), 10);
    QCOMPARE(run.log.Count(established), 5);
    QCOMPARE(run.DebugTexts(), QStringList());
}

void tst_ServerStart::startsAgainFromConnectionFailed()
{
    ManagerRun run({opensAtOnce, QStringLiteral("5: crash")});
    connect(run.Manager(), &ZTBatchManager::ConnectionFailed, this, [&] { run.Manager()->Start(); });
    QVERIFY(run.Connect());
    for (int life = 1; life <= 3; ++life) {
        const QPointer<Session> session = run.CreateSession();
        QVERIFY(session);
        session->Process(QString());
        QVERIFY(Eventually([&] { return run.log.Count(failed) == life; }));
        QVERIFY(run.AwaitConnection(life + 1, life + 1));
        delete session;
    }
    QCOMPARE(run.Manager()->findChildren<QProcess*>().size(), 1);
    QCOMPARE(run.Manager()->findChildren<ZTPipeSession*>().size(), 1);

    run.Manager()->Stop();
    QVERIFY(run.Manager()->IsStarted());
    QCOMPARE(run.log.Count(failed), 4);
    QVERIFY(run.AwaitConnection(5, 5));
    QCOMPARE(run.DebugTexts(), QStringList());
}

void tst_ServerStart::lostConnectionComesBack()
{
    ManagerRun run({opensAtOnce, QStringLiteral("2: disconnect")});
    run.timings.reconnectInterval = 1000;
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return run.log.Count(established) == 1; }));
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    QVERIFY(Eventually([&] { return TimerIntervals(run.Manager()) == QList<int>{25000}; }));
    session->Pause();
    QVERIFY(Eventually([&] { return run.log.Count(established) == 2; }));
    QCOMPARE(run.log.lines, (QStringList{established, established}));
    QVERIFY(run.Manager()->IsStarted());
    QCOMPARE(run.stage.LivingServers().size(), 1);

    // The session continues on the new connection.
    session->Resume();
    QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("message 3")) == 1; }));
    QVERIFY(Eventually([&] { return TimerIntervals(run.Manager()) == QList<int>{25000}; }));
}

void tst_ServerStart::lostConnectionIsTriedUntilTheServerOpensAgain()
{
    ManagerRun run({opensAtOnce, QStringLiteral("2: close; disconnect; wait 500; open")});
    QVERIFY(run.OpenSession());
    const int refused = run.debugLines.CountEndingWith(QStringLiteral("] Socket error: 2"));
    run.timings.reconnectInterval = 50;
    run.session->Pause();
    QVERIFY(Eventually([&] { return run.log.Count(established) > 1; }));
    QVERIFY(run.debugLines.CountEndingWith(QStringLiteral("] Socket error: 2")) > refused + 5);
    // On a slow machine an attempt may start while the previous one succeeds, which costs another reconnect.
    QCOMPARE(run.log.lines.size(), run.log.Count(established));
}

OWN_FOLDER_TEST_MAIN(tst_ServerStart)
#include "tst_serverstart.moc"
