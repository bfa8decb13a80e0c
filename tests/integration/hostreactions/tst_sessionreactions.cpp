// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ManagerRun.h"
#include "OwnFolder.h"

#include <QEventLoop>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>

using namespace HostLines;

namespace {

/// Calls `react` whenever `sender` emits the signal of this signature, whatever its arguments.
class Reaction : public QObject
{
public:
    Reaction(QObject* sender, const char* signature, const std::function<void()>& react)
        : react(react)
    {
        const int signal = sender->metaObject()->indexOfSignal(signature);
        // The slot has the first method number behind those of QObject; qt_metacall() below implements it.
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

/// A signal of the session, and what the server does to cause it.
struct Cause
{
    /// Whether the server ends.
    bool IsEnd() const { return !action.startsWith(QLatin1String("send")); }

    QByteArray signature;
    QString action;
};

void AddCauses(bool onlyEnds)
{
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<QString>("action");

    const auto row = [onlyEnds](const char* name, const char* signature, const char* action) {
        const Cause cause{signature, QString::fromLatin1(action)};
        if (!onlyEnds || cause.IsEnd()) {
            QTest::newRow(name) << cause.signature << cause.action;
        }
    };
    row("finished", "Finished()", "send 6 id");
    row("progress", "Progress(int)", "send 7 id i:1");
    row("file in progress", "FileInProgress(QString)", "send 8 id s:a");
    row("file processed", "FileProcessed(QString,QString)", "send 9 id s:a s:b");
    row("log", "LogMessage(QString)", "send 10 id s:a");
    row("range", "ProgressRange(int,int)", "send 11 id i:1 i:2");
    row("paused", "Paused()", "send 12 id");
    row("resumed", "Resumed()", "send 13 id");
    row("cancelled", "Cancelled()", "send 14 id");
    row("error", "ProcessError(QString,QString,int,int)", "send 15 id s:a s:b i:1 i:2");
    row("input question", "InputQuestion()", "send 16 id");
    row("output question", "OutputQuestion()", "send 17 id");
    row("processing question", "ProcessingQuestion()", "send 18 id");
    row("naming question", "NamingQuestion()", "send 19 id");
    row("write-to-format question", "WriteToFormatQuestion()", "send 20 id");
    row("log of a crash", "LogMessage(QString)", "crash");
    row("aborted", "Aborted()", "crash");
    row("log of an exit", "LogMessage(QString)", "exit 0");
    row("finished by an exit", "Finished()", "exit 0");
}

Cause CurrentCause()
{
    QFETCH(QByteArray, signature);
    QFETCH(QString, action);

    return {signature, action};
}

/// A run in which the server causes the signal of the current row as soon as the session starts processing.
class ReactionRun : public ManagerRun
{
public:
    ReactionRun()
        : ReactionRun(CurrentCause())
    {
    }

    /// Opens the session, and makes the host call `react` inside the signal.
    bool OpenSession(const std::function<void()>& react)
    {
        if (!ManagerRun::OpenSession()) {
            return false;
        }
        reaction = std::make_unique<Reaction>(session, cause.signature, react);
        return true;
    }

    int ReactionCount() const { return reaction->count; }

    const Cause cause;

private:
    explicit ReactionRun(const Cause& cause)
        : ManagerRun({opensAtOnce, QStringLiteral("5: ") + cause.action})
        , cause(cause)
    {
    }

    std::unique_ptr<Reaction> reaction;
};

} // namespace

/// What a host may do inside any signal of a session: each test runs once for each signal and its cause.
class tst_SessionReactions : public QObject
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
};

void tst_SessionReactions::sessionDeletedInItsSignal_data()
{
    AddCauses(false);
}

void tst_SessionReactions::sessionDeletedInItsSignal()
{
    ReactionRun run;
    QVERIFY(run.OpenSession([&] { delete run.session; }));
    run.session->Process(QString());
    QVERIFY(Eventually([&] { return !run.session; }));
    // The pipe still exists, even when the server ends: the deletion frees the session's place, and a server that is
    // alive gets the message.
    QVERIFY(run.Manager()->IsAllowToCreateSession());
    if (run.cause.IsEnd()) {
        QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
        const bool atLog = run.cause.signature.startsWith("Log");
        QStringList expected{established, abnormalEnd, failed};
        if (!atLog) {
            expected.insert(2, run.cause.action == QLatin1String("crash") ? aborted : finished);
        }
        QCOMPARE(run.log.lines, expected);
        QVERIFY(run.Manager()->IsAllowToCreateSession());
    } else {
        QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("message 1")) == 1; }));
        QCOMPARE(run.log.lines.size(), 2);
    }
}

void tst_SessionReactions::sessionDeletedLaterFromItsSignal_data()
{
    AddCauses(false);
}

void tst_SessionReactions::sessionDeletedLaterFromItsSignal()
{
    ReactionRun run;
    QVERIFY(run.OpenSession([&] { run.session->deleteLater(); }));
    run.session->Process(QString());
    QVERIFY(Eventually([&] { return !run.session; }));
    if (run.cause.IsEnd()) {
        // The pipe no longer exists by then, so the session's place stays taken.
        QCOMPARE(run.log.lines.last(), failed);
        QCOMPARE(run.log.lines.size(), 4);
        QVERIFY(!run.Manager()->IsAllowToCreateSession());
    } else {
        QVERIFY(run.Manager()->IsAllowToCreateSession());
        QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("message 1")) == 1; }));
    }
}

void tst_SessionReactions::managerReleasedInASessionsSignal_data()
{
    AddCauses(false);
}

void tst_SessionReactions::managerReleasedInASessionsSignal()
{
    ReactionRun run;
    QVERIFY(run.OpenSession([] { ZTBatchManager::ReleaseInstance(); }));
    run.session->Process(QString());
    QElapsedTimer clock;
    clock.start();
    QVERIFY(Eventually([&] { return !run.session; }));
    // The release does not wait for a server that has ended.
    QVERIFY(clock.elapsed() < 10000);
    QCOMPARE(run.ReactionCount(), 1);
    QCOMPARE(run.Manager(), nullptr);
    QCOMPARE(run.log.Count(failed), 0);
    QCoreApplication::processEvents();
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
    QVERIFY(!run.DebugTexts().contains(QStringLiteral("Finish server process error.")));
}

void tst_SessionReactions::managerReplacedInASessionsSignal_data()
{
    AddCauses(false);
}

void tst_SessionReactions::managerReplacedInASessionsSignal()
{
    ReactionRun run;
    QVERIFY(run.OpenSession([&] {
        ZTBatchManager::ReleaseInstance();
        ZTBatchManager::InitInstance(run.SettingsDir());
        run.log.Watch(run.Manager());
        run.Manager()->Start();
    }));
    run.session->Process(QString());
    QVERIFY(run.AwaitConnection(2, 2));
    QCOMPARE(run.log.Count(failed), 0);
    QVERIFY(run.CreateSession());
    QCOMPARE(run.stage.LivingServers().size(), 1);
}

void tst_SessionReactions::stopInASessionsSignal_data()
{
    AddCauses(false);
}

void tst_SessionReactions::stopInASessionsSignal()
{
    ReactionRun run;
    int reactions = 0;
    QVERIFY(run.OpenSession([&] {
        if (++reactions == 1) {
            run.Manager()->Stop();
        }
    }));
    run.session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
    QCoreApplication::processEvents();
    QCOMPARE(run.log.Count(failed), 1);
    QCOMPARE(run.log.Count(abnormalEnd), 1);
    QCOMPARE(run.log.Count(aborted) + run.log.Count(finished),
             run.cause.action == QLatin1String("send 6 id") ? 2 : 1); // one of them from the message
    // While the end of a server is being reported, Stop() finds no server.
    QCOMPARE(run.DebugTexts().count(QStringLiteral("Batch process does not exist.")), run.cause.IsEnd() ? 1 : 0);
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

void tst_SessionReactions::startInASessionsSignal_data()
{
    AddCauses(true);
}

void tst_SessionReactions::startInASessionsSignal()
{
    ReactionRun run;
    QVERIFY(run.OpenSession([&] { run.Manager()->Start(); }));
    run.session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
    // The old process and the old pipe still exist at that time.
    QCOMPARE(run.DebugTexts(), (QStringList{QStringLiteral("Batch process already started."),
                                            QStringLiteral("Batch server already connected.")}));
    QVERIFY(!run.Manager()->IsStarted());
}

void tst_SessionReactions::killExistingInASessionsSignal_data()
{
    AddCauses(false);
}

void tst_SessionReactions::killExistingInASessionsSignal()
{
    ReactionRun run;
    int reactions = 0;
    QVERIFY(run.OpenSession([&] {
        if (++reactions == 1) {
            ZTBatchManager::KillExistingBatchProcess(true);
        }
    }));
    run.session->Process(QString());
    QElapsedTimer clock;
    clock.start();
    QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
    QVERIFY(clock.elapsed() < 10000);
    QCoreApplication::processEvents();
    QCOMPARE(run.log.Count(failed), 1);
    QCOMPARE(run.log.Count(abnormalEnd), 1);
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

void tst_SessionReactions::eventLoopInASessionsSignal_data()
{
    AddCauses(false);
}

void tst_SessionReactions::eventLoopInASessionsSignal()
{
    // As a host does that asks its user something. When the server ends, both timers fire meanwhile: the pipe is down,
    // so one reconnects, and the other would end the server.
    ReactionRun run;
    run.timings.startupTimeout = 2000;
    const bool isEnd = run.cause.IsEnd();
    QVERIFY(run.OpenSession([&] {
        if (isEnd) {
            QVERIFY(
                Eventually([&] { return run.DebugTexts().contains(QStringLiteral("Batch process does not exist.")); }));
        } else {
            QEventLoop loop;
            QTimer::singleShot(50, &loop, &QEventLoop::quit);
            loop.exec();
        }
    }));
    run.timings.reconnectInterval = 5;
    run.session->Process(QString());
    if (isEnd) {
        QVERIFY(Eventually([&] { return run.log.Count(failed) > 0; }));
        QCOMPARE(run.log.Count(failed), 1);
        QCOMPARE(run.log.Count(abnormalEnd), 1);
        QVERIFY(!run.Manager()->IsStarted());
    } else {
        QVERIFY(Eventually([&] { return run.ReactionCount() == 1; }));
        QCOMPARE(run.log.Count(failed), 0);
        QVERIFY(run.Manager()->IsStarted());
    }
}

OWN_FOLDER_TEST_MAIN(tst_SessionReactions)
#include "tst_sessionreactions.moc"
