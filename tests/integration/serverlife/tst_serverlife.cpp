#include "DeathCase.h"
#include "ManagerRun.h"
#include "OwnFolder.h"
#include "ZTPipeSession.h"

#include <QAbstractEventDispatcher>
#include <QElapsedTimer>
#include <QProcess>
#include <QTranslator>
#include <QtTest>

#ifdef Q_OS_LINUX
#include <sys/resource.h>
#endif

// The server's process and the pipe to it, from Start() to every kind of end.

namespace {

using Session = ZTBatchManager::ZTBatchSession;

const QString opensAtOnce = QStringLiteral("start: open");

const QString abnormalEnd = QStringLiteral("log [Abnormal process termination.]");
const QString aborted = QStringLiteral("aborted");
const QString finished = QStringLiteral("finished");
const QString established = QStringLiteral("established");
const QString failed = QStringLiteral("failed");

/// Message 21 as it stands on the pipe: a payload without fields is empty there, not null.
QByteArray Frame21()
{
    return QByteArray::fromHex("00000004"
                               "00320031"
                               "00000000");
}

QList<QAbstractEventDispatcher::TimerInfo> TimersOf(QObject* object)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(object);
}

QList<int> Intervals(QObject* object)
{
    QList<int> intervals;
    for (const QAbstractEventDispatcher::TimerInfo& timer : TimersOf(object)) {
        intervals.append(timer.interval);
    }
    std::sort(intervals.begin(), intervals.end());
    return intervals;
}

/// A server that the test starts by itself, as one left over from an earlier run.
class OrphanServer
{
public:
    explicit OrphanServer(const ServerStage& stage)
    {
        process.start(ServerStage::ServerPath(), {QStringLiteral("\\\\.\\pipe\\VelkoraBatchProcessing")});
        isOpen = Eventually([&stage] { return stage.Count(QStringLiteral("open")) == 1; });
    }

    ~OrphanServer()
    {
        process.kill();
        process.waitForFinished();
    }

    QProcess process;
    bool isOpen = false;
};

} // namespace

class tst_ServerLife : public QObject
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
    void startsAgainAfterTheEnd();
    void startsAgainFromConnectionFailed();

    void lostConnectionComesBack();
    void lostConnectionIsTriedUntilTheServerOpensAgain();

    void sessionDeletedAfterTeardownKeepsItsPlace();
    void keptPlaceIsNotTakenForAnother();
    void sessionDeletedWhileTheServerLivesFreesItsPlace();

    void releaseAsksTheServerToEnd();
    void releaseSavesBeforeItAsks();
    void releaseSendsWhatWasSentBefore();
    void releaseInTheMiddleOfAFlood();
    void releaseWithAHungServer();
    void releaseWithAServerThatIgnoresTheMessage();
    void releaseWithAServerThatNeverOpened();
    void releaseWithAServerThatHasJustOpened();
    void releaseRightAfterStart();
    void releaseTellsTheHostNothing();
    void releaseDeletesSessions();
    void releaseAfterTheEnd();

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

    void commandAfterRelease_data();
    void commandAfterRelease();
};

void tst_ServerLife::startRunsTheServerAndConnects()
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
    QCOMPARE(run.stage.Count(QStringLiteral("arguments \\\\.\\pipe\\VelkoraBatchProcessing")), 1);
    QCOMPARE(run.stage.LivingServers(), QList<qint64>{run.Process()->processId()});
    // Nothing has been sent: what was tried before the connection is not made up for.
    QCOMPARE(run.stage.Received(), QByteArray());
}

void tst_ServerLife::startMakesChildrenAndTimers()
{
    ManagerRun run({});
    run.timings.reconnectInterval = 1000;
    run.Manager()->Start();
    const QProcess* process = run.Process();
    QVERIFY(process);
    QCOMPARE(process->parent(), run.Manager());
    QCOMPARE(process->program(),
             QCoreApplication::applicationDirPath() + QDir::separator() + QStringLiteral("VelkoraBatchProcessing"));
    QCOMPARE(process->arguments(), QStringList{QStringLiteral("\\\\.\\pipe\\VelkoraBatchProcessing")});
    QCOMPARE(process->openMode(), QIODevice::ReadWrite);
    QCOMPARE(run.Manager()->findChildren<ZTPipeSession*>().size(), 1);

    QCOMPARE(Intervals(run.Manager()), (QList<int>{1000, 25000}));
#ifdef Q_OS_WIN
    const Qt::TimerType longTimer = Qt::CoarseTimer;
#else
    // Above 20 seconds the dispatcher itself makes a coarse timer a very coarse one.
    const Qt::TimerType longTimer = Qt::VeryCoarseTimer;
#endif
    for (const QAbstractEventDispatcher::TimerInfo& timer : TimersOf(run.Manager())) {
        QCOMPARE(timer.timerType, timer.interval == 1000 ? Qt::CoarseTimer : longTimer);
    }
}

void tst_ServerLife::timersEndOnceConnected()
{
    ManagerRun run({opensAtOnce});
    run.timings.reconnectInterval = 1000;
    run.timings.startupTimeout = 3000;
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return Intervals(run.Manager()) == QList<int>{3000}; }));
    QVERIFY(Eventually([&] { return Intervals(run.Manager()).isEmpty(); }));
    QCOMPARE(run.log.lines, QStringList{established});
    QVERIFY(run.Manager()->IsStarted());
}

void tst_ServerLife::startTwice()
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

void tst_ServerLife::startTwiceWhenConnected()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    run.Manager()->Start();
    QCOMPARE(run.debugLines.TextsFrom(QStringLiteral("src\\private\\ZTBatchManager_p")),
             (QStringList{QStringLiteral("Batch process already started."),
                          QStringLiteral("Batch server already connected.")}));
    QCOMPARE(run.log.lines, QStringList{established});
}

void tst_ServerLife::reconnectsOnceASecond()
{
    ManagerRun run({QStringLiteral("start: wait 2500; open")});
    run.timings.reconnectInterval = ZTBatchManagerTimings().reconnectInterval;
    QElapsedTimer clock;
    clock.start();
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return run.log.Count(established) > 0; }));
    const qint64 elapsed = clock.elapsed();
    // The first attempt and those after one and two seconds at least find nobody; there is one in a second.
    const int failures = run.debugLines.CountEndingWith(QStringLiteral("] Socket error: 2"));
    QVERIFY2(failures >= 3, qPrintable(QString::number(failures)));
    QVERIFY2(elapsed >= failures * 900, qPrintable(QString::number(elapsed)));
}

void tst_ServerLife::lateServerIsReached()
{
    ManagerRun run({QStringLiteral("start: wait 700; open")});
    run.timings.reconnectInterval = 100;
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return run.log.Count(established) > 0; }));
    QVERIFY(run.debugLines.CountEndingWith(QStringLiteral("] Socket error: 2")) > 2);
    QVERIFY(run.CreateSession());
}

void tst_ServerLife::connectionIsThereInItsSignal()
{
    ManagerRun run({opensAtOnce});
    QPointer<Session> session;
    connect(run.Manager(), &ZTBatchManager::ConnectionEstablished, this,
            [&] { session = run.Manager()->CreateBatchSession(); });
    QVERIFY(run.Connect());
    QVERIFY(session);
    QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("message 0")) == 1; }));
}

void tst_ServerLife::unknownTimerIsIgnored()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    QTimerEvent event(1000000);
    QCoreApplication::sendEvent(run.Manager(), &event);
    QVERIFY(run.Manager()->IsStarted());
    QCOMPARE(run.DebugTexts(), QStringList());
}

void tst_ServerLife::serverEnds_data()
{
    QTest::addColumn<QString>("end");
    QTest::addColumn<QString>("ending");

    QTest::newRow("exit 0") << QStringLiteral("exit 0") << finished;
    QTest::newRow("exit 7") << QStringLiteral("exit 7") << finished;
    QTest::newRow("exit 255") << QStringLiteral("exit 255") << finished;
    QTest::newRow("crash") << QStringLiteral("crash") << aborted;
#ifdef Q_OS_WIN
    // An ordinary end there, with code 3.
    QTest::newRow("abort") << QStringLiteral("abort") << finished;
#else
    QTest::newRow("abort") << QStringLiteral("abort") << aborted;
#endif
}

void tst_ServerLife::serverEnds()
{
    QFETCH(QString, end);
    QFETCH(QString, ending);

    ManagerRun run({opensAtOnce, QStringLiteral("5: ") + end});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    QVERIFY(session->Process(QStringLiteral("job")));
    QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));

    QCOMPARE(run.log.lines, (QStringList{established, abnormalEnd, ending, failed}));
    QVERIFY(!run.Manager()->IsStarted());
    QVERIFY(session);
    QVERIFY(!run.Manager()->IsAllowToCreateSession());
    QCOMPARE(run.Manager()->CreateBatchSession(), nullptr);
    QCOMPARE(Intervals(run.Manager()), QList<int>());
    QCOMPARE(run.DebugTexts(), QStringList());

    // Qt has had nothing to complain about, such as a connection that names no signal.
    QCOMPARE(run.debugLines.All().filter(QStringLiteral("QObject")), QStringList());
    QCOMPARE(run.debugLines.All().filter(QStringLiteral("QProcess")), QStringList());

    // Nothing more comes, and what was torn down goes.
    QVERIFY(Eventually([&] { return run.Manager()->findChildren<ZTPipeSession*>().isEmpty(); }));
    QCOMPARE(run.Process(), nullptr);
    QCoreApplication::processEvents();
    QCOMPARE(run.log.lines.size(), 4);
}

void tst_ServerLife::serverEndsBeforeItOpens_data()
{
    QTest::addColumn<QString>("rule");

    QTest::newRow("exit 0") << QStringLiteral("start: exit 0");
    QTest::newRow("exit 7") << QStringLiteral("start: wait 100; exit 7");
    QTest::newRow("crash") << QStringLiteral("start: crash");
}

void tst_ServerLife::serverEndsBeforeItOpens()
{
    QFETCH(QString, rule);

    ManagerRun run({rule});
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return !run.log.lines.isEmpty(); }));
    QCOMPARE(run.log.lines, QStringList{failed});
    QVERIFY(!run.Manager()->IsStarted());
    QVERIFY(run.Manager()->IsAllowToCreateSession());
    QCOMPARE(Intervals(run.Manager()), QList<int>());
}

void tst_ServerLife::serverCannotStart_data()
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

void tst_ServerLife::serverCannotStart()
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
    QCOMPARE(Intervals(run.Manager()), QList<int>());

    // The way is free for another try.
    run.stage.ShowServer();
    run.stage.Play({opensAtOnce});
    QVERIFY(run.Connect());
    QCOMPARE(run.log.lines, (QStringList{failed, established}));
}

void tst_ServerLife::serverCannotStartInsideTheCall()
{
#ifdef Q_OS_LINUX
    ManagerRun run({opensAtOnce});
    // With no file descriptor to be had the process fails before start() returns.
    rlimit limit{};
    QCOMPARE(getrlimit(RLIMIT_NOFILE, &limit), 0);
    const rlimit lowered{3, limit.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_NOFILE, &lowered), 0);
    run.Manager()->Start();
    QCOMPARE(setrlimit(RLIMIT_NOFILE, &limit), 0);

    QCOMPARE(run.log.lines, QStringList{failed});
    QVERIFY(!run.Manager()->IsStarted());
    QCOMPARE(run.Manager()->findChildren<ZTPipeSession*>().size(), 0);
    QCOMPARE(Intervals(run.Manager()), QList<int>());
    QVERIFY(run.Connect());
#endif
}

void tst_ServerLife::serverThatCannotStartIsToldToEarlierSessions()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    run.Manager()->Stop();
    run.log.lines.clear();
    run.stage.HideServer();
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
    QCOMPARE(run.log.lines, (QStringList{abnormalEnd, aborted, failed}));
}

void tst_ServerLife::everySessionIsToldInOrder()
{
    ManagerRun run({opensAtOnce, QStringLiteral("5: crash")});
    QVERIFY(run.Connect());
    // The manager does not refuse a second session; it is the host who keeps to one.
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

void tst_ServerLife::endIsToldInTheUsersLanguage()
{
    class Translator : public QTranslator
    {
    public:
        QString translate(const char* context, const char* source, const char*, int) const override
        {
            return qstrcmp(source, "Abnormal process termination.") == 0
                       ? QStringLiteral("%1: vorzeitiges Ende").arg(QLatin1String(context))
                       : QString();
        }
        bool isEmpty() const override { return false; }
    };

    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    QVERIFY(run.CreateSession());
    Translator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    run.Manager()->Stop();
    QVERIFY(QCoreApplication::removeTranslator(&translator));
    QCOMPARE(run.log.lines,
             (QStringList{established, QStringLiteral("log [ZTBatchManager: vorzeitiges Ende]"), aborted, failed}));
}

void tst_ServerLife::stateInTheSignalsOfTheEnd()
{
    ManagerRun run({opensAtOnce, QStringLiteral("5: exit 0")});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    QList<bool> started;
    const auto note = [&] { started.append(run.Manager()->IsStarted()); };
    connect(session, &Session::LogMessage, this, note);
    connect(session, &Session::Finished, this, note);
    connect(run.Manager(), &ZTBatchManager::ConnectionFailed, this, note);
    session->Process(QString());
    QVERIFY(Eventually([&] { return started.size() == 3; }));
    QCOMPARE(started, (QList<bool>{true, true, false}));
}

void tst_ServerLife::stopEndsTheServerBeforeItReturns()
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

void tst_ServerLife::stopRightAfterStart()
{
    ManagerRun run({opensAtOnce});
    run.Manager()->Start();
    run.Manager()->Stop();
    QCOMPARE(run.log.lines, QStringList{failed});
    QCOMPARE(Intervals(run.Manager()), QList<int>());
    QVERIFY(run.Connect());
}

void tst_ServerLife::stopTwice()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    run.Manager()->Stop();
    run.Manager()->Stop();
    QCOMPARE(run.DebugTexts(), QStringList{QStringLiteral("Batch process does not exist.")});
    QCOMPARE(run.log.Count(failed), 1);
}

void tst_ServerLife::watchdogEndsASilentServer_data()
{
    QTest::addColumn<QString>("rule");

    QTest::newRow("does nothing") << QString();
    QTest::newRow("hangs") << QStringLiteral("start: hang");
}

void tst_ServerLife::watchdogEndsASilentServer()
{
    QFETCH(QString, rule);

    // A session of an earlier server is told too.
    ManagerRun run({opensAtOnce, QStringLiteral("5: exit 0")});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.Count(failed) == 1; }));
    run.log.lines.clear();

    run.stage.Play({rule});
    run.timings.startupTimeout = 300;
    QElapsedTimer clock;
    clock.start();
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
    QVERIFY(clock.elapsed() >= 280);
    QCOMPARE(run.log.lines, (QStringList{abnormalEnd, aborted, failed}));
    QVERIFY(!run.Manager()->IsStarted());
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
    QCOMPARE(Intervals(run.Manager()), QList<int>());
    QCOMPARE(run.DebugTexts(), QStringList());
}

void tst_ServerLife::watchdogEndsAServerThatClosedItsPipe()
{
    ManagerRun run({opensAtOnce, QStringLiteral("connect: close; disconnect")});
    run.timings.startupTimeout = 3000;
    QVERIFY(run.Connect());
    QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
    QCOMPARE(run.log.lines, (QStringList{established, failed}));
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

void tst_ServerLife::otherProcessErrorsChangeNothing_data()
{
    QTest::addColumn<QProcess::ProcessError>("error");

    QTest::newRow("timed out") << QProcess::Timedout;
    QTest::newRow("read error") << QProcess::ReadError;
    QTest::newRow("write error") << QProcess::WriteError;
    QTest::newRow("unknown error") << QProcess::UnknownError;
}

void tst_ServerLife::otherProcessErrorsChangeNothing()
{
    QFETCH(QProcess::ProcessError, error);

    ManagerRun run({opensAtOnce, QStringLiteral("5: send 6 id")});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    QVERIFY(QMetaObject::invokeMethod(run.Manager(), "OnServerError", Q_ARG(QProcess::ProcessError, error)));
    QCOMPARE(run.DebugTexts(), QStringList{QStringLiteral("Batch server error: %1").arg(error)});
    QVERIFY(run.Manager()->IsStarted());
    session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.lines.size() > 1; }));
    QCOMPARE(run.log.lines, (QStringList{established, finished}));
}

void tst_ServerLife::startsAgainAfterTheEnd()
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

void tst_ServerLife::startsAgainFromConnectionFailed()
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

void tst_ServerLife::lostConnectionComesBack()
{
    ManagerRun run({opensAtOnce, QStringLiteral("2: disconnect")});
    run.timings.reconnectInterval = 1000;
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return run.log.Count(established) == 1; }));
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    QVERIFY(Eventually([&] { return Intervals(run.Manager()) == QList<int>{25000}; }));
    session->Pause();
    QVERIFY(Eventually([&] { return run.log.Count(established) == 2; }));
    QCOMPARE(run.log.lines, (QStringList{established, established}));
    QVERIFY(run.Manager()->IsStarted());
    QCOMPARE(run.stage.LivingServers().size(), 1);

    // The session goes on on the new connection.
    session->Resume();
    QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("message 3")) == 1; }));
    QVERIFY(Eventually([&] { return Intervals(run.Manager()) == QList<int>{25000}; }));
}

void tst_ServerLife::lostConnectionIsTriedUntilTheServerOpensAgain()
{
    ManagerRun run({opensAtOnce, QStringLiteral("2: close; disconnect; wait 500; open")});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    const int refused = run.debugLines.CountEndingWith(QStringLiteral("] Socket error: 2"));
    run.timings.reconnectInterval = 50;
    session->Pause();
    QVERIFY(Eventually([&] { return run.log.Count(established) > 1; }));
    QVERIFY(run.debugLines.CountEndingWith(QStringLiteral("] Socket error: 2")) > refused + 5);
    // On a slow machine an attempt may meet the one before it.
    QCOMPARE(run.log.lines.size(), run.log.Count(established));
}

void tst_ServerLife::sessionDeletedAfterTeardownKeepsItsPlace()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    run.Manager()->Stop();
    delete session;
    QVERIFY(!run.Manager()->IsAllowToCreateSession());

    // A later teardown finds nobody to tell in that place.
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

void tst_ServerLife::keptPlaceIsNotTakenForAnother()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    QVERIFY(run.CreateSession());
    run.Manager()->Stop();
    delete run.Manager()->findChild<Session*>();

    // Whatever address a new session gets, it is its own place that its end frees.
    QVERIFY(run.Connect());
    for (int i = 0; i < 50; ++i) {
        const QPointer<Session> session = run.CreateSession();
        QVERIFY(session);
        delete session;
        QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("message 1")) == i + 1; }));
        QVERIFY(!run.Manager()->IsAllowToCreateSession());
    }
    // Message 1 has taken the identifiers of message 0, one by one.
    const QByteArray bytes = run.stage.Received(2);
    constexpr int frameSize = 4 + 2 + 4 + 4 + 72;
    QCOMPARE(bytes.size(), 100 * frameSize);
    for (int i = 0; i < 100; i += 2) {
        QCOMPARE(bytes.mid(i * frameSize + 6, frameSize - 6), bytes.mid((i + 1) * frameSize + 6, frameSize - 6));
    }
}

void tst_ServerLife::sessionDeletedWhileTheServerLivesFreesItsPlace()
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

void tst_ServerLife::releaseAsksTheServerToEnd()
{
    ManagerRun run({opensAtOnce, QStringLiteral("21: note asked; exit 0")});
    QVERIFY(run.Connect());
    QElapsedTimer clock;
    clock.start();
    ZTBatchManager::ReleaseInstance();
    QVERIFY(clock.elapsed() < 10000);
    QCOMPARE(run.stage.Count(QStringLiteral("note asked")), 1);
    QCOMPARE(run.stage.Received(), Frame21());
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
    QCOMPARE(run.DebugTexts(), (QStringList{QStringLiteral("Destroy"), QStringLiteral("Send close server message."),
                                            QStringLiteral("Destroyed")}));
    QCOMPARE(run.debugLines.TextsFrom(QStringLiteral("src\\private\\ZTBatchManager_p")),
             QStringList{QStringLiteral("Send close server message.")});
}

namespace {
QString watchedFile;
bool fileWasThere = false;
QtMessageHandler formerHandler = nullptr;

void LookWhenAsking(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (text.endsWith(QLatin1String("Send close server message."))) {
        QFile file(watchedFile);
        fileWasThere = file.open(QIODevice::ReadOnly) && file.readAll().contains("NamingPolicy=1");
    }
    formerHandler(type, context, text);
}
} // namespace

void tst_ServerLife::releaseSavesBeforeItAsks()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    run.Manager()->SetNamingPolicy(ZTBatchManager::NamingOverwrite);
    watchedFile = run.SettingsDir() + QStringLiteral("/BatchExceptionPolicy.ini");
    fileWasThere = false;
    formerHandler = qInstallMessageHandler(LookWhenAsking);
    ZTBatchManager::ReleaseInstance();
    qInstallMessageHandler(formerHandler);
    QVERIFY(fileWasThere);
}

void tst_ServerLife::releaseSendsWhatWasSentBefore()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    session->Process(QString(3000000, QLatin1Char('x')));
    session->Cancel();
    ZTBatchManager::ReleaseInstance();
    QCOMPARE(run.stage.Events().filter(QStringLiteral("message ")),
             (QStringList{QStringLiteral("message 0"), QStringLiteral("message 5"), QStringLiteral("message 4"),
                          QStringLiteral("message 21")}));
    QVERIFY(run.stage.Received().endsWith(Frame21()));
}

void tst_ServerLife::releaseInTheMiddleOfAFlood()
{
    ManagerRun run({opensAtOnce, QStringLiteral("5: flood 100000")});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    int progress = 0;
    connect(session, &Session::Progress, this, [&] {
        if (++progress == 1000) {
            ZTBatchManager::ReleaseInstance();
        }
    });
    session->Process(QString());
    QVERIFY(Eventually([&] { return !run.Manager(); }));
    QCoreApplication::processEvents();
    QCOMPARE(progress, 1000);
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

void tst_ServerLife::releaseWithAHungServer()
{
    ManagerRun run({opensAtOnce, QStringLiteral("2: hang")});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    session->Pause();
    QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("message 2")) == 1; }));
    run.timings.serverEndTimeout = 300;
    QElapsedTimer clock;
    clock.start();
    ZTBatchManager::ReleaseInstance();
    QVERIFY(clock.elapsed() >= 300);
    QCOMPARE(run.DebugTexts(),
             (QStringList{QStringLiteral("Destroy"), QStringLiteral("Send close server message."),
                          QStringLiteral("Finish server process error."), QStringLiteral("Destroyed")}));
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
    QCOMPARE(run.log.lines, QStringList{established});
}

void tst_ServerLife::releaseWithAServerThatIgnoresTheMessage()
{
    ManagerRun run({opensAtOnce, QStringLiteral("21: note ignored")});
    QVERIFY(run.Connect());
    run.timings.serverEndTimeout = 300;
    ZTBatchManager::ReleaseInstance();
    QCOMPARE(run.stage.Count(QStringLiteral("note ignored")), 1);
    QVERIFY(run.DebugTexts().contains(QStringLiteral("Finish server process error.")));
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

void tst_ServerLife::releaseWithAServerThatNeverOpened()
{
    ManagerRun run({});
    run.Manager()->Start();
    QVERIFY(Eventually(
        [&] { return run.stage.Count(QStringLiteral("arguments \\\\.\\pipe\\VelkoraBatchProcessing")) == 1; }));
    QElapsedTimer clock;
    clock.start();
    ZTBatchManager::ReleaseInstance();
    QVERIFY(clock.elapsed() < 10000);
    QCOMPARE(run.DebugTexts(),
             (QStringList{QStringLiteral("Destroy"), QStringLiteral("Client session is not connected."),
                          QStringLiteral("Destroyed")}));
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
    QCOMPARE(run.log.lines, QStringList());
}

void tst_ServerLife::releaseWithAServerThatHasJustOpened()
{
    // Listens by the time of the release, but the host has not turned its event loop to hear of it. A pipe that
    // connects only now gets no message, so the server does not end by itself.
    ManagerRun run({opensAtOnce, QStringLiteral("21: note asked; exit 0")});
    const OrphanServer listener(run.stage);
    QVERIFY(listener.isOpen);
    run.stage.Play({});
    run.timings.serverEndTimeout = 300;
    run.Manager()->Start();
    ZTBatchManager::ReleaseInstance();
    QCOMPARE(run.DebugTexts(), (QStringList{QStringLiteral("Destroy"), QStringLiteral("Finish server process error."),
                                            QStringLiteral("Destroyed")}));
    QCOMPARE(run.stage.Count(QStringLiteral("note asked")), 0);
    QCOMPARE(run.stage.LivingServers(), QList<qint64>{listener.process.processId()});
}

void tst_ServerLife::releaseRightAfterStart()
{
    ManagerRun run({opensAtOnce});
    run.Manager()->Start();
    ZTBatchManager::ReleaseInstance();
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
    QCOMPARE(run.log.lines, QStringList());
}

void tst_ServerLife::releaseTellsTheHostNothing()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    QVERIFY(run.CreateSession());
    run.log.lines.clear();
    ZTBatchManager::ReleaseInstance();
    QCoreApplication::processEvents();
    QCOMPARE(run.log.lines, QStringList());
}

void tst_ServerLife::releaseDeletesSessions()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    ZTBatchManager::ReleaseInstance();
    QVERIFY(!session);
    QCOMPARE(run.stage.Count(QStringLiteral("message 1")), 0);
}

void tst_ServerLife::releaseAfterTheEnd()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    run.Manager()->Stop();
    ZTBatchManager::ReleaseInstance();
    QCOMPARE(run.DebugTexts(), (QStringList{QStringLiteral("Destroy"), QStringLiteral("Destroyed")}));
}

void tst_ServerLife::killExistingWithoutInstance_data()
{
    QTest::addColumn<bool>("waitForExit");

    QTest::newRow("waiting") << true;
    QTest::newRow("not waiting") << false;
}

void tst_ServerLife::killExistingWithoutInstance()
{
    QFETCH(bool, waitForExit);

    ManagerRun run({opensAtOnce});
    ZTBatchManager::ReleaseInstance();
    OrphanServer orphan(run.stage);
    QVERIFY(orphan.isOpen);
    ZTBatchManager::KillExistingBatchProcess(waitForExit);
    // No event loop turns from here on: the message has been written.
    QVERIFY(orphan.process.waitForFinished(10000));
    QCOMPARE(orphan.process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(run.stage.Received(), Frame21());
}

void tst_ServerLife::killExistingWithoutListener_data()
{
    killExistingWithoutInstance_data();
}

void tst_ServerLife::killExistingWithoutListener()
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

void tst_ServerLife::killExistingWithoutListenerIsQuick()
{
    ManagerRun run({});
    QElapsedTimer clock;
    clock.start();
    ZTBatchManager::KillExistingBatchProcess(false);
    QVERIFY(clock.elapsed() < 2000);
}

void tst_ServerLife::killExistingIsNotHeldUpByAHungListener()
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

void tst_ServerLife::killExistingBesideAnIdleManager_data()
{
    killExistingWithoutInstance_data();
}

void tst_ServerLife::killExistingBesideAnIdleManager()
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

void tst_ServerLife::killExistingWaitsForTheOwnServer()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    QVERIFY(run.CreateSession());
    ZTBatchManager::KillExistingBatchProcess(true);
    QCOMPARE(run.stage.Received(2), Frame21());
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
    QCOMPARE(run.log.lines, (QStringList{established, abnormalEnd, finished, failed}));
    QVERIFY(!run.Manager()->IsStarted());
}

void tst_ServerLife::killExistingDoesNotWaitUnasked()
{
    ManagerRun run({opensAtOnce, QStringLiteral("21: wait 300; exit 0")});
    QVERIFY(run.Connect());
    ZTBatchManager::KillExistingBatchProcess(false);
    QVERIFY(run.Manager()->IsStarted());
    QCOMPARE(run.log.lines, QStringList{established});
    QVERIFY(Eventually([&] { return run.log.Count(failed) == 1; }));
    QCOMPARE(run.stage.Received(2), Frame21());
}

void tst_ServerLife::killExistingKillsAHungServer()
{
    ManagerRun run({opensAtOnce, QStringLiteral("2: hang")});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    session->Pause();
    QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("message 2")) == 1; }));
    run.timings.serverEndTimeout = 300;
    QElapsedTimer clock;
    clock.start();
    ZTBatchManager::KillExistingBatchProcess(true);
    QVERIFY(clock.elapsed() >= 300);
    QVERIFY(Eventually([&] { return run.log.Count(failed) == 1; }));
    QCOMPARE(run.log.lines, (QStringList{established, abnormalEnd, aborted, failed}));
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

void tst_ServerLife::killExistingKillsAServerWithoutPipe()
{
    ManagerRun run({});
    run.Manager()->Start();
    run.timings.serverEndTimeout = 300;
    ZTBatchManager::KillExistingBatchProcess(true);
    QVERIFY(Eventually([&] { return run.log.Count(failed) == 1; }));
    QCOMPARE(run.log.lines, QStringList{failed});
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

void tst_ServerLife::commandAfterRelease_data()
{
    QTest::addColumn<QString>("command");

    for (const char* command :
         {"process", "pause", "resume", "cancel", "input", "output", "processing", "naming", "write"}) {
        QTest::newRow(command) << QString::fromLatin1(command);
    }
}

void tst_ServerLife::commandAfterRelease()
{
    QFETCH(QString, command);

    ManagerRun run({opensAtOnce});
    const DeathReport report = RunDeathCase(QStringLiteral("session-after-release-") + command);
    QVERIFY2(QRegularExpression(QStringLiteral("^\\[src\\\\ZTBatchSession:[1-9][0-9]*\\] Assert failed$"))
                 .match(report.lastLine)
                 .hasMatch(),
             qPrintable(report.output));
    QVERIFY2(report.aborted, qPrintable(report.output));
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

OWN_FOLDER_TEST_MAIN(tst_ServerLife)
#include "tst_serverlife.moc"
