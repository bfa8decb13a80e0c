// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "OwnFolder.h"
#include "ServerStage.h"

#include "hosts/common/RunController.h"
#include "hosts/common/ServerWatch.h"

#include "ZTBatchManager.h"

#include <QTemporaryDir>
#include <QUrl>
#include <QtTest>

using namespace BatchHost;

/// Every state of a run has a next event or a deadline, whatever the server does or leaves undone.
class tst_RunController : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void connectsBeforeTheServerListens();
    void serversThatSayNothing_data();
    void serversThatSayNothing();
    void serversThatAreSlow();
    void serversThatDoNotCancel_data();
    void serversThatDoNotCancel();
    void filesBegunAgain();
    void requestsAfterTheEnd();
    void pausedRunsStayPaused();
    void aPauseOutlivesItsServer();

private:
    struct Notes : RunObserver
    {
        void OnInWork(const QStringList& names, const QString&) override { inWork.append(names); }
        void OnLog(const QString& text) override { logs.append(text); }
        void OnServerLost(const QStringList&, bool) override { ++losses; }
        void OnEnd(const RunEnd& newEnd) override { end = newEnd; }

        QVector<QStringList> inWork;
        QStringList logs;
        int losses = 0;
        std::optional<RunEnd> end;
    };

    void Begin(const QStringList& rules, const QString& journal = QString());
    bool WaitForEnd();
    bool WaitForEvents(const QString& event, int count);

    std::unique_ptr<QTemporaryDir> settings;
    std::unique_ptr<ServerStage> server;
    std::unique_ptr<Notes> notes;
    std::unique_ptr<RunController> run;
};

void tst_RunController::initTestCase()
{
    ServerWatch::Times::InUse().tick = 400;
}

void tst_RunController::init()
{
    settings = std::make_unique<QTemporaryDir>();
    server = std::make_unique<ServerStage>();
    notes = std::make_unique<Notes>();
    ZTBatchManager::InitInstance(settings->path());
}

void tst_RunController::cleanup()
{
    run.reset();
    for (const qint64 process : server->LivingServers()) {
        qInfo("Server %lld is still alive.", process);
        ZTBatchManager::Instance()->Stop();
    }
    ZTBatchManager::ReleaseInstance();
    server.reset();
}

void tst_RunController::Begin(const QStringList& rules, const QString& journal)
{
    server->SetRules(rules);
    RunController::Order order;
    order.document = QStringLiteral("a job");
    order.inputs.files = QStringList{QStringLiteral("a"), QStringLiteral("b")};
    order.inputs.bytes = {1, 1};
    order.journalPath = journal;
    run = std::make_unique<RunController>(order, QVector<RunObserver*>{notes.get()});
    run->Start();
}

bool tst_RunController::WaitForEnd()
{
    constexpr int patience = 60'000;
    return QTest::qWaitFor([this] { return notes->end.has_value(); }, patience);
}

bool tst_RunController::WaitForEvents(const QString& event, int count)
{
    constexpr int patience = 60'000;
    return QTest::qWaitFor([&] { return server->Count(event) >= count; }, patience);
}

// Nobody waits for a second attempt: a host that starts its own server is connected from the start.
void tst_RunController::connectsBeforeTheServerListens()
{
#ifdef Q_OS_WIN
    QSKIP("A named pipe cannot be handed over: the server makes it.");
#endif
    QSignalSpy connected(ZTBatchManager::Instance(), &ZTBatchManager::ConnectionEstablished);
    Begin({QStringLiteral("start: hang")});
    QTRY_COMPARE(connected.size(), 1);
    QVERIFY(!ZTBatchManager::Instance()->IsAllowToCreateSession());
    QCOMPARE(server->Count(QStringLiteral("open")), 0);
    run->EndAtOnce();
    QVERIFY(WaitForEnd());
}

void tst_RunController::serversThatSayNothing_data()
{
    QTest::addColumn<QStringList>("rules");
    const auto row = [](const char* name, const QStringList& rules) {
        QTest::newRow(name) << QStringList{QStringLiteral("start: open")} + rules;
    };
    row("from the beginning", {});
    row("after a file was begun", {QStringLiteral("5: send 8 id s:a")});
    row("hangs", {QStringLiteral("5: hang")});
    row("closes the connection", {QStringLiteral("connect: disconnect")});
    row("closes the connection and the pipe", {QStringLiteral("5: close; disconnect")});
    row("cancels the run and stays", {QStringLiteral("5: send 14 id")});
    row("has forgotten the run",
        {QStringLiteral("3: send 10 id s:") +
         QString::fromLatin1(QUrl::toPercentEncoding(QStringLiteral("No run is active: the command is ignored.")))});
}

void tst_RunController::serversThatSayNothing()
{
    QFETCH(QStringList, rules);
    Begin(rules);
    QVERIFY(WaitForEnd());
    QVERIFY(notes->end->isServerLost);
    QCOMPARE(notes->losses, 1);
    QCOMPARE(notes->end->NotProcessed(), 2);
    QTRY_COMPARE(server->LivingServers().size(), 0);
}

// A picture may take minutes. The server answers meanwhile, and the log does not show that it was asked.
void tst_RunController::serversThatAreSlow()
{
    const QString alive = QString::fromLatin1(QUrl::toPercentEncoding(QStringLiteral("There is nothing to resume.")));
    Begin({QStringLiteral("start: open"), QStringLiteral("5: send 8 id s:a"),
           QStringLiteral("3: send 10 id s:") + alive, QStringLiteral("4: send 14 id")});
    constexpr int longer = 4; // than a server that says nothing lives
    QVERIFY(WaitForEvents(QStringLiteral("message 3"), longer));
    QCOMPARE(notes->losses, 0);
    QCOMPARE(notes->logs, QStringList());
    run->Cancel();
    QVERIFY(WaitForEnd());
    QVERIFY(notes->end->isCancelled);
}

void tst_RunController::serversThatDoNotCancel_data()
{
    QTest::addColumn<QString>("rule");
    QTest::newRow("silent") << QString();
    QTest::newRow("talkative") << QStringLiteral("4: flood 1000; wait 300; flood 1000; wait 300; flood 1000; wait "
                                                 "300; flood 1000; wait 300; flood 1000; wait 60000");
    QTest::newRow("hung") << QStringLiteral("4: hang");
}

void tst_RunController::serversThatDoNotCancel()
{
    QFETCH(QString, rule);
    Begin({QStringLiteral("start: open"), QStringLiteral("5: send 8 id s:a"), rule});
    QVERIFY(WaitForEvents(QStringLiteral("message 5"), 1));
    run->Cancel();
    QVERIFY(WaitForEnd());
    QVERIFY(notes->end->isCancelled);
    QCOMPARE(notes->losses, 0);
    QTRY_COMPARE(server->LivingServers().size(), 0);
}

// Its name was taken meanwhile, any number of times.
void tst_RunController::filesBegunAgain()
{
    QStringList actions;
    for (int i = 0; i < 1000; ++i) {
        actions.append(QStringLiteral("send 8 id s:a"));
    }
    Begin({QStringLiteral("start: open"), QStringLiteral("5: ") + actions.join(QStringLiteral("; ")) +
                                              QStringLiteral("; send 9 id s:a s:x; send 6 id")});
    QVERIFY(WaitForEnd());
    QCOMPARE(notes->inWork.size(), 1000);
    for (const QStringList& names : qAsConst(notes->inWork)) {
        QCOMPARE(names, QStringList{QStringLiteral("a")});
    }
}

void tst_RunController::requestsAfterTheEnd()
{
    Begin({QStringLiteral("start: open"), QStringLiteral("5: send 6 id")});
    QVERIFY(WaitForEnd());
    const RunEnd end = *notes->end;
    notes->end.reset();
    run->Cancel();
    run->EndAtOnce();
    QCoreApplication::processEvents();
    QVERIFY(!notes->end);
    QVERIFY(!end.isCancelled);
}

// The server has nothing to say meanwhile, and nobody asks it.
void tst_RunController::pausedRunsStayPaused()
{
    Begin({QStringLiteral("start: open"), QStringLiteral("5: send 8 id s:a"), QStringLiteral("2: send 12 id"),
           QStringLiteral("3: send 13 id; send 9 id s:a s:x; send 9 id s:b s:y; send 6 id")});
    QVERIFY(WaitForEvents(QStringLiteral("message 5"), 1));
    QSignalSpy paused(run.get(), &RunController::Paused);
    QSignalSpy resumed(run.get(), &RunController::Resumed);
    run->Pause();
    run->Pause();
    QVERIFY(paused.wait());
    constexpr int longerThanALostServer = 4'000;
    QVERIFY(!QTest::qWaitFor([this] { return notes->end || notes->losses > 0; }, longerThanALostServer));
    QCOMPARE(server->Count(QStringLiteral("message 3")), 0);
    run->Resume();
    QVERIFY(WaitForEnd());
    QCOMPARE(paused.size(), 1);
    QCOMPARE(resumed.size(), 1);
    QCOMPARE(server->Count(QStringLiteral("message 2")), 1);
    QCOMPARE(notes->end->written, 2);
}

void tst_RunController::aPauseOutlivesItsServer()
{
    Begin({QStringLiteral("start: open"), QStringLiteral("2@1: exit 0"), QStringLiteral("2@2: send 12 id"),
           QStringLiteral("3: send 13 id; send 6 id")},
          settings->filePath(QStringLiteral("no journal")));
    QVERIFY(WaitForEvents(QStringLiteral("message 5"), 1));
    QSignalSpy paused(run.get(), &RunController::Paused);
    run->Pause();
    QTRY_COMPARE_WITH_TIMEOUT(paused.size(), 1, 60'000);
    QCOMPARE(notes->losses, 1);
    run->Cancel();
    QVERIFY(WaitForEnd());
}

OWN_FOLDER_TEST_MAIN(tst_RunController)
#include "tst_runcontroller.moc"
