// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ManagerRun.h"
#include "OwnFolder.h"
#include "ServerLife.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QtTest>

using namespace HostLines;

/// KillExistingBatchProcess() with and without a manager, a listening server, and a server of the manager's own.
class tst_KillExisting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void killExistingWithoutInstance_data();
    void killExistingWithoutInstance();
    void killExistingWithoutListener_data();
    void killExistingWithoutListener();
    void killExistingWithoutListenerIsQuick();
    void killExistingIsNotHeldUpByAHungListener();
    void killExistingBesideAnIdleManager_data();
    void killExistingBesideAnIdleManager();
    void killExistingWaitsForTheOwnServer();
    void killExistingDoesNotWaitUnasked();
    void killExistingKillsAHungServer();
    void killExistingKillsAServerWithoutPipe();
};

void tst_KillExisting::killExistingWithoutInstance_data()
{
    QTest::addColumn<bool>("waitForExit");

    QTest::newRow("waiting") << true;
    QTest::newRow("not waiting") << false;
}

void tst_KillExisting::killExistingWithoutInstance()
{
    QFETCH(bool, waitForExit);

    ManagerRun run({opensAtOnce});
    ZTBatchManager::ReleaseInstance();
    OrphanServer orphan(run.stage);
    QVERIFY(orphan.isOpen);
    ZTBatchManager::KillExistingBatchProcess(waitForExit);
    // No event loop runs from here on: the message must have been written already.
    QVERIFY(orphan.process.waitForFinished(10000));
    QCOMPARE(orphan.process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(run.stage.Received(), CloseServerFrame());
}

void tst_KillExisting::killExistingWithoutListener_data()
{
    killExistingWithoutInstance_data();
}

void tst_KillExisting::killExistingWithoutListener()
{
    QFETCH(bool, waitForExit);

    ManagerRun run({});
    ZTBatchManager::ReleaseInstance();
    run.debugLines.Clear();
    ZTBatchManager::KillExistingBatchProcess(waitForExit);
    QCOMPARE(run.DebugTexts(), QStringList());
    QCOMPARE(run.debugLines.CountEndingWith(QStringLiteral("] Socket error: 2")), 1);
    QCOMPARE(run.debugLines.All().size(), 1);
}

void tst_KillExisting::killExistingWithoutListenerIsQuick()
{
    ManagerRun run({});
    QElapsedTimer clock;
    clock.start();
    ZTBatchManager::KillExistingBatchProcess(false);
    QVERIFY(clock.elapsed() < 2000);
}

void tst_KillExisting::killExistingIsNotHeldUpByAHungListener()
{
    ManagerRun run({QStringLiteral("start: open; hang")});
    const OrphanServer orphan(run.stage);
    QVERIFY(orphan.isOpen);
    QElapsedTimer clock;
    clock.start();
    ZTBatchManager::KillExistingBatchProcess(true);
    ZTBatchManager::KillExistingBatchProcess(false);
    QVERIFY(clock.elapsed() < 5000);
    QCOMPARE(run.stage.LivingServers().size(), 1);
}

void tst_KillExisting::killExistingBesideAnIdleManager_data()
{
    killExistingWithoutInstance_data();
}

void tst_KillExisting::killExistingBesideAnIdleManager()
{
    QFETCH(bool, waitForExit);

    ManagerRun run({opensAtOnce});
    OrphanServer orphan(run.stage);
    QVERIFY(orphan.isOpen);
    ZTBatchManager::KillExistingBatchProcess(waitForExit);
    QVERIFY(orphan.process.waitForFinished(10000));
    QCOMPARE(orphan.process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(run.log.lines, QStringList());
    QVERIFY(!run.Manager()->IsStarted());
}

void tst_KillExisting::killExistingWaitsForTheOwnServer()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    QVERIFY(run.CreateSession());
    ZTBatchManager::KillExistingBatchProcess(true);
    QCOMPARE(run.stage.Received(2), CloseServerFrame());
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
    QCOMPARE(run.log.lines, (QStringList{established, abnormalEnd, finished, failed}));
    QVERIFY(!run.Manager()->IsStarted());
}

void tst_KillExisting::killExistingDoesNotWaitUnasked()
{
    ManagerRun run({opensAtOnce, QStringLiteral("21: wait 300; exit 0")});
    QVERIFY(run.Connect());
    ZTBatchManager::KillExistingBatchProcess(false);
    QVERIFY(run.Manager()->IsStarted());
    QCOMPARE(run.log.lines, QStringList{established});
    QVERIFY(Eventually([&] { return run.log.Count(failed) == 1; }));
    QCOMPARE(run.stage.Received(2), CloseServerFrame());
}

void tst_KillExisting::killExistingKillsAHungServer()
{
    HungServerRun run;
    QVERIFY(run.Hang());
    run.timings.serverEndTimeout = 300;
    QElapsedTimer clock;
    clock.start();
    ZTBatchManager::KillExistingBatchProcess(true);
    QVERIFY(clock.elapsed() >= 300);
    QVERIFY(Eventually([&] { return run.log.Count(failed) == 1; }));
    QCOMPARE(run.log.lines, (QStringList{established, abnormalEnd, aborted, failed}));
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

void tst_KillExisting::killExistingKillsAServerWithoutPipe()
{
    ManagerRun run({});
    run.Manager()->Start();
    run.timings.serverEndTimeout = 300;
    ZTBatchManager::KillExistingBatchProcess(true);
    QVERIFY(Eventually([&] { return run.log.Count(failed) == 1; }));
    QCOMPARE(run.log.lines, QStringList{failed});
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

OWN_FOLDER_TEST_MAIN(tst_KillExisting)
#include "tst_killexisting.moc"
