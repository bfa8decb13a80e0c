// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliStage.h"
#include "Events.h"
#include "HeldRun.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

#include <csignal>
#ifdef Q_OS_LINUX
#include <sys/resource.h>
#endif

/// A folder that is watched over ends and restarts: nothing twice, nothing lost, numbers that go on.
class tst_CliWatchRestart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void numbersGoOn();
    void numbersGoOnWithOtherOptions();
    void killedRunsGoOn();
    void endedRunsGoOn_data();
    void endedRunsGoOn();
    void killsAtAnyMoment();
    void fullOutputsEndWatching();
    void recordsThatCannotBeWrittenEndWatching();
    void batchesWithoutJournal_data();
    void batchesWithoutJournal();
    void truncatedRecordsAreRead();
    void otherRecordsAreRefused_data();
    void otherRecordsAreRefused();
    void lostServersAreTold();
#ifdef Q_OS_UNIX
    void exampleOfServiceWorks();
#endif

private:
    static QString Watch(const QString& more = QString())
    {
        return QStringLiteral("watch in -o out --format png --name number:1:3 --settle 0 ") + more;
    }
    void Put(const QString& name, const QByteArray& content = "picture") const
    {
        stage->Write(QStringLiteral("in/") + name, content);
    }
    /// Runs the command until `count` pictures have been written, those before a restart included, and ends it.
    QByteArray RunUntil(const QString& arguments, int count) const;
    static bool AskToEnd(const HeldRun& run, int number);
    QMap<QString, QByteArray> Results() const;
    QString Record() const
    {
        return stage->Path(QStringLiteral("out/.velkora-batch-watch"));
    }

    std::unique_ptr<CliStage> stage;
};

void tst_CliWatchRestart::init()
{
    stage = std::make_unique<CliStage>(CliStage::Server::StandIn);
    QVERIFY(QDir().mkpath(stage->Path(QStringLiteral("in"))));
}

QByteArray tst_CliWatchRestart::RunUntil(const QString& arguments, int count) const
{
    HeldRun run(*stage, arguments);
    const bool isThere = run.WaitFor("\"event\":\"written\"", count) && run.RequestEnd();
    const int code = run.End();
    return isThere && (code == 0 || code == 4) ? run.Out() : "failed: " + run.Err();
}

/// The results with their contents, which are those of their inputs.
QMap<QString, QByteArray> tst_CliWatchRestart::Results() const
{
    QMap<QString, QByteArray> results;
    for (const QString& name : stage->Names(QStringLiteral("out")).filter(QStringLiteral(".png"))) {
        results.insert(name, stage->Content(QStringLiteral("out/") + name));
    }
    return results;
}

void tst_CliWatchRestart::numbersGoOn()
{
    Put(QStringLiteral("a.jpg"), "a");
    Put(QStringLiteral("b.jpg"), "input 2");
    Put(QStringLiteral("c.jpg"), "c");
    RunUntil(Watch(), 2);
    // A result that was taken away leaves its number used.
    QVERIFY(QFile::remove(stage->Path(QStringLiteral("out/003.png"))));
    Put(QStringLiteral("0.jpg"), "0");
    const QByteArray out = RunUntil(Watch(), 1);
    QCOMPARE(EventsOf(out, QStringLiteral("start")).size(), 1);
    const QMap<QString, QByteArray> wanted{{QStringLiteral("001.png"), "a"}, {QStringLiteral("004.png"), "0"}};
    QCOMPARE(Results(), wanted);
}

void tst_CliWatchRestart::numbersGoOnWithOtherOptions()
{
    Put(QStringLiteral("a.jpg"), "a");
    RunUntil(QStringLiteral("watch in -o out --format png --name number:50:3 --settle 0"), 1);
    Put(QStringLiteral("b.jpg"), "b");
    RunUntil(Watch(), 1);
    Put(QStringLiteral("c.jpg"), "c");
    RunUntil(QStringLiteral("watch in -o out --format png --name number:700:3 --settle 0"), 1);
    QCOMPARE(Results().keys(),
             QStringList({QStringLiteral("050.png"), QStringLiteral("051.png"), QStringLiteral("700.png")}));
}

void tst_CliWatchRestart::killedRunsGoOn()
{
    const QString gate = stage->Path(QStringLiteral("gate"));
    Put(QStringLiteral("a.jpg"), "a");
    Put(QStringLiteral("b.jpg"), "wait " + gate.toUtf8());
    Put(QStringLiteral("c.jpg"), "c");
    {
        HeldRun run(*stage, Watch());
        QVERIFY(run.WaitFor("\"event\":\"written\"") && run.WaitFor("\"event\":\"begin\"", 2));
        QVERIFY(run.Kill());
    }
    stage->Write(QStringLiteral("gate"), {});
    Put(QStringLiteral("0.jpg"), "0");
    const QByteArray out = RunUntil(Watch(), 4);
    QCOMPARE(EventsOf(out, QStringLiteral("begin")).size(), 3);
    const QMap<QString, QByteArray> wanted{{QStringLiteral("001.png"), "a"},
                                           {QStringLiteral("002.png"), "wait " + gate.toUtf8()},
                                           {QStringLiteral("003.png"), "c"},
                                           {QStringLiteral("004.png"), "0"}};
    QCOMPARE(Results(), wanted);
    QCOMPARE(stage->Names(QStringLiteral("out")).filter(QStringLiteral("journal")), QStringList());
}

/// By the signal `number`, or in the way of the system if that is 0.
bool tst_CliWatchRestart::AskToEnd(const HeldRun& run, [[maybe_unused]] int number)
{
#ifdef Q_OS_UNIX
    if (number != 0) {
        return run.Signal(number);
    }
#endif
    return run.RequestEnd();
}

void tst_CliWatchRestart::endedRunsGoOn_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("request to end") << 0;
#ifdef Q_OS_UNIX
    QTest::newRow("Ctrl-C") << SIGINT;
    QTest::newRow("end of the terminal") << SIGHUP;
#endif
}

void tst_CliWatchRestart::endedRunsGoOn()
{
    QFETCH(int, number);
    const QString gate = stage->Path(QStringLiteral("gate"));
    Put(QStringLiteral("a.jpg"), "wait " + gate.toUtf8());
    Put(QStringLiteral("b.jpg"), "b");
    {
        HeldRun run(*stage, Watch());
        QVERIFY(run.WaitFor("\"event\":\"begin\""));
        QVERIFY(AskToEnd(run, number));
        QCOMPARE(run.End(), 4);
    }
    QCOMPARE(Results().size(), 0);
    stage->Write(QStringLiteral("gate"), {});
    // Its pictures are made as they were begun, whatever the options are now.
    RunUntil(QStringLiteral("watch in -o out --format jpeg --settle 0"), 2);
    const QMap<QString, QByteArray> wanted{{QStringLiteral("001.png"), "wait " + gate.toUtf8()},
                                           {QStringLiteral("002.png"), "b"}};
    QCOMPARE(Results(), wanted);
}

void tst_CliWatchRestart::killsAtAnyMoment()
{
    constexpr int pictures = 24;
#ifdef Q_OS_WIN
    // A run begins a second after its command, and processes start slowly under Wine.
    constexpr int rounds = 6;
    constexpr int step = 500; // ms
#else
    constexpr int rounds = 12;
    constexpr int step = 60; // ms
#endif
    for (int i = 0; i < pictures; ++i) {
        Put(QStringLiteral("%1.jpg").arg(i), "picture " + QByteArray::number(i));
    }
    for (int round = 0; round < rounds; ++round) {
        HeldRun run(*stage, Watch());
        QVERIFY(run.WaitFor("\"event\":\"watching\""));
        QThread::msleep(ulong(round * step));
        run.Kill();
        Put(QStringLiteral("later%1.jpg").arg(round), "later " + QByteArray::number(round));
    }
    HeldRun run(*stage, Watch());
    QTRY_COMPARE_WITH_TIMEOUT(Results().size(), pictures + rounds, 60'000);
    QVERIFY(run.RequestEnd());
    const int code = run.End();
    QVERIFY(code == 0 || code == 4);
    QSet<QByteArray> contents;
    for (const QByteArray& content : Results()) {
        contents.insert(content);
    }
    QCOMPARE(contents.size(), pictures + rounds);
    QCOMPARE(Results().lastKey(), QStringLiteral("%1.png").arg(pictures + rounds, 3, 10, QLatin1Char('0')));
}

void tst_CliWatchRestart::fullOutputsEndWatching()
{
    Put(QStringLiteral("a.jpg"), "output 4");
    {
        HeldRun run(*stage, Watch());
        QCOMPARE(run.End(), 1);
    }
    // The disk has room again.
    Put(QStringLiteral("a.jpg"), "a");
    RunUntil(Watch(), 1);
    QVERIFY(Results().contains(QStringLiteral("001.png")));
    QCOMPARE(Results().value(QStringLiteral("001.png")), QByteArray("a"));
}

void tst_CliWatchRestart::recordsThatCannotBeWrittenEndWatching()
{
#ifdef Q_OS_LINUX
    Put(QStringLiteral("a.jpg"), "a");
    {
        HeldRun run(*stage, Watch());
        QVERIFY(run.WaitFor("\"event\":\"end\""));
        QTRY_VERIFY(stage->Content(QStringLiteral("out/.velkora-batch-watch")).endsWith("\"done\"}\n"));
        const rlimit none{1, 1};
        QCOMPARE(::prlimit(pid_t(run.Id()), RLIMIT_FSIZE, &none, nullptr), 0);
        Put(QStringLiteral("b.jpg"), "b");
        QCOMPARE(run.End(), 1);
        QVERIFY2(run.Err().contains(Record().toUtf8()), run.Err().constData());
    }
    RunUntil(Watch(), 1);
    QCOMPARE(Results().keys(), QStringList({QStringLiteral("001.png"), QStringLiteral("002.png")}));
#else
    QSKIP("This system cannot limit another process.");
#endif
}

void tst_CliWatchRestart::batchesWithoutJournal_data()
{
    QTest::addColumn<bool>("hasBegun");
    QTest::addColumn<QStringList>("results");
    QTest::newRow("never begun") << false << QStringList({QStringLiteral("001.png"), QStringLiteral("002.png")});
    QTest::newRow("finished by another command") << true << QStringList({QStringLiteral("009.png")});
}

void tst_CliWatchRestart::batchesWithoutJournal()
{
    QFETCH(bool, hasBegun);
    QFETCH(QStringList, results);
    Put(QStringLiteral("a.jpg"), "a");
    const QFileInfo info(stage->Path(QStringLiteral("in/a.jpg")));
    const QByteArray modified = QByteArray::number(info.lastModified().toMSecsSinceEpoch());
    stage->Write(QStringLiteral("out/.velkora-batch-watch"),
                 "{\"watch\":1}\n{\"batch\":\".velkora-batch-0-1.journal\",\"files\":[[\"a.jpg\",\"1\",\"" + modified +
                     "\"]],\"next\":[9,9,9]}\n" + (hasBegun ? "{\"step\":\"begun\"}\n" : ""));
    QVERIFY(QFile::setPermissions(Record(), QFileDevice::ReadOwner | QFileDevice::WriteOwner));
    if (!hasBegun) {
        RunUntil(Watch(), 1);
    }
    Put(QStringLiteral("b.jpg"), "b");
    RunUntil(Watch(), 1);
    QCOMPARE(Results().keys(), results);
}

void tst_CliWatchRestart::truncatedRecordsAreRead()
{
    Put(QStringLiteral("a.jpg"), "a");
    RunUntil(Watch(), 1);
    QFile record(Record());
    QVERIFY(record.open(QIODevice::Append));
    record.write("{\"batch\":\".velkora-batch-0-1.journal\",\"fil");
    record.close();
    Put(QStringLiteral("b.jpg"), "b");
    RunUntil(Watch(), 1);
    Put(QStringLiteral("c.jpg"), "c");
    RunUntil(Watch(), 1);
    QCOMPARE(Results().keys(),
             QStringList({QStringLiteral("001.png"), QStringLiteral("002.png"), QStringLiteral("003.png")}));
}

void tst_CliWatchRestart::otherRecordsAreRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isForeign");
    QTest::newRow("no record") << QByteArray("a text\n") << false;
    QTest::newRow("a later version") << QByteArray("{\"watch\":2}\n") << false;
#ifdef Q_OS_UNIX
    QTest::newRow("of others") << QByteArray("{\"watch\":1}\n") << true;
#endif
}

void tst_CliWatchRestart::otherRecordsAreRefused()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, isForeign);
    Put(QStringLiteral("a.jpg"), "a");
    stage->Write(QStringLiteral("out/.velkora-batch-watch"), content);
    QFileDevice::Permissions permissions = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
    permissions |= isForeign ? QFileDevice::WriteOther : QFileDevice::Permissions();
    QVERIFY(QFile::setPermissions(Record(), permissions));
    const CliRun run = stage->Run(Watch());
    QVERIFY2(run.exitCode == 2, run.err.constData());
    QVERIFY2(run.err.contains(Record().toUtf8()), run.err.constData());
    QCOMPARE(stage->Content(QStringLiteral("out/.velkora-batch-watch")), content);
    QCOMPARE(Results().size(), 0);
}

void tst_CliWatchRestart::lostServersAreTold()
{
    stage = std::make_unique<CliStage>(CliStage::Server::WithoutWorker);
    Put(QStringLiteral("a.jpg"), "a");
    {
        HeldRun run(*stage, Watch());
        QCOMPARE(run.End(), 3);
    }
    stage->PlaceWorker();
    RunUntil(Watch(), 1);
    QCOMPARE(Results().keys(), QStringList{QStringLiteral("001.png")});
}

#ifdef Q_OS_UNIX
void tst_CliWatchRestart::exampleOfServiceWorks()
{
    QFile example(QStringLiteral(EXAMPLES "/hot-folder/velkora-batch-watch.service"));
    QVERIFY(example.open(QIODevice::ReadOnly));
    QString unit = QString::fromUtf8(example.readAll());
    static const QRegularExpression start(QStringLiteral("^ExecStart=(.*)$"), QRegularExpression::MultilineOption);
    QString line = start.match(unit).captured(1);
    QVERIFY(line.startsWith(QStringLiteral("/usr/bin/velkora-batch watch %h/incoming ")));
    // Every way of ending that a restart does not mend, and that is no failure.
    QVERIFY(unit.contains(QStringLiteral("\nSuccessExitStatus=4\n")));
    QVERIFY(unit.contains(QStringLiteral("\nRestartPreventExitStatus=2 6\n")));
    stage->Write(QStringLiteral("incoming/a.jpg"), "a");
    const CliRun preset = stage->Run(QStringLiteral("presets save web --size 1600 --format jpeg --settings ") +
                                     stage->Path(QStringLiteral("settings")));
    QVERIFY2(preset.exitCode == 0, preset.err.constData());
    QStringList words = line.replace(QStringLiteral("%h"), stage->Folder()).split(QLatin1Char(' '));
    words.removeFirst();
    HeldRun run(*stage, words.join(QLatin1Char(' ')));
    QVERIFY2(run.WaitFor("\"event\":\"written\""), run.Err().constData());
    QVERIFY(run.RequestEnd());
    const int code = run.End();
    QVERIFY(code == 0 || code == 4);
    QCOMPARE(stage->Names(QStringLiteral("web")).filter(QStringLiteral("a.jpg")), QStringList{QStringLiteral("a.jpg")});

    const QString checker = QStandardPaths::findExecutable(QStringLiteral("systemd-analyze"));
    if (checker.isEmpty()) {
        QSKIP("This system has no systemd to judge the rest of the file.");
    }
    unit.replace(QStringLiteral("/usr/bin/velkora-batch"), stage->Program());
    const QString path = stage->Write(QStringLiteral("velkora-batch-watch.service"), unit.toUtf8());
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(checker, {QStringLiteral("verify"), QStringLiteral("--man=no"), path});
    QVERIFY(process.waitForFinished(60'000));
    const QByteArray said = process.readAll();
    QVERIFY2(process.exitCode() == 0 && !said.contains("velkora-batch-watch"), said.constData());
}
#endif

QTEST_GUILESS_MAIN(tst_CliWatchRestart)
#include "tst_cliwatchrestart.moc"
