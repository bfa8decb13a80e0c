// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PartStage.h"
#include "PictureFiles.h"

#include <QDir>
#include <QStorageInfo>
#include <QtTest>

#include <csignal>
#include <sys/mount.h>
#include <vector>

/// Runs on file systems that refuse what those of networks may refuse: to rename without replacing, hard links, locks.
class tst_CliFileSystems : public QObject, private PartStage
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void run_data() { AddFileSystems(); }
    void run();
    void existingFileStays_data() { AddFileSystems(); }
    void existingFileStays();
    void update_data() { AddFileSystems(); }
    void update();
    void partsTwiceAtOnce_data() { AddFileSystems(); }
    void partsTwiceAtOnce();
    void foreignFileInAPart_data() { AddFileSystems(); }
    void foreignFileInAPart();
    void killedPart_data() { AddFileSystems(); }
    void killedPart();
    void killedRun_data() { AddFileSystems(); }
    void killedRun();
    void lockOfAnotherMachine();
    void placeholderOfAKilledPart_data() { AddFileSystems(); }
    void placeholderOfAKilledPart();
    void placeholderOfAKilledRun_data() { AddFileSystems(); }
    void placeholderOfAKilledRun();

private:
    static void AddFileSystems();
    bool Mount(const QString& refusals);
    bool HasLocks() const { return !refused.contains(QLatin1String("no-locks")); }
    bool NeedsPlaceholders() const
    {
        return refused.contains(QLatin1String("no-rename-flags")) && refused.contains(QLatin1String("no-links"));
    }
    /// Hidden files beside the results.
    QStringList Kept(const QString& wildcard) const
    {
        return QDir(Path(QStringLiteral("out"))).entryList({wildcard}, QDir::Files | QDir::Hidden);
    }
    Files Results(const QString& folder) const;
    std::unique_ptr<QProcess> StartSlowly(const QString& arguments) const;
    void MakeLastSlow();
    void KillAfterFirst(QProcess& run, const QString& result) const;

    std::unique_ptr<QTemporaryDir> real; ///< the folder that the file system shows
    QProcess fileSystem;
    QString refused;
};

void tst_CliFileSystems::AddFileSystems()
{
    QTest::addColumn<QString>("refusals");
    QTest::newRow("refuses nothing") << "";
    QTest::newRow("renames with replacing only") << "no-rename-flags";
    QTest::newRow("no hard links either") << "no-rename-flags no-links";
    QTest::newRow("no locks") << "no-locks";
    QTest::newRow("refuses all") << "no-rename-flags no-links no-locks";
}

void tst_CliFileSystems::init()
{
    Reset();
    if (!QFileInfo(QStringLiteral("/dev/fuse")).isWritable()) {
        QSKIP("This machine lets nobody mount a file system: /dev/fuse cannot be written.");
    }
    const QString refusals = QTest::currentDataTag()
                                 ? *static_cast<QString*>(QTest::qData("refusals", QMetaType::QString))
                                 : QStringLiteral("no-rename-flags no-links no-locks");
    if (!Mount(refusals)) {
        const QByteArray problem = fileSystem.readAllStandardError().trimmed();
        QSKIP(("This machine lets us mount no file system: " + problem).constData());
    }
}

/// Moves the stage to a file system that refuses `refusals`.
bool tst_CliFileSystems::Mount(const QString& refusals)
{
    refused = refusals;
    real = std::move(root);
    root = std::make_unique<QTemporaryDir>();
    environment.insert(QStringLiteral("TMPDIR"), real->filePath(QStringLiteral("tmp")));
    const QByteArray before = QStorageInfo(root->path()).fileSystemType();
    fileSystem.start(QStringLiteral(POOR_FILE_SYSTEM),
                     QStringList{real->path(), root->path()} + refusals.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    const auto isMounted = [this] { return QStorageInfo(root->path()).fileSystemType() == "fuse.poorfs"; };
    return fileSystem.waitForStarted() && before != "fuse.poorfs" &&
           QTest::qWaitFor([&] { return isMounted() || fileSystem.state() == QProcess::NotRunning; }, 20'000) &&
           isMounted();
}

void tst_CliFileSystems::cleanup()
{
    if (fileSystem.state() != QProcess::NotRunning) {
        fileSystem.terminate();
        if (!fileSystem.waitForFinished(20'000)) {
            fileSystem.kill();
            fileSystem.waitForFinished();
        }
    }
    if (root && QStorageInfo(root->path()).fileSystemType() == "fuse.poorfs") {
        umount2(QFile::encodeName(root->path()).constData(), MNT_DETACH);
    }
}

/// The files in `folder` but for what velkora-batch keeps for itself.
Files tst_CliFileSystems::Results(const QString& folder) const
{
    Files files = FilesBelow(Path(folder));
    for (const QString& name : files.keys()) {
        if (name.startsWith(QLatin1String(".velkora-"))) {
            files.remove(name);
        }
    }
    return files;
}

/// A run that has one worker.
std::unique_ptr<QProcess> tst_CliFileSystems::StartSlowly(const QString& arguments) const
{
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment);
    process->setWorkingDirectory(root->path());
    process->start(QStringLiteral(VELKORA_BATCH),
                   arguments.split(QLatin1Char(' ')) + QStringList{QStringLiteral("--workers"), QStringLiteral("1")});
    return process;
}

/// A job whose last picture takes longer than all others.
void tst_CliFileSystems::MakeLastSlow()
{
    PictureFiles::WriteJpeg(real->filePath(QStringLiteral("a/12.jpg")), 12, 900, 600);
    job = QStringLiteral("a --effect denoise");
    for (int i = 1; i < 12; ++i) {
        PictureFiles::WriteJpeg(real->filePath(QStringLiteral("a/%1.jpg").arg(i)), i);
    }
}

/// Kills `run` with its server once it has written `result`.
void tst_CliFileSystems::KillAfterFirst(QProcess& run, const QString& result) const
{
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(Path(result)), 60'000);
    run.kill();
    QVERIFY(run.waitForFinished());
    QVERIFY(!QFileInfo::exists(Path(QFileInfo(result).path() + QStringLiteral("/12.jpg"))));
}

void tst_CliFileSystems::run()
{
    const CliRun run = Run(QStringLiteral("run a -o out -s 100"));
    QVERIFY2(run.exitCode == 0, run.err);
    QVERIFY2(!run.Err().contains(QLatin1String("setNativeLocks")), run.err);
    const CliRun elsewhere = Run(QStringLiteral("run a -s 100 -o ") + real->filePath(QStringLiteral("tmp/elsewhere")));
    QVERIFY2(elsewhere.exitCode == 0, elsewhere.err);
    QCOMPARE(FilesBelow(Path(QStringLiteral("out"))), FilesBelow(real->filePath(QStringLiteral("tmp/elsewhere"))));
}

/// A file that appears while the run works.
void tst_CliFileSystems::existingFileStays()
{
    MakeLastSlow();
    const auto run = StartSlowly(QStringLiteral("run %1 -o out --on-name-exists rename").arg(job));
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(Path(QStringLiteral("out/1.jpg"))), 60'000);
    QFile foreign(Path(QStringLiteral("out/12.jpg")));
    QVERIFY(foreign.open(QIODevice::NewOnly | QIODevice::WriteOnly) && foreign.write("somebody else's") > 0);
    foreign.close();
    QVERIFY(run->waitForFinished(120'000));
    QVERIFY2(run->exitCode() == 0, run->readAllStandardError());
    QCOMPARE(Content(QStringLiteral("out/12.jpg")), QByteArray("somebody else's"));
    QCOMPARE(Results(QStringLiteral("out")).size(), 13);
}

void tst_CliFileSystems::update()
{
    const QString command = QStringLiteral("run a -o out -s 100 --update --json");
    const CliRun first = Run(command);
    QVERIFY2(first.exitCode == 0, first.err);
    const Files results = Results(QStringLiteral("out"));
    PictureFiles::WriteJpeg(real->filePath(QStringLiteral("a/3.jpg")), 77, 320, 200);
    const CliRun second = Run(command);
    QVERIFY2(second.exitCode == 0, second.err);
    QCOMPARE(second.out.count("\"event\":\"written\""), 1);
    QCOMPARE(second.out.count("\"event\":\"unchanged\""), 11);
    Files now = Results(QStringLiteral("out"));
    QVERIFY(now.take(QStringLiteral("3.jpg")) != results.value(QStringLiteral("3.jpg")));
    QCOMPARE(now.size(), 11);
    for (auto it = now.cbegin(); it != now.cend(); ++it) {
        QCOMPARE(*it, results.value(it.key()));
    }
}

void tst_CliFileSystems::partsTwiceAtOnce()
{
    const Files one = OneRun();
    QCOMPARE(Split().exitCode, 0);
    QCOMPARE(RunAllTwice(), QByteArray());
    QCOMPARE(FilesBelow(Path(QStringLiteral("out"))), one);
    const CliRun collected = Run(QStringLiteral("collect job.plan --report all.csv"));
    QVERIFY2(collected.exitCode == 0, collected.err);
    QCOMPARE(Content(QStringLiteral("all.csv")).count(",\"written\","), 24);
    QVERIFY(NamesLike(QStringLiteral("job.plan*")).isEmpty());
}

void tst_CliFileSystems::foreignFileInAPart()
{
    QCOMPARE(Split().exitCode, 0);
    QVERIFY(QDir(root->path()).mkpath(QStringLiteral("out")));
    Write(QStringLiteral("out/1.jpg"), "somebody else's");
    const CliRun run = RunPart(1);
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.Err().contains(QLatin1String("out/1.jpg\" exists already")), run.err);
    QCOMPARE(Content(QStringLiteral("out/1.jpg")), QByteArray("somebody else's"));
    QCOMPARE(FilesBelow(Path(QStringLiteral("out"))).size(), 6);
}

/// Unfinished files are removed, or named where the file system cannot say whether they are in work.
void tst_CliFileSystems::killedPart()
{
    MakeLastSlow();
    const Files one = OneRun();
    QCOMPARE(Run(QStringLiteral("split %1 -o out --parts 1 --plan job.plan").arg(job)).exitCode, 0);
    const std::unique_ptr<QProcess> run = Start(1, QStringLiteral("--workers 1"));
    KillAfterFirst(*run, QStringLiteral("out/1.jpg"));
    Write(QStringLiteral("out/.velkora-0123456789abcdef.tmp"), "left");
    const CliRun again = RunPart(1);
    QVERIFY2(again.exitCode == 0, again.err);
    QCOMPARE(Results(QStringLiteral("out")), one);
    QCOMPARE(Kept(QStringLiteral(".velkora-*.tmp")).isEmpty(), HasLocks());
    QCOMPARE(again.Err().contains(QLatin1String(" unfinished files stay beside the results")), !HasLocks());
    const CliRun collected = Run(QStringLiteral("collect job.plan"));
    QVERIFY2(collected.exitCode == 0, collected.err);
    QVERIFY(NamesLike(QStringLiteral("job.plan*")).isEmpty());
}

void tst_CliFileSystems::killedRun()
{
    MakeLastSlow();
    const Files one = OneRun();
    const auto run = StartSlowly(QStringLiteral("run %1 -o out").arg(job));
    KillAfterFirst(*run, QStringLiteral("out/1.jpg"));
    const CliRun resumed = Run(QStringLiteral("run -o out --resume"));
    QVERIFY2(resumed.exitCode == 0, resumed.err);
    QCOMPARE(Results(QStringLiteral("out")), one);
    QVERIFY(Kept(QStringLiteral("*.journal*")).isEmpty());
}

/// Nobody here can say whether it has ended.
void tst_CliFileSystems::lockOfAnotherMachine()
{
    MakeLastSlow();
    const auto run = StartSlowly(QStringLiteral("run %1 -o out").arg(job));
    KillAfterFirst(*run, QStringLiteral("out/1.jpg"));
    const QStringList locks = Kept(QStringLiteral("*.journal.lock"));
    QCOMPARE(locks.size(), 1);
    const QString lock = QStringLiteral("out/") + locks.first();
    QByteArrayList lines = Content(lock).split('\n');
    lines[2] = "elsewhere";
    QVERIFY(QFile::remove(Path(lock)));
    Write(lock, lines.mid(0, 3).join('\n') + '\n');
    const CliRun refusedRun = Run(QStringLiteral("run -o out --resume"));
    QCOMPARE(refusedRun.exitCode, 6);
    QVERIFY2(refusedRun.Err().contains(Path(lock) + QLatin1String(" says that process ")), refusedRun.err);
    QVERIFY2(refusedRun.Err().contains(QLatin1String(" of elsewhere holds it, and the file system has no locks")),
             refusedRun.err);
    const CliRun sameCommand = Run(QStringLiteral("run %1 -o out").arg(job));
    QCOMPARE(sameCommand.exitCode, 6);
    QVERIFY2(sameCommand.Err().contains(QLatin1String("out: ") + Path(lock) + QLatin1String(" says that process ")),
             sameCommand.err);
    QVERIFY(QFile::remove(Path(lock)));
    QCOMPARE(Run(QStringLiteral("run -o out --resume")).exitCode, 0);
    QCOMPARE(Results(QStringLiteral("out")).size(), 12);
}

/// Where only an empty file can take a name, a killed part may leave one.
void tst_CliFileSystems::placeholderOfAKilledPart()
{
    const Files one = OneRun();
    QCOMPARE(Split().exitCode, 0);
    QVERIFY(QDir(root->path()).mkpath(QStringLiteral("out")));
    Write(QStringLiteral("out/2.jpg"), "");
    const CliRun run = RunPart(1);
    QVERIFY2(run.exitCode == (NeedsPlaceholders() ? 0 : 1), run.err);
    QCOMPARE(Content(QStringLiteral("out/2.jpg")),
             NeedsPlaceholders() ? one.value(QStringLiteral("2.jpg")) : QByteArray());
    QVERIFY(QFileInfo::exists(Path(QStringLiteral("out/2.jpg"))));
}

/// The same of a run that is resumed: the empty file does not count as the result.
void tst_CliFileSystems::placeholderOfAKilledRun()
{
    MakeLastSlow();
    const Files one = OneRun();
    const auto run = StartSlowly(QStringLiteral("run %1 -o out --on-name-exists skip").arg(job));
    KillAfterFirst(*run, QStringLiteral("out/1.jpg"));
    QTRY_VERIFY_WITH_TIMEOUT(Kept(QStringLiteral("*.journal.server")).isEmpty(), 60'000);
    // As if it had been killed when the last result was placed.
    const QStringList journals = Kept(QStringLiteral("*.journal"));
    QCOMPARE(journals.size(), 1);
    QFile journal(Path(QStringLiteral("out/") + journals.first()));
    QVERIFY(journal.open(QIODevice::WriteOnly | QIODevice::Append));
    journal.write("{\"begin\":11,\"output\":\"" + Path(QStringLiteral("out/12.jpg")).toUtf8() + "\"}\n");
    journal.close();
    const QString begun = QStringLiteral("12.jpg");
    Write(QStringLiteral("out/") + begun, "");
    const CliRun resumed = Run(QStringLiteral("run -o out --resume"));
    QVERIFY2(resumed.exitCode == (NeedsPlaceholders() ? 0 : 1), resumed.err);
    Files expected = one;
    if (!NeedsPlaceholders()) {
        expected[begun].clear();
    }
    QCOMPARE(Results(QStringLiteral("out")), expected);
    QCOMPARE(resumed.Err().contains(QStringLiteral("out/%1\" exists already").arg(begun)), !NeedsPlaceholders());
}

QTEST_GUILESS_MAIN(tst_CliFileSystems)
#include "tst_clifilesystems.moc"
