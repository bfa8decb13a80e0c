// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliStage.h"
#include "ProcessEnd.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

/// Whole runs of the command with the real server, whose workers copy files instead of making pictures.
class tst_CliStandIn : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void filesAreWritten();
    void savedJobsAreRun();
    void brokenWorkersCostOneFile();
    void noWorker();
    void namesThatAreTaken_data();
    void namesThatAreTaken();
    void notesNameWholeFiles();
    void planTellsWhatRunDoes_data();
    void planTellsWhatRunDoes();
    void planMarksTrouble();
    void planReportsFilesThatWorkersEndOver_data();
    void planReportsFilesThatWorkersEndOver();
    void planFailsWithoutWorkers();
    void killedRunsGoOn();
    void killedServersAreReplaced();
#ifdef Q_OS_UNIX
    void workersGiveWay_data();
    void workersGiveWay();
    void terminatedServersAreReplaced();
#endif
    void filesThatServersDieOverAreLeftOut();

private:
    void Start(QProcess& process, const QString& arguments) const;
    bool WaitForOutput(QProcess& process, const QByteArray& text, int count = 1);
    void StartHeld(QProcess& process, qint64& server, const QString& options = QString());

    const QString gate = QStringLiteral("gate");
    std::unique_ptr<CliStage> stage;
    QByteArray output;
};

void tst_CliStandIn::init()
{
    stage = std::make_unique<CliStage>(CliStage::Server::StandIn);
    output.clear();
    for (const char* name : {"1", "2", "3"}) {
        stage->Write(QStringLiteral("photos/%1.jpg").arg(QLatin1String(name)), name);
    }
}

void tst_CliStandIn::Start(QProcess& process, const QString& arguments) const
{
    process.setProcessEnvironment(stage->Environment());
    process.setWorkingDirectory(stage->Folder());
    process.start(stage->Program(), stage->Arguments(arguments));
}

bool tst_CliStandIn::WaitForOutput(QProcess& process, const QByteArray& text, int count)
{
    constexpr int patience = 60'000;
    while (output.count(text) < count) {
        if (!process.waitForReadyRead(patience)) {
            return false;
        }
        output += process.readAllStandardOutput();
    }
    return true;
}

/// Starts a run that waits over its second file until `gate` exists. `server` stays 0 when that fails.
void tst_CliStandIn::StartHeld(QProcess& process, qint64& server, const QString& options)
{
    stage->Write(QStringLiteral("photos/2.jpg"), "wait " + stage->Path(gate).toUtf8());
    Start(process, QStringLiteral("run photos -o out --format png --workers 1 --json") + options);
    if (WaitForOutput(process, "\"begin\"", 2)) {
        const QList<qint64> servers = ChildrenOf(process.processId());
        server = servers.size() == 1 ? servers.first() : 0;
    }
}

void tst_CliStandIn::filesAreWritten()
{
    const CliRun run = stage->Run(QStringLiteral("run photos -o out --suffix number --format png"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(stage->Names(QStringLiteral("out")),
             QStringList({QStringLiteral("1001.png"), QStringLiteral("2002.png"), QStringLiteral("3003.png")}));
    QCOMPARE(stage->Content(QStringLiteral("out/2002.png")), QByteArray("2"));
    QVERIFY2(run.err.contains("[3/3] ") && run.err.contains("Written             3"), run.err.constData());
}

void tst_CliStandIn::savedJobsAreRun()
{
    QCOMPARE(stage->Run(QStringLiteral("create job.xml photos -o other --format png")).exitCode, 0);
    const CliRun run = stage->Run(QStringLiteral("run job.xml -o out"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(stage->Names(QStringLiteral("out")).size(), 3);
    QVERIFY(!QFileInfo::exists(stage->Path(QStringLiteral("other"))));
}

void tst_CliStandIn::brokenWorkersCostOneFile()
{
    const QString bad = stage->Write(QStringLiteral("photos/2.jpg"), "crash");
    const CliRun run = stage->Run(QStringLiteral("run photos -o out --format png"));
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.err.contains("failed " + bad.toUtf8() + ": "), run.err.constData());
    QCOMPARE(stage->Names(QStringLiteral("out")), QStringList({QStringLiteral("1.png"), QStringLiteral("3.png")}));
}

// The run can be resumed as soon as there is a worker.
void tst_CliStandIn::noWorker()
{
    stage = std::make_unique<CliStage>(CliStage::Server::WithoutWorker);
    stage->Write(QStringLiteral("photos/1.jpg"), "1");
    const CliRun run = stage->Run(QStringLiteral("run photos -o out --format png --suffix text:x"));
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.err.contains("velkora-batch: no worker can be started; VelkoraBatchWorker belongs beside "),
             run.err.constData());
    QVERIFY2(run.err.contains("run --resume -o"), run.err.constData());
    stage->PlaceWorker();
    const CliRun rest = stage->Run(QStringLiteral("run --resume -o out"));
    QVERIFY2(rest.exitCode == 0, rest.err.constData());
    QCOMPARE(stage->Names(QStringLiteral("out")), QStringList({QStringLiteral("1x.png")}));
}

void tst_CliStandIn::namesThatAreTaken_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QStringList>("results");
    QTest::addColumn<QByteArray>("content");
    const QStringList same{QStringLiteral("1.jpg"), QStringLiteral("2.jpg"), QStringLiteral("3.jpg")};
    const QStringList renamed{QStringLiteral("1 (2).jpg"), QStringLiteral("1.jpg"), QStringLiteral("2.jpg"),
                              QStringLiteral("3.jpg")};
    QTest::newRow("skip") << QStringLiteral("skip") << 0 << same << QByteArray("old");
    QTest::newRow("overwrite") << QStringLiteral("overwrite") << 0 << same << QByteArray("1");
    QTest::newRow("rename") << QStringLiteral("rename") << 0 << renamed << QByteArray("old");
}

void tst_CliStandIn::namesThatAreTaken()
{
    QFETCH(QString, word);
    QFETCH(int, exitCode);
    QFETCH(QStringList, results);
    QFETCH(QByteArray, content);
    stage->Write(QStringLiteral("out/1.jpg"), "old");
    const CliRun run = stage->Run(QStringLiteral("run photos -o out --format jpeg --on-name-exists ") + word);
    QVERIFY2(run.exitCode == exitCode, run.err.constData());
    QCOMPARE(stage->Names(QStringLiteral("out")), results);
    QCOMPARE(stage->Content(QStringLiteral("out/1.jpg")), content);
}

/// A note about a result quotes the log of the server, whatever the names look like.
void tst_CliStandIn::notesNameWholeFiles()
{
    const QString name = QStringLiteral("a; b (naming policy).jpg");
    stage->Write(QStringLiteral("odd/") + name, "1");
    stage->Write(QStringLiteral("out/") + name, "old");
    const QString renamed = stage->Path(QStringLiteral("out/a; b (naming policy) (2).jpg"));
    const CliRun run = stage->Run(QStringLiteral("run odd -o out --format jpeg --on-name-exists rename --json"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QStringList texts;
    for (const QByteArray& line : run.out.trimmed().split('\n')) {
        const QJsonObject event = QJsonDocument::fromJson(line).object();
        if (event.value(QStringLiteral("event")) == QLatin1String("note")) {
            texts.append(event.value(QStringLiteral("text")).toString());
        }
    }
    QCOMPARE(texts, QStringList{QStringLiteral("written as \"%1\" (naming policy)").arg(renamed)});
}

void tst_CliStandIn::planTellsWhatRunDoes_data()
{
    QTest::addColumn<QString>("options");
    for (const char* options : {"--structure input", "--name text:x --suffix number:9:2",
                                "--structure date --name date --on-name-exists rename"}) {
        QTest::newRow(options) << QString::fromLatin1(options);
    }
}

void tst_CliStandIn::planTellsWhatRunDoes()
{
    QFETCH(QString, options);
    const QString arguments = QStringLiteral(" photos -o out --format png --json -q ") + options;
    const CliRun plan = stage->Run(QStringLiteral("plan") + arguments);
    QVERIFY(!QFileInfo::exists(stage->Path(QStringLiteral("out"))));
    QMap<QString, QString> planned;
    for (const QByteArray& line : plan.out.trimmed().split('\n')) {
        const QJsonObject pair = QJsonDocument::fromJson(line).object();
        planned.insert(pair.value(QStringLiteral("input")).toString(), pair.value(QStringLiteral("output")).toString());
    }
    QVERIFY2(planned.size() == 3, plan.err.constData());
    const CliRun run = stage->Run(QStringLiteral("run") + arguments);
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QMap<QString, QString> written;
    for (const QByteArray& line : run.out.trimmed().split('\n')) {
        const QJsonObject event = QJsonDocument::fromJson(line).object();
        if (event.value(QStringLiteral("event")) == QLatin1String("written")) {
            const QString result = event.value(QStringLiteral("output")).toString();
            QVERIFY2(QFileInfo::exists(result), qPrintable(result));
            written.insert(event.value(QStringLiteral("input")).toString(), result);
        }
    }
    QCOMPARE(written, planned);
}

void tst_CliStandIn::planMarksTrouble()
{
    stage->Write(QStringLiteral("more/1.jpg"), "1");
    stage->Write(QStringLiteral("out/3.jpg"), "3");
    const CliRun plan = stage->Run(QStringLiteral("plan photos more -o out --format jpeg --on-name-exists skip"));
    QCOMPARE(plan.exitCode, 1);
    QVERIFY2(
        plan.out.contains("[skip: \"" + stage->Path(QStringLiteral("out/1.jpg")).toUtf8() + "\" is the result of \""),
        plan.out.constData());
    QVERIFY2(plan.out.contains("[skip: \"" + stage->Path(QStringLiteral("out/3.jpg")).toUtf8() + "\" exists already]"),
             plan.out.constData());
    QCOMPARE(plan.out.count('['), 2);
    const CliRun source = stage->Run(QStringLiteral("plan photos -o photos --format jpeg"));
    QVERIFY2(source.out.count("is a source of this job]") == 3, source.out.constData());
}

void tst_CliStandIn::planReportsFilesThatWorkersEndOver_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("crash") << QByteArray("crashprobe") << QByteArray("the worker ended by ");
    QTest::newRow("hang") << QByteArray("hangprobe") << QByteArray("it takes longer than the limit of 1 seconds");
    QTest::newRow("memory") << QByteArray("eatprobe") << QByteArray("it takes more memory than the limit of 128 MiB");
}

void tst_CliStandIn::planReportsFilesThatWorkersEndOver()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, reason);
    const QString bad = stage->Write(QStringLiteral("photos/2.jpg"), content);
    QProcessEnvironment environment = stage->Environment();
    environment.insert(QStringLiteral("VELKORA_BATCH_WORKER_MIB"), QStringLiteral("128"));
    // The memory must run out before the time, even on a busy machine.
    const bool isHang = content == "hangprobe";
    environment.insert(QStringLiteral("VELKORA_BATCH_PICTURE_SECONDS"),
                       isHang ? QStringLiteral("1") : QStringLiteral("60"));
    const CliRun plan = CliRun::OfProgram(
        stage->Program(), stage->Arguments(QStringLiteral("plan photos -o out --format png --name date")),
        stage->Folder(), environment);
    QVERIFY2(plan.exitCode == 1, plan.err.constData());
    const QList<QByteArray> lines = plan.out.trimmed().split('\n');
    QCOMPARE(lines.size(), 3);
    QVERIFY2(lines.at(1).startsWith(bad.toUtf8()) && lines.at(1).contains("[ask: " + reason), plan.out.constData());
    QVERIFY2(lines.at(0).endsWith("20240501.png  64 x 48 px"), plan.out.constData());
    QVERIFY2(lines.at(2).contains("20240501.png"), plan.out.constData());
}

void tst_CliStandIn::planFailsWithoutWorkers()
{
    stage = std::make_unique<CliStage>(CliStage::Server::WithoutWorker);
    stage->Write(QStringLiteral("photos/1.jpg"), "1");
    const CliRun plan = stage->Run(QStringLiteral("plan photos -o out --format png --name date"));
    QCOMPARE(plan.exitCode, 2);
    QVERIFY2(plan.err.contains("no worker can be started"), plan.err.constData());
    QVERIFY2(plan.out.isEmpty(), plan.out.constData());
}

void tst_CliStandIn::killedRunsGoOn()
{
    const QString gate = stage->Path(QStringLiteral("gate"));
    stage->Write(QStringLiteral("photos/2.jpg"), "wait " + gate.toUtf8());
    stage->Write(QStringLiteral("out/3.png"), "old");
    QProcess process;
    Start(process, QStringLiteral("run photos -o out --format png --on-name-exists rename --workers 1 --json"));
    QVERIFY2(WaitForOutput(process, "\"written\""), output.constData());
    QVERIFY2(WaitForOutput(process, "\"begin\"", 2), output.constData());
    const QList<qint64> servers = ChildrenOf(process.processId());
    process.kill();
    QVERIFY(process.waitForFinished());
    stage->Write(QStringLiteral("gate"), {});
    // The server ends when its host has gone.
    QCOMPARE(servers.size(), 1);
    QTRY_VERIFY_WITH_TIMEOUT(!IsProcessAlive(servers.first()), 60'000);
    const CliRun rest = stage->Run(QStringLiteral("run --resume -o out"));
    QVERIFY2(rest.exitCode == 0, rest.err.constData());
    QVERIFY2(rest.err.contains("[3/3] ") && !rest.err.contains("[1/3] "), rest.err.constData());
    QCOMPARE(stage->Names(QStringLiteral("out")), QStringList({QStringLiteral("1.png"), QStringLiteral("2.png"),
                                                               QStringLiteral("3 (2).png"), QStringLiteral("3.png")}));
    QCOMPARE(stage->Content(QStringLiteral("out/3.png")), QByteArray("old"));
}

void tst_CliStandIn::killedServersAreReplaced()
{
    QProcess process;
    qint64 server = 0;
    StartHeld(process, server);
    QVERIFY2(server != 0, output.constData());
    const QList<qint64> workers = ChildrenOf(server);
    QCOMPARE(workers.size(), 1);
    KillProcess(server);
    // A worker does not outlive its server.
    QTRY_VERIFY_WITH_TIMEOUT(!IsProcessAlive(workers.first()), 60'000);
    stage->Write(gate, {});
    QVERIFY(process.waitForFinished(120'000));
    output += process.readAllStandardOutput();
    const QByteArray errors = process.readAllStandardError();
    QVERIFY2(process.exitCode() == 0, errors.constData());
    QVERIFY2(errors.contains("the server ended unexpectedly while it worked on ") &&
                 errors.contains("2.jpg; a new one continues.\n"),
             errors.constData());
    QCOMPARE(output.count("\"written\""), 3 + 1); // The last event has a field of that name.
    QCOMPARE(stage->Names(QStringLiteral("out")),
             QStringList({QStringLiteral("1.png"), QStringLiteral("2.png"), QStringLiteral("3.png")}));
}

#ifdef Q_OS_UNIX
void tst_CliStandIn::workersGiveWay_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<bool>("givesWay");
    QTest::newRow("by default") << QString() << true;
    QTest::newRow("normal priority") << QStringLiteral(" --normal-priority") << false;
}

void tst_CliStandIn::workersGiveWay()
{
    QFETCH(QString, option);
    QFETCH(bool, givesWay);
    QProcess process;
    qint64 server = 0;
    StartHeld(process, server, option);
    QVERIFY2(server != 0, output.constData());
    const QList<qint64> workers = ChildrenOf(server);
    QCOMPARE(workers.size(), 1);
    QCOMPARE(getpriority(PRIO_PROCESS, id_t(workers.first())) > getpriority(PRIO_PROCESS, 0), givesWay);
    stage->Write(gate, {});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
}

void tst_CliStandIn::terminatedServersAreReplaced()
{
    QProcess process;
    qint64 server = 0;
    StartHeld(process, server);
    QVERIFY2(server != 0, output.constData());
    QCOMPARE(::kill(pid_t(server), SIGTERM), 0);
    QVERIFY2(WaitForOutput(process, "\"server-lost\""), output.constData());
    stage->Write(gate, {});
    QVERIFY(process.waitForFinished(120'000));
    const QByteArray errors = process.readAllStandardError();
    QVERIFY2(process.exitCode() == 0, errors.constData());
    // On a busy machine the server's last message, that nothing is in work any more, may come too late.
    const QRegularExpression loss(
        QStringLiteral("the server ended unexpectedly( while it worked on .*/2\\.jpg)?; a new one continues\\.\n"));
    QVERIFY2(QString::fromUtf8(errors).contains(loss), errors.constData());
    QCOMPARE(stage->Names(QStringLiteral("out")),
             QStringList({QStringLiteral("1.png"), QStringLiteral("2.png"), QStringLiteral("3.png")}));
}
#endif

void tst_CliStandIn::filesThatServersDieOverAreLeftOut()
{
    stage->Write(QStringLiteral("photos/2.jpg"), "hang");
    QProcess process;
    Start(process, QStringLiteral("run photos -o out --format png --workers 1 --json"));
    constexpr int beforeIt = 1;
    for (int deaths = 1; deaths <= 2; ++deaths) {
        QVERIFY2(WaitForOutput(process, "\"begin\"", beforeIt + deaths), output.constData());
        const QList<qint64> servers = ChildrenOf(process.processId());
        QCOMPARE(servers.size(), 1);
        KillProcess(servers.first());
    }
    QVERIFY(process.waitForFinished(120'000));
    output += process.readAllStandardOutput();
    QVERIFY2(process.exitCode() == 1, process.readAllStandardError().constData());
    QCOMPARE(output.count("\"server-lost\""), 2);
    QVERIFY2(output.contains("the server crashed 2 times while it worked on the file"), output.constData());
    QCOMPARE(stage->Names(QStringLiteral("out")), QStringList({QStringLiteral("1.png"), QStringLiteral("3.png")}));
}

QTEST_GUILESS_MAIN(tst_CliStandIn)
#include "tst_clistandin.moc"
