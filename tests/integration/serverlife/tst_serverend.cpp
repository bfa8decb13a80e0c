// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ContextTranslator.h"
#include "ManagerRun.h"
#include "OwnFolder.h"
#include "ServerLife.h"
#include "ZTPipeSession.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QtTest>

#ifdef Q_OS_LINUX
#include <sys/resource.h>
#endif

using namespace HostLines;

using Session = ZTBatchManager::ZTBatchSession;

/// Every way in which the server can end or fail to start, and the signals that sessions and host get then.
class tst_ServerEnd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void serverEnds_data();
    void serverEnds();
    void serverEndsBeforeItOpens_data();
    void serverEndsBeforeItOpens();
    void serverCannotStart_data();
    void serverCannotStart();
    void serverCannotStartInsideTheCall();
    void serverThatCannotStartIsToldToEarlierSessions();
    void everySessionIsToldInOrder();
    void endIsToldInTheUsersLanguage();
    void stateInTheSignalsOfTheEnd();
    void stopEndsTheServerBeforeItReturns();
    void stopRightAfterStart();
    void stopTwice();
    void watchdogEndsASilentServer_data();
    void watchdogEndsASilentServer();
    void watchdogEndsAServerThatClosedItsPipe();
    void otherProcessErrorsChangeNothing_data();
    void otherProcessErrorsChangeNothing();

    void sessionDeletedAfterTeardownKeepsItsPlace();
    void keptPlaceIsNotTakenForAnother();
    void sessionDeletedWhileTheServerLivesFreesItsPlace();
};

void tst_ServerEnd::serverEnds_data()
{
    QTest::addColumn<QString>("end");
    QTest::addColumn<QString>("ending");

    QTest::newRow("exit 0") << QStringLiteral("exit 0") << finished;
    QTest::newRow("exit 7") << QStringLiteral("exit 7") << finished;
    QTest::newRow("exit 255") << QStringLiteral("exit 255") << finished;
    QTest::newRow("crash") << QStringLiteral("crash") << aborted;
#ifdef Q_OS_WIN
    // On Windows abort() is a normal exit with code 3.
    QTest::newRow("abort") << QStringLiteral("abort") << finished;
#else
    QTest::newRow("abort") << QStringLiteral("abort") << aborted;
#endif
}

void tst_ServerEnd::serverEnds()
{
    QFETCH(QString, end);
    QFETCH(QString, ending);

    ManagerRun run({opensAtOnce, QStringLiteral("5: ") + end});
    QVERIFY(run.OpenSession());
    QVERIFY(run.session->Process(QStringLiteral("job")));
    QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));

    QCOMPARE(run.log.lines, (QStringList{established, abnormalEnd, ending, failed}));
    QVERIFY(!run.Manager()->IsStarted());
    QVERIFY(run.session);
    QVERIFY(!run.Manager()->IsAllowToCreateSession());
    QCOMPARE(run.Manager()->CreateBatchSession(), nullptr);
    QCOMPARE(TimerIntervals(run.Manager()), QList<int>());
    QCOMPARE(run.DebugTexts(), QStringList());

    // Qt has logged no warning, for example about a connection to a signal that does not exist.
    QCOMPARE(run.debugLines.All().filter(QStringLiteral("QObject")), QStringList());
    QCOMPARE(run.debugLines.All().filter(QStringLiteral("QProcess")), QStringList());

    // No further signal comes, and the pipe and the process are deleted.
    QVERIFY(Eventually([&] { return run.Manager()->findChildren<ZTPipeSession*>().isEmpty(); }));
    QCOMPARE(run.Process(), nullptr);
    QCoreApplication::processEvents();
    QCOMPARE(run.log.lines.size(), 4);
}

void tst_ServerEnd::serverEndsBeforeItOpens_data()
{
    QTest::addColumn<QString>("rule");

    QTest::newRow("exit 0") << QStringLiteral("start: exit 0");
    QTest::newRow("exit 7") << QStringLiteral("start: wait 100; exit 7");
    QTest::newRow("crash") << QStringLiteral("start: crash");
}

void tst_ServerEnd::serverEndsBeforeItOpens()
{
    QFETCH(QString, rule);

    ManagerRun run({rule});
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return !run.log.lines.isEmpty(); }));
    QCOMPARE(run.log.lines, QStringList{failed});
    QVERIFY(!run.Manager()->IsStarted());
    QVERIFY(run.Manager()->IsAllowToCreateSession());
    QCOMPARE(TimerIntervals(run.Manager()), QList<int>());
}

void tst_ServerEnd::serverCannotStart_data()
{
    QTest::addColumn<QByteArray>("executable");
    QTest::addColumn<bool>("isExecutable");

    QTest::newRow("there is none") << QByteArray() << false;
#ifdef Q_OS_WIN
    QTest::newRow("it is no program") << QByteArray("no program") << false;
    QTest::newRow("it is cut off") << QByteArray("MZ") << false;
#else
    QTest::newRow("it may not be run") << QByteArray("#!/bin/sh\n") << false;
    QTest::newRow("its interpreter is missing") << QByteArray("#!/no/such/interpreter\n") << true;
#endif
}

void tst_ServerEnd::serverCannotStart()
{
    QFETCH(QByteArray, executable);
    QFETCH(bool, isExecutable);

    ManagerRun run({});
    run.stage.HideServer();
    if (!executable.isEmpty()) {
        QFile file(ServerStage::ServerPath());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(executable);
        QVERIFY(!isExecutable || file.setPermissions(file.permissions() | QFile::ExeOwner));
    }
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
    QCOMPARE(run.log.lines, QStringList{failed});
    QVERIFY(!run.Manager()->IsStarted());
    QCOMPARE(TimerIntervals(run.Manager()), QList<int>());

    // A further attempt works.
    run.stage.ShowServer();
    run.stage.SetRules({opensAtOnce});
    QVERIFY(run.Connect());
    QCOMPARE(run.log.lines, (QStringList{failed, established}));
}

void tst_ServerEnd::serverCannotStartInsideTheCall()
{
#ifdef Q_OS_LINUX
    ManagerRun run({opensAtOnce});
    // Without a free file descriptor the process fails before start() returns.
    rlimit limit{};
    QCOMPARE(getrlimit(RLIMIT_NOFILE, &limit), 0);
    const rlimit lowered{3, limit.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_NOFILE, &lowered), 0);
    run.Manager()->Start();
    QCOMPARE(setrlimit(RLIMIT_NOFILE, &limit), 0);

    QCOMPARE(run.log.lines, QStringList{failed});
    QVERIFY(!run.Manager()->IsStarted());
    QCOMPARE(run.Manager()->findChildren<ZTPipeSession*>().size(), 0);
    QCOMPARE(TimerIntervals(run.Manager()), QList<int>());
    QVERIFY(run.Connect());
#endif
}

void tst_ServerEnd::serverThatCannotStartIsToldToEarlierSessions()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.OpenSession());
    run.Manager()->Stop();
    run.log.lines.clear();
    run.stage.HideServer();
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
    QCOMPARE(run.log.lines, (QStringList{abnormalEnd, aborted, failed}));
}

void tst_ServerEnd::everySessionIsToldInOrder()
{
    ManagerRun run({opensAtOnce, QStringLiteral("5: crash")});
    QVERIFY(run.Connect());
    // The manager accepts a second session; limiting itself to one is up to the host.
    QStringList events;
    QList<QPointer<Session>> sessions;
    for (int i = 0; i < 5; ++i) {
        sessions.append(run.CreateSession());
        QVERIFY(sessions.last());
        connect(sessions.last(), &Session::LogMessage, this,
                [&events, i] { events.append(QStringLiteral("log %1").arg(i)); });
        connect(sessions.last(), &Session::Aborted, this,
                [&events, i] { events.append(QStringLiteral("aborted %1").arg(i)); });
    }
    sessions[0]->Process(QString());
    QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
    QCOMPARE(events.size(), 10);
    for (int i = 0; i < 10; i += 2) {
        QCOMPARE(events[i].section(QLatin1Char(' '), 0, 0), QStringLiteral("log"));
        QCOMPARE(events[i + 1], QStringLiteral("aborted ") + events[i].section(QLatin1Char(' '), 1));
    }
    QCOMPARE(run.log.Count(abnormalEnd), 5);
    QCOMPARE(run.log.Count(aborted), 5);
    QCOMPARE(run.log.lines.last(), failed);
    QCOMPARE(run.log.Count(failed), 1);
}

void tst_ServerEnd::endIsToldInTheUsersLanguage()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    QVERIFY(run.CreateSession());
    ContextTranslator translator("ZTBatchManager");
    QVERIFY(QCoreApplication::installTranslator(&translator));
    run.Manager()->Stop();
    QVERIFY(QCoreApplication::removeTranslator(&translator));
    QCOMPARE(run.log.lines,
             (QStringList{established, QStringLiteral("log [[Abnormal process termination.]]"), aborted, failed}));
}

void tst_ServerEnd::stateInTheSignalsOfTheEnd()
{
    ManagerRun run({opensAtOnce, QStringLiteral("5: exit 0")});
    QVERIFY(run.OpenSession());
    QList<bool> started;
    const auto note = [&] { started.append(run.Manager()->IsStarted()); };
    connect(run.session, &Session::LogMessage, this, note);
    connect(run.session, &Session::Finished, this, note);
    connect(run.Manager(), &ZTBatchManager::ConnectionFailed, this, note);
    run.session->Process(QString());
    QVERIFY(Eventually([&] { return started.size() == 3; }));
    QCOMPARE(started, (QList<bool>{true, true, false}));
}

void tst_ServerEnd::stopEndsTheServerBeforeItReturns()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    QVERIFY(run.CreateSession());
    run.Manager()->Stop();
    QCOMPARE(run.log.lines, (QStringList{established, abnormalEnd, aborted, failed}));
    QVERIFY(!run.Manager()->IsStarted());
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
    QCoreApplication::processEvents();
    QCOMPARE(run.log.lines.size(), 4);
}

void tst_ServerEnd::stopRightAfterStart()
{
    ManagerRun run({opensAtOnce});
    run.Manager()->Start();
    run.Manager()->Stop();
    QCOMPARE(run.log.lines, QStringList{failed});
    QCOMPARE(TimerIntervals(run.Manager()), QList<int>());
    QVERIFY(run.Connect());
}

void tst_ServerEnd::stopTwice()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    run.Manager()->Stop();
    run.Manager()->Stop();
    QCOMPARE(run.DebugTexts(), QStringList{QStringLiteral("Batch process does not exist.")});
    QCOMPARE(run.log.Count(failed), 1);
}

void tst_ServerEnd::watchdogEndsASilentServer_data()
{
    QTest::addColumn<QString>("rule");

    QTest::newRow("does nothing") << QString();
    QTest::newRow("hangs") << QStringLiteral("start: hang");
}

void tst_ServerEnd::watchdogEndsASilentServer()
{
    QFETCH(QString, rule);

    // A session of an earlier server gets the signals too.
    ManagerRun run({opensAtOnce, QStringLiteral("5: exit 0")});
    QVERIFY(run.OpenSession());
    run.session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.Count(failed) == 1; }));
    run.log.lines.clear();

    run.stage.SetRules({rule});
    run.timings.startupTimeout = 300;
    QElapsedTimer clock;
    clock.start();
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
    QVERIFY(clock.elapsed() >= 280);
    QCOMPARE(run.log.lines, (QStringList{abnormalEnd, aborted, failed}));
    QVERIFY(!run.Manager()->IsStarted());
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
    QCOMPARE(TimerIntervals(run.Manager()), QList<int>());
    QCOMPARE(run.DebugTexts(), QStringList());
}

void tst_ServerEnd::watchdogEndsAServerThatClosedItsPipe()
{
    ManagerRun run({opensAtOnce, QStringLiteral("connect: close; disconnect")});
    run.timings.startupTimeout = 3000;
    QVERIFY(run.Connect());
    QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
    QCOMPARE(run.log.lines, (QStringList{established, failed}));
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

void tst_ServerEnd::otherProcessErrorsChangeNothing_data()
{
    QTest::addColumn<QProcess::ProcessError>("error");

    QTest::newRow("timed out") << QProcess::Timedout;
    QTest::newRow("read error") << QProcess::ReadError;
    QTest::newRow("write error") << QProcess::WriteError;
    QTest::newRow("unknown error") << QProcess::UnknownError;
}

void tst_ServerEnd::otherProcessErrorsChangeNothing()
{
    QFETCH(QProcess::ProcessError, error);

    ManagerRun run({opensAtOnce, QStringLiteral("5: send 6 id")});
    QVERIFY(run.OpenSession());
    QVERIFY(QMetaObject::invokeMethod(run.Manager(), "OnServerError", Q_ARG(QProcess::ProcessError, error)));
    QCOMPARE(run.DebugTexts(), QStringList{QStringLiteral("Batch server error: %1").arg(error)});
    QVERIFY(run.Manager()->IsStarted());
    run.session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.lines.size() > 1; }));
    QCOMPARE(run.log.lines, (QStringList{established, finished}));
}

void tst_ServerEnd::sessionDeletedAfterTeardownKeepsItsPlace()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.OpenSession());
    run.Manager()->Stop();
    delete run.session;
    QVERIFY(!run.Manager()->IsAllowToCreateSession());

    // The next end of a server finds no session in that place.
    run.log.lines.clear();
    QVERIFY(run.Connect());
    QVERIFY(!run.Manager()->IsAllowToCreateSession());
    run.Manager()->Stop();
    QCOMPARE(run.log.lines, (QStringList{established, failed}));
    QVERIFY(!run.Manager()->IsAllowToCreateSession());
    QCOMPARE(run.stage.Count(QStringLiteral("message 1")), 0);

    ZTBatchManager::ReleaseInstance();
    ZTBatchManager::InitInstance(run.SettingsDir());
    QVERIFY(run.Manager()->IsAllowToCreateSession());
}

void tst_ServerEnd::keptPlaceIsNotTakenForAnother()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    QVERIFY(run.CreateSession());
    run.Manager()->Stop();
    delete run.Manager()->findChild<Session*>();

    // A deleted session frees its own place, whatever its address was.
    QVERIFY(run.Connect());
    for (int i = 0; i < 50; ++i) {
        const QPointer<Session> session = run.CreateSession();
        QVERIFY(session);
        delete session;
        QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("message 1")) == i + 1; }));
        QVERIFY(!run.Manager()->IsAllowToCreateSession());
    }
    // Each message 1 carries the identifier of the message 0 before it.
    const QByteArray bytes = run.stage.Received(2);
    constexpr int frameSize = 4 + 2 + 4 + 4 + 72;
    QCOMPARE(bytes.size(), 100 * frameSize);
    for (int i = 0; i < 100; i += 2) {
        QCOMPARE(bytes.mid(i * frameSize + 6, frameSize - 6), bytes.mid((i + 1) * frameSize + 6, frameSize - 6));
    }
}

void tst_ServerEnd::sessionDeletedWhileTheServerLivesFreesItsPlace()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    QVERIFY(run.Manager()->IsAllowToCreateSession());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    QCOMPARE(session->parent(), run.Manager());
    QVERIFY(!run.Manager()->IsAllowToCreateSession());
    session->deleteLater();
    QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("message 1")) == 1; }));
    QVERIFY(run.Manager()->IsAllowToCreateSession());
}

OWN_FOLDER_TEST_MAIN(tst_ServerEnd)
#include "tst_serverend.moc"
