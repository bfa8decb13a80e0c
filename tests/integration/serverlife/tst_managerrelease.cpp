// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DeathCase.h"
#include "ManagerRun.h"
#include "OwnFolder.h"
#include "ServerLife.h"

#include <QElapsedTimer>
#include <QtTest>

using namespace HostLines;

using Session = ZTBatchManager::ZTBatchSession;

/// Releasing the manager while a server is running, in every state of that server.
class tst_ManagerRelease : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

    void commandAfterRelease_data();
    void commandAfterRelease();
};

void tst_ManagerRelease::releaseAsksTheServerToEnd()
{
    ManagerRun run({opensAtOnce, QStringLiteral("21: note asked; exit 0")});
    QVERIFY(run.Connect());
    QElapsedTimer clock;
    clock.start();
    ZTBatchManager::ReleaseInstance();
    QVERIFY(clock.elapsed() < 10000);
    QCOMPARE(run.stage.Count(QStringLiteral("note asked")), 1);
    QCOMPARE(run.stage.Received(), CloseServerFrame());
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
    QCOMPARE(run.DebugTexts(), (QStringList{QStringLiteral("Destroy"), QStringLiteral("Send close server message."),
                                            QStringLiteral("Destroyed")}));
    QCOMPARE(run.debugLines.TextsFrom(QStringLiteral("src\\private\\ZTBatchManager_p")),
             QStringList{QStringLiteral("Send close server message.")});
}

namespace {

QString policyFile;
bool isSavedBeforeTheRequest = false;
QtMessageHandler previousHandler = nullptr;

/// A message handler that looks for the saved policies when the manager is about to ask the server to end.
void CheckPolicyFile(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (text.endsWith(QLatin1String("Send close server message."))) {
        QFile file(policyFile);
        isSavedBeforeTheRequest = file.open(QIODevice::ReadOnly) && file.readAll().contains("NamingPolicy=1");
    }
    previousHandler(type, context, text);
}

} // namespace

void tst_ManagerRelease::releaseSavesBeforeItAsks()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    run.Manager()->SetNamingPolicy(ZTBatchManager::NamingOverwrite);
    policyFile = run.SettingsDir() + QStringLiteral("/BatchExceptionPolicy.ini");
    isSavedBeforeTheRequest = false;
    previousHandler = qInstallMessageHandler(CheckPolicyFile);
    ZTBatchManager::ReleaseInstance();
    qInstallMessageHandler(previousHandler);
    QVERIFY(isSavedBeforeTheRequest);
}

void tst_ManagerRelease::releaseSendsWhatWasSentBefore()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.OpenSession());
    run.session->Process(QString(3000000, QLatin1Char('x')));
    run.session->Cancel();
    ZTBatchManager::ReleaseInstance();
    QCOMPARE(run.stage.Events().filter(QStringLiteral("message ")),
             (QStringList{QStringLiteral("message 0"), QStringLiteral("message 5"), QStringLiteral("message 4"),
                          QStringLiteral("message 21")}));
    QVERIFY(run.stage.Received().endsWith(CloseServerFrame()));
}

void tst_ManagerRelease::releaseInTheMiddleOfAFlood()
{
    ManagerRun run({opensAtOnce, QStringLiteral("5: flood 100000")});
    QVERIFY(run.OpenSession());
    int progress = 0;
    connect(run.session, &Session::Progress, this, [&] {
        if (++progress == 1000) {
            ZTBatchManager::ReleaseInstance();
        }
    });
    run.session->Process(QString());
    QVERIFY(Eventually([&] { return !run.Manager(); }));
    QCoreApplication::processEvents();
    QCOMPARE(progress, 1000);
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

void tst_ManagerRelease::releaseWithAHungServer()
{
    HungServerRun run;
    QVERIFY(run.Hang());
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

void tst_ManagerRelease::releaseWithAServerThatIgnoresTheMessage()
{
    ManagerRun run({opensAtOnce, QStringLiteral("21: note ignored")});
    QVERIFY(run.Connect());
    run.timings.serverEndTimeout = 300;
    ZTBatchManager::ReleaseInstance();
    QCOMPARE(run.stage.Count(QStringLiteral("note ignored")), 1);
    QVERIFY(run.DebugTexts().contains(QStringLiteral("Finish server process error.")));
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

void tst_ManagerRelease::releaseWithAServerThatNeverOpened()
{
    ManagerRun run({});
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("arguments ") + ServerStage::PipeName()) == 1; }));
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

void tst_ManagerRelease::releaseWithAServerThatHasJustOpened()
{
    // A server listens at the time of the release, but the host's event loop has not run since. A pipe that connects
    // only now gets no message, so the server does not end by itself.
    ManagerRun run({opensAtOnce, QStringLiteral("21: note asked; exit 0")});
    const OrphanServer listener(run.stage);
    QVERIFY(listener.isOpen);
    run.stage.SetRules({});
    run.timings.serverEndTimeout = 300;
    run.Manager()->Start();
    ZTBatchManager::ReleaseInstance();
    QCOMPARE(run.DebugTexts(), (QStringList{QStringLiteral("Destroy"), QStringLiteral("Finish server process error."),
                                            QStringLiteral("Destroyed")}));
    QCOMPARE(run.stage.Count(QStringLiteral("note asked")), 0);
    QCOMPARE(run.stage.LivingServers(), QList<qint64>{listener.process.processId()});
}

void tst_ManagerRelease::releaseRightAfterStart()
{
    ManagerRun run({opensAtOnce});
    run.Manager()->Start();
    ZTBatchManager::ReleaseInstance();
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
    QCOMPARE(run.log.lines, QStringList());
}

void tst_ManagerRelease::releaseTellsTheHostNothing()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    QVERIFY(run.CreateSession());
    run.log.lines.clear();
    ZTBatchManager::ReleaseInstance();
    QCoreApplication::processEvents();
    QCOMPARE(run.log.lines, QStringList());
}

void tst_ManagerRelease::releaseDeletesSessions()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.OpenSession());
    ZTBatchManager::ReleaseInstance();
    QVERIFY(!run.session);
    QCOMPARE(run.stage.Count(QStringLiteral("message 1")), 0);
}

void tst_ManagerRelease::releaseAfterTheEnd()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    run.Manager()->Stop();
    ZTBatchManager::ReleaseInstance();
    QCOMPARE(run.DebugTexts(), (QStringList{QStringLiteral("Destroy"), QStringLiteral("Destroyed")}));
}

void tst_ManagerRelease::commandAfterRelease_data()
{
    QTest::addColumn<QString>("command");

    for (const char* command :
         {"process", "pause", "resume", "cancel", "input", "output", "processing", "naming", "write"}) {
        QTest::newRow(command) << QString::fromLatin1(command);
    }
}

void tst_ManagerRelease::commandAfterRelease()
{
    QFETCH(QString, command);

    ManagerRun run({opensAtOnce});
    const DeathReport report = RunDeathCase(QStringLiteral("session-after-release-") + command);
    QVERIFY2(report.EndedByAssertOf(QStringLiteral("src\\ZTBatchSession")), qPrintable(report.output));
    QCOMPARE(run.stage.LivingServers(), QList<qint64>());
}

OWN_FOLDER_TEST_MAIN(tst_ManagerRelease)
#include "tst_managerrelease.moc"
