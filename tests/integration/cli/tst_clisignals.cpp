// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliStage.h"

#include <QDir>
#include <QProcess>
#include <QtTest>

#include <csignal>
#include <sys/types.h>

/// Requests to end at any moment of a run: the command ends with an exit code of its own, and leaves nothing behind.
class tst_CliSignals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void requestsWhileTheServerEnds_data();
    void requestsWhileTheServerEnds();
    void requestsAtAnyMoment();
    void requestsThatAreIgnored();
    void serversThatDoNotCancel();
    void filesThatExceedTheLimit();

private:
    static void Start(QProcess& process, const CliStage& stage, const QString& arguments);
    static bool WaitForServer(const CliStage& stage, const QByteArray& event);
    static QStringList FoldersOfRuns(const CliStage& stage);
};

void tst_CliSignals::Start(QProcess& process, const CliStage& stage, const QString& arguments)
{
    process.setProcessEnvironment(stage.Environment());
    process.setWorkingDirectory(stage.Folder());
    process.start(stage.Program(), stage.Arguments(arguments));
    QVERIFY(process.waitForStarted());
}

/// Waits until the scripted server has written down `event`.
bool tst_CliSignals::WaitForServer(const CliStage& stage, const QByteArray& event)
{
    const QDir programs = QFileInfo(stage.Program()).dir();
    constexpr int patience = 60'000;
    return QTest::qWaitFor(
        [&] {
            QFile events(programs.filePath(QStringLiteral("VelkoraBatchProcessing.events")));
            return events.open(QIODevice::ReadOnly) && events.readAll().contains(event + '\n');
        },
        patience);
}

/// The temporary folders that are left.
QStringList tst_CliSignals::FoldersOfRuns(const CliStage& stage)
{
    return QDir(stage.Environment().value(QStringLiteral("TMPDIR")))
        .entryList({QStringLiteral("velkora-batch-*")}, QDir::Dirs);
}

void tst_CliSignals::requestsWhileTheServerEnds_data()
{
    QTest::addColumn<bool>("isCancelled");
    QTest::addColumn<int>("number");
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        QTest::addRow("second signal %d", number) << true << number;
        QTest::addRow("signal %d after the run", number) << false << number;
    }
}

void tst_CliSignals::requestsWhileTheServerEnds()
{
    QFETCH(bool, isCancelled);
    QFETCH(int, number);
    const CliStage stage(CliStage::Server::Scripted);
    stage.Write(QStringLiteral("photos/1.jpg"), "a picture");
    // The server takes its time to end.
    stage.Play({QStringLiteral("start: open"), isCancelled ? QString() : QStringLiteral("5: send 6 id"),
                QStringLiteral("4: send 14 id"), QStringLiteral("21: wait 1000; exit 0")});
    QProcess process;
    Start(process, stage, QStringLiteral("run photos -o out"));
    if (isCancelled) {
        QVERIFY(WaitForServer(stage, "message 5"));
        QCOMPARE(::kill(pid_t(process.processId()), number), 0);
    }
    QVERIFY(WaitForServer(stage, "message 21"));
    QCOMPARE(::kill(pid_t(process.processId()), number), 0);
    QVERIFY(process.waitForFinished(60'000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), isCancelled ? 4 : 1);
    QCOMPARE(FoldersOfRuns(stage), QStringList());
}

// From the first lock of the run to the end of the process.
void tst_CliSignals::requestsAtAnyMoment()
{
    const CliStage stage(CliStage::Server::StandIn);
    for (int i = 0; i < 20; ++i) {
        stage.Write(QStringLiteral("photos/%1.jpg").arg(i), "a picture");
    }
    constexpr int rounds = 20;
    for (int round = 0; round < rounds; ++round) {
        QProcess process;
        Start(process, stage, QStringLiteral("run photos -o out%1 --format png --json").arg(round));
        QVERIFY(process.waitForReadyRead(60'000)); // The first event.
        constexpr int wholeRun = 1'300;            // ms
        QThread::msleep(ulong(round * wholeRun / rounds));
        ::kill(pid_t(process.processId()), SIGTERM);
        ::kill(pid_t(process.processId()), SIGINT);
        QVERIFY(process.waitForFinished(90'000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QVERIFY2(process.exitCode() == 4 || process.exitCode() == 0, QByteArray::number(process.exitCode()));
        QCOMPARE(FoldersOfRuns(stage), QStringList());
    }
}

// What nohup ignores stays ignored, also when the run is over.
void tst_CliSignals::requestsThatAreIgnored()
{
    const CliStage stage(CliStage::Server::Scripted);
    stage.Write(QStringLiteral("photos/1.jpg"), "a picture");
    stage.Play({QStringLiteral("start: open"), QStringLiteral("5: wait 500; send 6 id"),
                QStringLiteral("21: wait 1000; exit 0")});
    QProcess process;
    process.setProcessEnvironment(stage.Environment());
    process.setWorkingDirectory(stage.Folder());
    process.start(
        QStringLiteral("/bin/sh"),
        QStringList{QStringLiteral("-c"), QStringLiteral("trap '' HUP; exec \"$0\" \"$@\""), stage.Program()} +
            stage.Arguments(QStringLiteral("run photos -o out")));
    QVERIFY(WaitForServer(stage, "message 5"));
    ::kill(pid_t(process.processId()), SIGHUP);
    QVERIFY(WaitForServer(stage, "message 21"));
    ::kill(pid_t(process.processId()), SIGHUP);
    QVERIFY(process.waitForFinished(60'000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);
    const QByteArray errors = process.readAllStandardError();
    QVERIFY2(!errors.contains("Cancelled"), errors.constData());
}

// The server is killed in the end. The user need not ask twice.
void tst_CliSignals::serversThatDoNotCancel()
{
    const CliStage stage(CliStage::Server::Scripted);
    stage.Write(QStringLiteral("photos/1.jpg"), "a picture");
    stage.Play({QStringLiteral("start: open"), QStringLiteral("4: hang")});
    QProcess process;
    Start(process, stage, QStringLiteral("run photos -o out"));
    QVERIFY(WaitForServer(stage, "message 5"));
    ::kill(pid_t(process.processId()), SIGTERM);
    QVERIFY(process.waitForFinished(60'000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 4);
    QCOMPARE(FoldersOfRuns(stage), QStringList());
}

// A report that cannot be written is said; the system's signal about it does not end the run.
void tst_CliSignals::filesThatExceedTheLimit()
{
    const CliStage stage(CliStage::Server::StandIn);
    for (int i = 0; i < 50; ++i) {
        stage.Write(QStringLiteral("photos/%1%2.jpg").arg(QString(150, QLatin1Char('x'))).arg(i), "a picture");
    }
    const CliRun run = CliRun::OfProgram(
        QStringLiteral("/bin/sh"),
        QStringList{QStringLiteral("-c"), QStringLiteral("ulimit -c 0; ulimit -f 16; exec \"$0\" \"$@\""),
                    stage.Program()} +
            stage.Arguments(QStringLiteral("run photos -o out --format png --report r.csv")),
        stage.Folder(), stage.Environment());
    QVERIFY2(run.exitCode == 1, run.err.constData());
    QVERIFY2(run.err.contains("velkora-batch: the report r.csv cannot be written"), run.err.constData());
    QCOMPARE(stage.Names(QStringLiteral("out")).filter(QStringLiteral(".png")).size(), 50);
}

QTEST_GUILESS_MAIN(tst_CliSignals)
#include "tst_clisignals.moc"
