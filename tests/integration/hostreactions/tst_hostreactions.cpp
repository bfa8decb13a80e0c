#include "ManagerRun.h"
#include "OwnFolder.h"

#include <QEventLoop>
#include <QProcess>
#include <QTimer>
#include <QtTest>

// What a host may do from inside a signal: delete the session that emits, release the manager, start and stop.

namespace {

using Session = ZTBatchManager::ZTBatchSession;

const QString opensAtOnce = QStringLiteral("start: open");
const QString abnormalEnd = QStringLiteral("log [Abnormal process termination.]");
const QString aborted = QStringLiteral("aborted");
const QString finished = QStringLiteral("finished");
const QString established = QStringLiteral("established");
const QString failed = QStringLiteral("failed");

/// Calls `react` when `session` emits the signal of this signature, whatever its arguments.
class Reaction : public QObject
{
public:
    Reaction(QObject* sender, const char* signature, const std::function<void()>& react)
        : react(react)
    {
        const int signal = sender->metaObject()->indexOfSignal(signature);
        // The slot is one beyond those of QObject; qt_metacall() below answers for it.
        QMetaObject::connect(sender, signal, this, QObject::staticMetaObject.methodCount(), Qt::DirectConnection);
    }

    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override
    {
        id = QObject::qt_metacall(call, id, arguments);
        if (id == 0 && call == QMetaObject::InvokeMetaMethod) {
            ++count;
            react();
        }
        return id - 1;
    }

    int count = 0;

private:
    std::function<void()> react;
};

/// A signal of the session and the server's message that causes it; empty for the ends of the server.
struct Cause
{
    const char* title;
    const char* signature;
    const char* message;
};

const Cause causes[] = {
    {"finished", "Finished()", "send 6 id"},
    {"progress", "Progress(int)", "send 7 id i:1"},
    {"file in progress", "FileInProgress(QString)", "send 8 id s:a"},
    {"file processed", "FileProcessed(QString,QString)", "send 9 id s:a s:b"},
    {"log", "LogMessage(QString)", "send 10 id s:a"},
    {"range", "ProgressRange(int,int)", "send 11 id i:1 i:2"},
    {"paused", "Paused()", "send 12 id"},
    {"resumed", "Resumed()", "send 13 id"},
    {"cancelled", "Cancelled()", "send 14 id"},
    {"error", "ProcessError(QString,QString,int,int)", "send 15 id s:a s:b i:1 i:2"},
    {"input question", "InputQuestion()", "send 16 id"},
    {"output question", "OutputQuestion()", "send 17 id"},
    {"processing question", "ProcessingQuestion()", "send 18 id"},
    {"naming question", "NamingQuestion()", "send 19 id"},
    {"write-to-format question", "WriteToFormatQuestion()", "send 20 id"},
    {"log of a crash", "LogMessage(QString)", "crash"},
    {"aborted", "Aborted()", "crash"},
    {"log of an exit", "LogMessage(QString)", "exit 0"},
    {"finished by an exit", "Finished()", "exit 0"},
};

bool IsEnd(const QString& action)
{
    return !action.startsWith(QLatin1String("send"));
}

} // namespace

class tst_HostReactions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sessionDeletedInItsSignal_data();
    void sessionDeletedInItsSignal();
    void sessionDeletedLaterFromItsSignal_data();
    void sessionDeletedLaterFromItsSignal();
    void managerReleasedInASessionsSignal_data();
    void managerReleasedInASessionsSignal();
    void managerReplacedInASessionsSignal_data();
    void managerReplacedInASessionsSignal();
    void stopInASessionsSignal_data();
    void stopInASessionsSignal();
    void startInASessionsSignal_data();
    void startInASessionsSignal();
    void killExistingInASessionsSignal_data();
    void killExistingInASessionsSignal();
    void eventLoopInASessionsSignal_data();
    void eventLoopInASessionsSignal();
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

namespace {

void AddCauses(bool onlyEnds)
{
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<QString>("action");

    for (const Cause& cause : causes) {
        const QString action = QString::fromLatin1(cause.message);
        if (!onlyEnds || IsEnd(action)) {
            QTest::newRow(cause.title) << QByteArray(cause.signature) << action;
        }
    }
}

} // namespace

void tst_HostReactions::sessionDeletedInItsSignal_data()
{
    AddCauses(false);
}

void tst_HostReactions::sessionDeletedInItsSignal()
{
    QFETCH(QByteArray, signature);
    QFETCH(QString, action);

    ManagerRun run({opensAtOnce, QStringLiteral("5: ") + action});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    const Reaction reaction(session, signature, [&] { delete session; });
    session->Process(QString());
    QVERIFY(Eventually([&] { return !session; }));
    // The pipe is still there, at the server's end too, so the place is free and the server is told if it can be.
    QVERIFY(run.Manager()->IsAllowToCreateSession());
    if (IsEnd(action)) {
        QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
        const bool atLog = signature.startsWith("Log");
        QStringList expected{established, abnormalEnd, failed};
        if (!atLog) {
            expected.insert(2, action == QLatin1String("crash") ? aborted : finished);
        }
        QCOMPARE(run.log.lines, expected);
        QVERIFY(run.Manager()->IsAllowToCreateSession());
    } else {
        QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("message 1")) == 1; }));
        QCOMPARE(run.log.lines.size(), 2);
    }
}

void tst_HostReactions::sessionDeletedLaterFromItsSignal_data()
{
    AddCauses(false);
}

void tst_HostReactions::sessionDeletedLaterFromItsSignal()
{
    QFETCH(QByteArray, signature);
    QFETCH(QString, action);

    ManagerRun run({opensAtOnce, QStringLiteral("5: ") + action});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    const Reaction reaction(session, signature, [&] { session->deleteLater(); });
    session->Process(QString());
    QVERIFY(Eventually([&] { return !session; }));
    if (IsEnd(action)) {
        // The pipe is gone by then, and the place is kept.
        QCOMPARE(run.log.lines.last(), failed);
        QCOMPARE(run.log.lines.size(), 4);
        QVERIFY(!run.Manager()->IsAllowToCreateSession());
    } else {
        QVERIFY(run.Manager()->IsAllowToCreateSession());
        QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("message 1")) == 1; }));
    }
}

void tst_HostReactions::managerReleasedInASessionsSignal_data()
{
    AddCauses(false);
}

void tst_HostReactions::managerReleasedInASessionsSignal()
{
    QFETCH(QByteArray, signature);
    QFETCH(QString, action);

    ManagerRun run({opensAtOnce, QStringLiteral("5: ") + action});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    const Reaction reaction(session, signature, [] { ZTBatchManager::ReleaseInstance(); });
    session->Process(QString());
    QElapsedTimer clock;
    clock.start();
    QVERIFY(Eventually([&] { return !session; }));
    // No wait for a server that has ended.
    QVERIFY(clock.elapsed() < 10000);
    QCOMPARE(reaction.count, 1);
    QCOMPARE(run.Manager(), nullptr);
    QCOMPARE(run.log.Count(failed), 0);
    QCoreApplication::processEvents();
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
    QVERIFY(!run.DebugTexts().contains(QStringLiteral("Finish server process error.")));
}

void tst_HostReactions::managerReplacedInASessionsSignal_data()
{
    AddCauses(false);
}

void tst_HostReactions::managerReplacedInASessionsSignal()
{
    QFETCH(QByteArray, signature);
    QFETCH(QString, action);

    ManagerRun run({opensAtOnce, QStringLiteral("5: ") + action});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    const Reaction reaction(session, signature, [&] {
        ZTBatchManager::ReleaseInstance();
        ZTBatchManager::InitInstance(run.SettingsDir());
        run.log.Watch(run.Manager());
        run.Manager()->Start();
    });
    session->Process(QString());
    QVERIFY(run.AwaitConnection(2, 2));
    QCOMPARE(run.log.Count(failed), 0);
    QVERIFY(run.CreateSession());
    QCOMPARE(run.stage.LivingServers().size(), 1);
}

void tst_HostReactions::stopInASessionsSignal_data()
{
    AddCauses(false);
}

void tst_HostReactions::stopInASessionsSignal()
{
    QFETCH(QByteArray, signature);
    QFETCH(QString, action);

    ManagerRun run({opensAtOnce, QStringLiteral("5: ") + action});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    int reactions = 0;
    const Reaction reaction(session, signature, [&] {
        if (++reactions == 1) {
            run.Manager()->Stop();
        }
    });
    session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
    QCoreApplication::processEvents();
    QCOMPARE(run.log.Count(failed), 1);
    QCOMPARE(run.log.Count(abnormalEnd), 1);
    QCOMPARE(run.log.Count(aborted) + run.log.Count(finished),
             action == QLatin1String("send 6 id") ? 2 : 1); // one came with the message
    // A server whose end is being told does not exist any more.
    QCOMPARE(run.DebugTexts().count(QStringLiteral("Batch process does not exist.")), IsEnd(action) ? 1 : 0);
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

void tst_HostReactions::startInASessionsSignal_data()
{
    AddCauses(true);
}

void tst_HostReactions::startInASessionsSignal()
{
    QFETCH(QByteArray, signature);
    QFETCH(QString, action);

    ManagerRun run({opensAtOnce, QStringLiteral("5: ") + action});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    const Reaction reaction(session, signature, [&] { run.Manager()->Start(); });
    session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
    // The old process and the old pipe are still there at that time.
    QCOMPARE(run.DebugTexts(), (QStringList{QStringLiteral("Batch process already started."),
                                            QStringLiteral("Batch server already connected.")}));
    QVERIFY(!run.Manager()->IsStarted());
}

void tst_HostReactions::killExistingInASessionsSignal_data()
{
    AddCauses(false);
}

void tst_HostReactions::killExistingInASessionsSignal()
{
    QFETCH(QByteArray, signature);
    QFETCH(QString, action);

    ManagerRun run({opensAtOnce, QStringLiteral("5: ") + action});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    int reactions = 0;
    const Reaction reaction(session, signature, [&] {
        if (++reactions == 1) {
            ZTBatchManager::KillExistingBatchProcess(true);
        }
    });
    session->Process(QString());
    QElapsedTimer clock;
    clock.start();
    QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
    QVERIFY(clock.elapsed() < 10000);
    QCoreApplication::processEvents();
    QCOMPARE(run.log.Count(failed), 1);
    QCOMPARE(run.log.Count(abnormalEnd), 1);
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

void tst_HostReactions::eventLoopInASessionsSignal_data()
{
    AddCauses(false);
}

void tst_HostReactions::eventLoopInASessionsSignal()
{
    QFETCH(QByteArray, signature);
    QFETCH(QString, action);

    // As when the host asks its user something. At the server's end timers come meanwhile: the pipe is down, so one
    // reconnects and the other would end the server.
    ManagerRun run({opensAtOnce, QStringLiteral("5: ") + action});
    run.timings.startupTimeout = 2000;
    QVERIFY(run.Connect());
    run.timings.reconnectInterval = 5;
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    const bool isEnd = IsEnd(action);
    const Reaction reaction(session, signature, [&] {
        if (isEnd) {
            QVERIFY(
                Eventually([&] { return run.DebugTexts().contains(QStringLiteral("Batch process does not exist.")); }));
        } else {
            QEventLoop loop;
            QTimer::singleShot(50, &loop, &QEventLoop::quit);
            loop.exec();
        }
    });
    session->Process(QString());
    if (isEnd) {
        QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
        QCOMPARE(run.log.Count(failed), 1);
        QCOMPARE(run.log.Count(abnormalEnd), 1);
        QVERIFY(!run.Manager()->IsStarted());
    } else {
        QVERIFY(Eventually([&] { return reaction.count == 1; }));
        QCOMPARE(run.log.Count(failed), 0);
        QVERIFY(run.Manager()->IsStarted());
    }
}

void tst_HostReactions::eventLoopInsideABlockingCall_data()
{
    QTest::addColumn<bool>("isStop");
    QTest::addColumn<bool>("releases");

    QTest::newRow("Stop") << true << false;
    QTest::newRow("Stop, then released") << true << true;
    QTest::newRow("KillExistingBatchProcess") << false << false;
    QTest::newRow("KillExistingBatchProcess, then released") << false << true;
}

void tst_HostReactions::eventLoopInsideABlockingCall()
{
    QFETCH(bool, isStop);
    QFETCH(bool, releases);

    // Before the application's own event loop runs, or after it, the first loop that turns deletes whatever was to be
    // deleted later: the process must not be among that while its call is under way.
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

void tst_HostReactions::otherSessionDeletedInTheWalk()
{
    ManagerRun run({opensAtOnce, QStringLiteral("5: crash")});
    QVERIFY(run.Connect());
    QList<QPointer<Session>> sessions;
    for (int i = 0; i < 4; ++i) {
        sessions.append(run.CreateSession());
    }
    // Whoever is told first takes all others along.
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

void tst_HostReactions::sessionCreatedInTheWalk()
{
    ManagerRun run({opensAtOnce, QStringLiteral("5: crash")});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    connect(session, &Session::Aborted, this, [&] {
        // Nobody will serve it; that the walk ends is what counts.
        delete run.Manager()->CreateBatchSession();
        run.Manager()->CreateBatchSession();
    });
    session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
    QCOMPARE(run.log.Count(failed), 1);
    QVERIFY(!run.Manager()->IsStarted());
}

void tst_HostReactions::nextRunFromFinished()
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

void tst_HostReactions::managerReleasedInEstablished()
{
    ManagerRun run({opensAtOnce});
    connect(run.Manager(), &ZTBatchManager::ConnectionEstablished, this, [] { ZTBatchManager::ReleaseInstance(); });
    QVERIFY(run.Connect());
    QVERIFY(!run.Manager());
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
    QVERIFY(run.DebugTexts().contains(QStringLiteral("Send close server message.")));
}

void tst_HostReactions::managerReleasedInConnectionFailed_data()
{
    QTest::addColumn<QString>("end");

    QTest::newRow("crash") << QStringLiteral("crash");
    QTest::newRow("exit") << QStringLiteral("exit 0");
}

void tst_HostReactions::managerReleasedInConnectionFailed()
{
    QFETCH(QString, end);

    ManagerRun run({opensAtOnce, QStringLiteral("5: ") + end});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    connect(run.Manager(), &ZTBatchManager::ConnectionFailed, this, [] { ZTBatchManager::ReleaseInstance(); });
    session->Process(QString());
    QVERIFY(Eventually([&] { return !run.Manager(); }));
    QVERIFY(!session);
    QCOMPARE(run.DebugTexts(), (QStringList{QStringLiteral("Destroy"), QStringLiteral("Destroyed")}));
}

void tst_HostReactions::deferredDeletesInConnectionFailed_data()
{
    managerReleasedInConnectionFailed_data();
}

void tst_HostReactions::deferredDeletesInConnectionFailed()
{
    QFETCH(QString, end);

    // A host may hurry what was to be deleted later. The process is reporting its end all the while.
    ManagerRun run({opensAtOnce, QStringLiteral("5: ") + end});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    const QPointer<QProcess> process = ManagerRun::Process();
    QVERIFY(process);
    bool isReporting = false;
    connect(run.Manager(), &ZTBatchManager::ConnectionFailed, this, [&] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        isReporting = !process.isNull();
    });
    session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.Count(failed) == 1; }));
    QVERIFY(isReporting);
    QVERIFY(Eventually([&] { return process.isNull(); }));
}

void tst_HostReactions::managerReleasedWhenTheServerCannotStart()
{
    ManagerRun run({});
    run.stage.HideServer();
    connect(run.Manager(), &ZTBatchManager::ConnectionFailed, this, [] { ZTBatchManager::ReleaseInstance(); });
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return !run.Manager(); }));
    QCOMPARE(run.DebugTexts(), (QStringList{QStringLiteral("Destroy"), QStringLiteral("Destroyed")}));
}

void tst_HostReactions::managerReleasedInStopsSignals()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    connect(session, &Session::Aborted, this, [] { ZTBatchManager::ReleaseInstance(); });
    run.Manager()->Stop();
    QVERIFY(!run.Manager());
    QVERIFY(!session);
    QCOMPARE(run.log.Count(failed), 0);
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

void tst_HostReactions::managerReleasedInTheWatchdogsSignals_data()
{
    QTest::addColumn<bool>("hasSession");

    QTest::newRow("in Aborted") << true;
    QTest::newRow("in ConnectionFailed") << false;
}

void tst_HostReactions::managerReleasedInTheWatchdogsSignals()
{
    QFETCH(bool, hasSession);

    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    run.Manager()->Stop();
    run.stage.Play({});
    run.timings.startupTimeout = 100;
    if (hasSession) {
        connect(session, &Session::Aborted, this, [] { ZTBatchManager::ReleaseInstance(); });
    } else {
        connect(run.Manager(), &ZTBatchManager::ConnectionFailed, this, [] { ZTBatchManager::ReleaseInstance(); });
    }
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return !run.Manager(); }));
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

void tst_HostReactions::managerReleasedInKillExistingsSignals()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    connect(session, &Session::Finished, this, [] { ZTBatchManager::ReleaseInstance(); });
    ZTBatchManager::KillExistingBatchProcess(true);
    QVERIFY(!run.Manager());
    QVERIFY(!session);
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

void tst_HostReactions::stopInEstablished()
{
    ManagerRun run({opensAtOnce});
    connect(run.Manager(), &ZTBatchManager::ConnectionEstablished, this, [&] { run.Manager()->Stop(); });
    QVERIFY(run.Connect());
    QCOMPARE(run.log.lines, (QStringList{established, failed}));
}

void tst_HostReactions::startAndStopFromConnectionFailed()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    int rounds = 0;
    connect(run.Manager(), &ZTBatchManager::ConnectionFailed, this, [&] {
        if (++rounds < 5) {
            run.Manager()->Start();
            run.Manager()->Stop(); // Comes back here from inside.
        }
    });
    run.Manager()->Stop();
    QCOMPARE(rounds, 5);
    QCOMPARE(run.log.Count(failed), 5);
    QVERIFY(!run.Manager()->IsStarted());
    QVERIFY(Eventually([&] { return run.stage.LivingServers().isEmpty(); }));
    QVERIFY(run.Connect());
}

void tst_HostReactions::startFromConnectionFailedOfTheWatchdog()
{
    ManagerRun run({QStringLiteral("start: hang")});
    run.timings.startupTimeout = 100;
    connect(run.Manager(), &ZTBatchManager::ConnectionFailed, this, [&] {
        run.timings.startupTimeout = 25000;
        run.stage.Play({opensAtOnce});
        run.Manager()->Start();
    });
    run.Manager()->Start();
    QVERIFY(run.AwaitConnection(1, 1));
    QCOMPARE(run.log.lines, (QStringList{failed, established}));
    QCOMPARE(run.DebugTexts(), QStringList());
}

void tst_HostReactions::startFromConnectionFailedOfKillExisting()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    connect(run.Manager(), &ZTBatchManager::ConnectionFailed, this, [&] { run.Manager()->Start(); });
    ZTBatchManager::KillExistingBatchProcess(true);
    // It is the old server that was to be killed, not the new one.
    QVERIFY(run.Manager()->IsStarted());
    QVERIFY(run.AwaitConnection(2, 2));
    QCOMPARE(run.log.lines, (QStringList{established, failed, established}));
}

void tst_HostReactions::sessionDeletedInConnectionFailed()
{
    ManagerRun run({opensAtOnce, QStringLiteral("5: crash")});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    connect(run.Manager(), &ZTBatchManager::ConnectionFailed, this, [&] { delete session; });
    session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
    QVERIFY(!session);
    QVERIFY(!run.Manager()->IsAllowToCreateSession());
}

void tst_HostReactions::managerReleasedInASessionsDestruction()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    int gone = 0;
    connect(session, &QObject::destroyed, this, [&] {
        ++gone;
        ZTBatchManager::ReleaseInstance();
    });
    delete session;
    QCOMPARE(gone, 1);
    QCOMPARE(ZTBatchManager::Instance(), nullptr);
    QVERIFY(Eventually([&] { return run.stage.LivingServers().isEmpty(); }));
    QVERIFY(run.stage.Events().contains(QStringLiteral("message 1")));
}

void tst_HostReactions::sessionDeletesItselfAtRelease()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    int gone = 0;
    connect(session, &QObject::destroyed, this, [&] {
        ++gone;
        ZTBatchManager::ReleaseInstance();
        QCOMPARE(ZTBatchManager::Instance(), nullptr);
    });
    ZTBatchManager::ReleaseInstance();
    QCOMPARE(gone, 1);
}

void tst_HostReactions::hostDeletesTheSessionWhenTheManagerGoes()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    connect(run.Manager(), &QObject::destroyed, this, [&] { delete session; });
    ZTBatchManager::ReleaseInstance();
    QVERIFY(!session);
}

OWN_FOLDER_TEST_MAIN(tst_HostReactions)
#include "tst_hostreactions.moc"
