// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliRun.h"
#include "EndRequest.h"
#include "FolderContent.h"
#include "PictureFiles.h"
#include "ProcessEnd.h"

#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>
#include <array>
#ifdef Q_OS_UNIX
#include <sys/file.h>
#endif

/// Runs that are interrupted and resumed.
// A kill costs three runs. The plain build tries many moments, builds with sanitizers a few. So does Windows, where one
// run at a time is possible and processes start slowly under Wine.
#if defined(Q_OS_WIN)
constexpr int lanes = 1;
constexpr int killsForEachRow = 6;
constexpr int mostKills = 30; ///< if none of them came between the beginning and the end of a run
constexpr int leastResumed = 1;
#elif defined(__SANITIZE_ADDRESS__)
constexpr int lanes = 5;
constexpr int killsForEachRow = 5;
constexpr int mostKills = killsForEachRow;
constexpr int leastResumed = 0;
#else
constexpr int lanes = 5;
constexpr int killsForEachRow = 25;
constexpr int mostKills = killsForEachRow;
constexpr int leastResumed = 3;
#endif

class tst_CliResume : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void killedAtAnyMoment_data();
    void killedAtAnyMoment();
    void killedServer();
    void killedBeforeItsServerIsReached();
    void interruptKeepsTheRun();
    void nothingToResume();
    void damagedJournal();
    void journalThatWasNotBegun_data();
    void journalThatWasNotBegun();
#ifdef Q_OS_UNIX
    void lockThatOutlivesItsHolder();
#endif
    void serverThatOutlivesItsHost();
    void otherJobsAreNotResumed();
    void linesThatMakeNoSense();
    void sameJobTwiceAtATime();

private:
    QString Path(const QString& name) const
    {
        return root->filePath(name);
    }
    QStringList Arguments(const QString& text) const
    {
        return text.split(QLatin1Char(' '), Qt::SkipEmptyParts)
               << QStringLiteral("--settings") << Path(QStringLiteral("settings"));
    }
    CliRun Run(const QString& arguments) const
    {
        return CliRun::Of(Arguments(arguments), root->path(), environment);
    }
    void Start(QProcess& process, const QString& arguments) const
    {
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(root->path());
        AllowEndRequests(process);
        process.start(QStringLiteral(VELKORA_BATCH), Arguments(arguments));
        QVERIFY(process.waitForStarted());
    }
    /// Kills a run as soon as it has begun.
    void KillRun() const
    {
        QProcess run;
        Start(run, QStringLiteral("run a b -o out --structure input --effect blur:sigma=20 --workers 1 --json"));
        QVERIFY(run.waitForReadyRead(60'000));
        run.kill();
        QVERIFY(run.waitForFinished());
    }
    QByteArray LockOfEndedProcess() const;
    void MakeOutput(const QString& folder = QStringLiteral("out")) const
    {
        QVERIFY(QDir(Path(folder)).removeRecursively());
        PictureFiles::WriteJpeg(Path(folder + QStringLiteral("/2.jpg")), 99);
    }

    /// Both folders have results of the same names in one output folder.
    void MakePictures(int width, int height) const
    {
        for (int i = 1; i <= 6; ++i) {
            PictureFiles::WriteJpeg(Path(QStringLiteral("a/%1.jpg").arg(i)), i, width, height);
            PictureFiles::WriteJpeg(Path(QStringLiteral("b/%1.jpg").arg(i)), 10 + i, width, height);
        }
    }

    /// For runs that have to be there still when something happens to them.
    void MakeLargePictures() const
    {
        MakePictures(1200, 1000);
    }

    std::unique_ptr<QTemporaryDir> root;
    QProcessEnvironment environment;
};

void tst_CliResume::init()
{
    root = std::make_unique<QTemporaryDir>();
    environment = QProcessEnvironment::systemEnvironment();
    QVERIFY(QDir(root->path()).mkpath(QStringLiteral("tmp")));
    environment.insert(QStringLiteral("TMPDIR"), Path(QStringLiteral("tmp")));
    MakePictures(500, 400);
}

void tst_CliResume::killedAtAnyMoment_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<uint>("seed");
    QTest::newRow("rename") << QStringLiteral("--on-name-exists rename") << 1U;
    QTest::newRow("skip") << QStringLiteral("--on-name-exists skip") << 2U;
    QTest::newRow("overwrite") << QStringLiteral("--on-name-exists overwrite") << 3U;
    QTest::newRow("numbers and dates") << QStringLiteral("--structure date --name date --suffix number "
                                                         "--on-name-exists rename")
                                       << 4U;
    QTest::newRow("several results") << QStringLiteral("--preset web --preset thumbnails --preset mail "
                                                       "--on-name-exists rename")
                                     << 5U;
}

namespace {

/// There is the file that was there before, and maybe the lock of a journal that was not written any more.
bool HasNotBegun(const Files& files)
{
    QStringList names = files.keys();
    names.erase(std::remove_if(names.begin(), names.end(),
                               [](const QString& name) { return name.endsWith(QStringLiteral(".journal.lock")); }),
                names.end());
    return names == QStringList(QStringLiteral("2.jpg"));
}

} // namespace

// The two parts of a run together write what an undisturbed run writes, byte for byte. Runs spend most of their time
// waiting, so several run at a time, each in a folder of its own.
void tst_CliResume::killedAtAnyMoment()
{
    QFETCH(QString, options);
    QFETCH(uint, seed);
    const auto folder = [](int lane) { return QStringLiteral("out%1").arg(lane); };
    const auto arguments = [&](int lane) {
        return QStringLiteral("run a b --effect blur:sigma=4 -q %1 -o %2").arg(options, folder(lane));
    };
    std::array<QProcess, lanes> runs;
    QElapsedTimer time;
    time.start();
    for (int lane = 0; lane < lanes; ++lane) {
        MakeOutput(folder(lane));
        Start(runs[std::size_t(lane)], arguments(lane));
    }
    Files undisturbed;
    for (int lane = 0; lane < lanes; ++lane) {
        QVERIFY(runs[std::size_t(lane)].waitForFinished(120'000));
        const Files files = FilesBelow(Path(folder(lane)));
        QVERIFY(files.size() > 5);
        QVERIFY(undisturbed.isEmpty() || files == undisturbed);
        undisturbed = files;
    }
    int duration = int(time.elapsed()); // of a run; other load on the machine may change it at any time

    QRandomGenerator random(seed);
    int resumed = 0;
    for (int kills = 0; kills < killsForEachRow || (resumed < leastResumed && kills < mostKills); kills += lanes) {
        std::array<int, lanes> moments{};
        for (int& moment : moments) {
            moment = random.bounded(duration);
        }
        std::sort(moments.begin(), moments.end());
        time.start();
        for (int lane = 0; lane < lanes; ++lane) {
            MakeOutput(folder(lane));
            Start(runs[std::size_t(lane)], arguments(lane));
        }
        std::array<bool, lanes> wasKilled{};
        for (int lane = 0; lane < lanes; ++lane) {
            QProcess& run = runs[std::size_t(lane)];
            run.waitForFinished(std::max(0, moments[std::size_t(lane)] - int(time.elapsed())));
            run.kill();
            run.waitForFinished();
            wasKilled[std::size_t(lane)] = run.exitStatus() == QProcess::CrashExit;
            Start(run, QStringLiteral("run --resume -q -o ") + folder(lane));
        }
        const auto killed = std::count(wasKilled.begin(), wasKilled.end(), true);
        duration = killed == lanes ? duration * 9 / 8 : killed < lanes / 2 ? duration * 7 / 8 : duration;
        for (int lane = 0; lane < lanes; ++lane) {
            QProcess& run = runs[std::size_t(lane)];
            QVERIFY(run.waitForFinished(120'000));
            const Files files = FilesBelow(Path(folder(lane)));
            const QByteArray err = run.readAllStandardError();
            const bool hadNothingToDo = run.exitCode() == 7;
            QVERIFY2(!hadNothingToDo || err.contains("there is no interrupted run"), err.constData());
            if (hadNothingToDo && wasKilled[std::size_t(lane)] && HasNotBegun(files)) {
                continue;
            }
            resumed += hadNothingToDo ? 0 : 1;
            QVERIFY2(files.keys() == undisturbed.keys(),
                     QStringLiteral("exit code %1, %2: %3")
                         .arg(run.exitCode())
                         .arg(files.keys().join(QLatin1Char(' ')), QString::fromUtf8(err))
                         .toUtf8());
            QVERIFY2(files == undisturbed, "A result differs from that of the undisturbed run.");
        }
    }
    QVERIFY2(resumed >= leastResumed, qPrintable(QString::number(resumed)));
}

void tst_CliResume::killedServer()
{
    MakeLargePictures();
    const QString arguments =
        QStringLiteral("run a b -o out --effect blur:sigma=4 --on-name-exists rename --workers 1");
    MakeOutput();
    QCOMPARE(Run(arguments).exitCode, 0);
    const Files undisturbed = FilesBelow(Path(QStringLiteral("out")));
    MakeOutput();
    QProcess process;
    Start(process, arguments + QStringLiteral(" --json"));
    QByteArray out;
    while (out.count("\"event\":\"written\"") < 3) {
        QVERIFY2(process.waitForReadyRead(60'000), out.constData());
        out += process.readAllStandardOutput();
    }
    const QList<qint64> servers = ChildrenOf(process.processId());
    QCOMPARE(servers.size(), 1);
    KillProcess(servers.first());
    QVERIFY(process.waitForFinished(120'000));
    out += process.readAllStandardOutput();
    const QByteArray err = process.readAllStandardError();
    QCOMPARE(process.exitCode(), 0);
    QVERIFY2(err.contains("the server ended unexpectedly"), err.constData());
    QVERIFY2(out.contains("\"event\":\"server-lost\"") && out.contains("\"goesOn\":true"), out.constData());
    QCOMPARE(out.count("\"event\":\"written\""), 12);
    QCOMPARE(FilesBelow(Path(QStringLiteral("out"))), undisturbed);
}

// Its server waits for a host that never comes. On Windows it has the one pipe.
void tst_CliResume::killedBeforeItsServerIsReached()
{
    constexpr int rounds = 3;
    const QString arguments = QStringLiteral("run a -o out -q --workers 1 --on-name-exists overwrite");
    for (int round = 0; round < rounds; ++round) {
        QProcess killed;
        Start(killed, arguments);
        QVERIFY(QTest::qWaitFor([&killed] { return !ChildrenOf(killed.processId()).isEmpty(); }, 60'000));
        killed.kill();
        QVERIFY(killed.waitForFinished());
        const CliRun run = Run(arguments);
        QVERIFY2(run.exitCode == 0, run.err.constData());
        QCOMPARE(FilesBelow(Path(QStringLiteral("out"))).size(), 6);
    }
}

void tst_CliResume::interruptKeepsTheRun()
{
    MakeLargePictures();
    QProcess process;
    Start(process, QStringLiteral("run a b -o out --structure input --effect blur:sigma=4 --workers 1 --json"));
    QByteArray out;
    while (!out.contains("\"event\":\"written\"")) {
        QVERIFY2(process.waitForReadyRead(60'000), out.constData());
        out += process.readAllStandardOutput();
    }
    QVERIFY(RequestEnd(process));
    QVERIFY(process.waitForFinished(60'000));
    QCOMPARE(process.exitCode(), 4);
    QVERIFY(process.readAllStandardError().contains("run --resume -o"));
    const int written = FilesBelow(Path(QStringLiteral("out/a"))).size();
    QVERIFY(written > 0);
    const QString taken = Path(QStringLiteral("out/a/1.jpg"));
    QVERIFY(QFile::remove(taken));
    const CliRun rest = Run(QStringLiteral("run --resume -o out"));
    QVERIFY2(rest.exitCode == 0, rest.err.constData());
    QVERIFY2(rest.err.contains("[12/12] "), rest.err.constData());
    QVERIFY2(!rest.err.contains("[1/12] "), rest.err.constData());
    QVERIFY2(rest.err.contains("Written            12"), rest.err.constData());
    QVERIFY2(
        rest.Err().contains(QStringLiteral("1 of them, written before the interruption, is missing now: ") + taken),
        rest.err.constData());
    QCOMPARE(FilesBelow(Path(QStringLiteral("out"))).size(), 11);
}

void tst_CliResume::nothingToResume()
{
    const CliRun none = Run(QStringLiteral("run --resume -o out"));
    QCOMPARE(none.exitCode, 7);
    QVERIFY2(none.err.contains("there is no interrupted run in "), none.err.constData());
    const CliRun where = Run(QStringLiteral("run --resume"));
    QCOMPARE(where.exitCode, 2);
    QVERIFY2(where.err.contains("--output DIR"), where.err.constData());
    QCOMPARE(Run(QStringLiteral("run a -o out -q")).exitCode, 0);
    QCOMPARE(Run(QStringLiteral("run a --resume -o out")).exitCode, 7);
}

void tst_CliResume::damagedJournal()
{
    QVERIFY(QDir(root->path()).mkdir(QStringLiteral("out")));
    QFile journal(Path(QStringLiteral("out/.velkora-batch-0123456789abcdef.journal")));
    QVERIFY(journal.open(QIODevice::WriteOnly));
    QVERIFY(journal.write("{\"journal\":1,\"docu\n") > 0);
    journal.close();
    const CliRun run = Run(QStringLiteral("run --resume -o out"));
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.err.contains(".journal is damaged"), run.err.constData());
}

/// What a lock file holds, with the number of a process that does not exist.
QByteArray tst_CliResume::LockOfEndedProcess() const
{
    QLockFile lock(Path(QStringLiteral("lock")));
    QFile file(Path(QStringLiteral("lock")));
    if (!lock.tryLock() || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QList<QByteArray> lines = file.readAll().split('\n');
    lines[0] = "999999999";
    lines[1] = "velkora-batch";
    return lines.join('\n');
}

void tst_CliResume::journalThatWasNotBegun_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut off") << QByteArray("{\"journal\":1,\"docu");
}

// A run that died while it wrote the first line of its journal had not begun, and leaves nothing.
void tst_CliResume::journalThatWasNotBegun()
{
    QFETCH(QByteArray, text);
    QVERIFY(QDir(root->path()).mkdir(QStringLiteral("out")));
    const QByteArray lock = LockOfEndedProcess();
    QVERIFY(!lock.isEmpty());
    for (const char* end : {"journal", "journal.lock"}) {
        QFile file(Path(QStringLiteral("out/.velkora-batch-0123456789abcdef.") + QLatin1String(end)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(end == QByteArray("journal") ? text : lock) >= 0, true);
    }
    const CliRun run = Run(QStringLiteral("run --resume -o out"));
    QCOMPARE(run.exitCode, 7);
    QVERIFY2(run.err.contains("there is no interrupted run in "), run.err.constData());
    QCOMPARE(FilesBelow(Path(QStringLiteral("out"))).keys(), QStringList());
}

#ifdef Q_OS_UNIX
// A child that was just forked when its parent was killed keeps the descriptor of the lock until it becomes the server.
void tst_CliResume::lockThatOutlivesItsHolder()
{
    KillRun();
    const QDir out(Path(QStringLiteral("out")));
    const QStringList locks =
        out.entryList({QStringLiteral(".velkora-batch-*.journal.lock")}, QDir::Files | QDir::Hidden);
    QCOMPARE(locks.size(), 1);
    QFile lock(out.filePath(locks.first()));
    QVERIFY(lock.open(QIODevice::ReadOnly));
    QTRY_COMPARE(flock(lock.handle(), LOCK_EX | LOCK_NB), 0);
    QProcess resumed;
    Start(resumed, QStringLiteral("run --resume -o out -q"));
    QVERIFY2(!resumed.waitForFinished(500), resumed.readAllStandardError().constData());
    lock.close();
    QVERIFY(resumed.waitForFinished(120'000));
    QVERIFY2(resumed.exitCode() == 0, resumed.readAllStandardError().constData());
    QCOMPARE(FilesBelow(out.path()).size(), 12);
}
#endif

// The server of a host that was killed writes one more result while the resumed run already waits for it to end.
void tst_CliResume::serverThatOutlivesItsHost()
{
    KillRun();
    const QDir out(Path(QStringLiteral("out")));
    const QStringList journals =
        out.entryList({QStringLiteral(".velkora-batch-*.journal")}, QDir::Files | QDir::Hidden);
    QCOMPARE(journals.size(), 1);
    const QString journal = out.filePath(journals.first());
    QLockFile server(journal + QStringLiteral(".server"));
    server.setStaleLockTime(0);
    QVERIFY(server.tryLock(60'000));
    const auto settle = [&](int index, const QString& output) {
        PictureFiles::WriteJpeg(out.filePath(output), 77);
        QFile file(journal);
        QVERIFY(file.open(QIODevice::Append));
        const QString line =
            QStringLiteral("{\"written\":%1,\"output\":\"%2\"}\n").arg(index).arg(out.filePath(output));
        QVERIFY(file.write(line.toUtf8()) > 0);
    };
    settle(10, QStringLiteral("b/5.jpg"));
    QProcess resumed;
    Start(resumed, QStringLiteral("run --resume -o out --json"));
    QByteArray events;
    while (!events.contains("b/5.jpg")) {
        QVERIFY2(resumed.waitForReadyRead(60'000), resumed.readAllStandardError().constData());
        events += resumed.readAllStandardOutput();
    }
    settle(11, QStringLiteral("b/6.jpg"));
    server.unlock();
    QVERIFY(resumed.waitForFinished(120'000));
    events += resumed.readAllStandardOutput();
    QVERIFY2(resumed.exitCode() == 0, events + resumed.readAllStandardError());
    QCOMPARE(events.count("\"event\":\"written\""), 12);
    QCOMPARE(FilesBelow(out.path()).size(), 12);
}

void tst_CliResume::otherJobsAreNotResumed()
{
    KillRun();
    for (const char* other : {"a", "a b --structure input", "--size 10", "--no-inputs"}) {
        const CliRun run = Run(QStringLiteral("run --resume -o out ") + QLatin1String(other));
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.contains(" is of another job: "), run.err.constData());
    }
    const CliRun same = Run(QStringLiteral("run a b --resume -o out --structure input --effect blur:sigma=20 -q"));
    QVERIFY2(same.exitCode == 0, same.err.constData());
    QCOMPARE(FilesBelow(Path(QStringLiteral("out"))).size(), 12);
}

void tst_CliResume::linesThatMakeNoSense()
{
    KillRun();
    const QDir out(Path(QStringLiteral("out")));
    const QStringList journals =
        out.entryList({QStringLiteral(".velkora-batch-*.journal")}, QDir::Files | QDir::Hidden);
    QCOMPARE(journals.size(), 1);
    QFile journal(out.filePath(journals.first()));
    QVERIFY(journal.open(QIODevice::Append));
    for (const char* line : {"{\"written\":-1,\"output\":\"/x\"}", "{\"written\":1000000,\"output\":\"/x\"}",
                             "{\"failed\":-7}", "{\"begin\":-2,\"output\":\"/\"}", "{\"begin\":99,\"output\":\"/\"}",
                             "{\"answer\":77,\"value\":-3}", "{\"lost\":[-1,500]}", "[]", "no JSON", ""}) {
        journal.write(line);
        journal.write("\n");
    }
    journal.close();
    const CliRun run = Run(QStringLiteral("run --resume -o out --json"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QVERIFY2(!run.err.contains("the server ended unexpectedly"), run.err.constData());
    QCOMPARE(FilesBelow(out.path()).size(), 12);
}

void tst_CliResume::sameJobTwiceAtATime()
{
    QProcess first;
    Start(first, QStringLiteral("run a b -o out --structure input --effect blur:sigma=20 --workers 1 --json"));
    QVERIFY(first.waitForReadyRead(60'000));
    const CliRun second =
        Run(QStringLiteral("run a b -o out --structure input --effect blur:sigma=20 --workers 1 --json"));
    QCOMPARE(second.exitCode, 6);
    QVERIFY2(second.err.contains("the same job is already running"), second.err.constData());
    QCOMPARE(Run(QStringLiteral("run --resume -o out")).exitCode, 6);
    QVERIFY(RequestEnd(first));
    QVERIFY(first.waitForFinished(60'000));
}

QTEST_GUILESS_MAIN(tst_CliResume)
#include "tst_cliresume.moc"
