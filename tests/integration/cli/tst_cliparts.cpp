// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Links.h"
#include "PartStage.h"
#include "PictureFiles.h"

#include "job/values/FileIdentity.h"

#include <QDir>
#include <QProcess>
#include <QtTest>

#include <vector>

/// A job that is cut into parts gives what one run gives, whatever happens to the parts.
class tst_CliParts : public QObject, private PartStage
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void likeOneRun_data();
    void likeOneRun();
    void atOnce();
    void killedAndRunAgain_data();
    void killedAndRunAgain();
    void collectInEachState();
    void shortenedResultsAreNotDone();
    void numberFromTheEnvironment_data();
    void numberFromTheEnvironment();
    void refused_data();
    void refused();
    void changedInput();
    void missingInput();
    void damagedPlan_data();
    void damagedPlan();
    void clashThatAsks();
    void morePartsThanPictures();
    void foreignFileStays();
    void namesThatAreTaken_data();
    void namesThatAreTaken();
    void foreignFileAppears_data();
    void foreignFileAppears();
    void journalsAreLost();
    void foldersElsewhere_data();
    void foldersElsewhere();
    void fileOfAnEffect_data();
    void fileOfAnEffect();
};

void tst_CliParts::init()
{
    Reset();
}

void tst_CliParts::likeOneRun_data()
{
    QTest::addColumn<QString>("options");
    QTest::newRow("renamed clashes") << "a b -s 100 --on-name-exists rename";
    QTest::newRow("skipped clashes") << "a b -s 100 --on-name-exists skip";
    QTest::newRow("numbers") << "a b -s 100 --name number:7:3";
    QTest::newRow("dates") << "a b -s 100 --structure date --prefix date --on-name-exists rename";
    QTest::newRow("folders") << "a b -s 100 --structure input";
    QTest::newRow("tokens") << "a b -s 100 --name {folder}_{number:4} --number-start 30 --effect "
                               "watermark-text:text={number},tokens=true";
    QTest::newRow("several results") << "a b --preset web --preset thumbnails --on-name-exists rename";
    QTest::newRow("a broken picture") << "a b broken.jpg -s 100 --name number --on-name-exists rename";
}

/// In any order, and each part twice.
void tst_CliParts::likeOneRun()
{
    QFETCH(QString, options);
    Write(QStringLiteral("broken.jpg"), "\xff\xd8\xff and no picture");
    job = options;
    const CliRun whole = Run(QStringLiteral("run %1 -o one").arg(job));
    const Files one = FilesBelow(Path(QStringLiteral("one")));
    QVERIFY(!one.isEmpty());
    const CliRun split = Split();
    QVERIFY2(split.exitCode == 0, split.err);
    QVERIFY(!QFileInfo::exists(Path(QStringLiteral("out"))));
    for (const int part : {3, 1, 3, 4, 2, 1}) {
        const CliRun run = RunPart(part);
        QVERIFY2(run.exitCode == 0 || run.exitCode == 1, run.err);
    }
    QCOMPARE(FilesBelow(Path(QStringLiteral("out"))), one);
    QCOMPARE(Run(QStringLiteral("collect job.plan")).exitCode, whole.exitCode);
}

/// All parts at once, each twice.
void tst_CliParts::atOnce()
{
#ifdef Q_OS_WIN
    QSKIP("There is one pipe, so one run at a time.");
#endif
    const Files one = OneRun();
    QCOMPARE(Split().exitCode, 0);
    QCOMPARE(RunAllTwice(), QByteArray());
    QCOMPARE(FilesBelow(Path(QStringLiteral("out"))), one);
    const CliRun collected = Run(QStringLiteral("collect job.plan"));
    QVERIFY2(collected.exitCode == 0, collected.err);
}

void tst_CliParts::killedAndRunAgain_data()
{
    QTest::addColumn<int>("results");
    QTest::newRow("before any result") << 0;
    for (const int results : {1, 3, 5}) {
        QTest::addRow("after %d results", results) << results;
    }
}

/// Each part is killed when it has written so many of its six results, or a few more.
void tst_CliParts::killedAndRunAgain()
{
    QFETCH(int, results);
    const Files one = OneRun();
    QCOMPARE(Split().exitCode, 0);
    const auto written = [this] {
        return QDir(Path(QStringLiteral("out"))).entryList({QStringLiteral("*.jpg")}, QDir::Files).size();
    };
    for (int part = 1; part <= partCount; ++part) {
        const int before = written();
        const std::unique_ptr<QProcess> run = Start(part, QStringLiteral("--workers 1"));
        const auto hasBegun = [&] { return !NamesLike(QStringLiteral("job.plan-*-%1-*.journal").arg(part)).isEmpty(); };
        QTRY_VERIFY_WITH_TIMEOUT(hasBegun() && written() >= before + results, 60'000);
        run->kill();
        QVERIFY(run->waitForFinished());
    }
    for (int part = partCount; part >= 1; --part) {
        const CliRun run = RunPart(part);
        QVERIFY2(run.exitCode == 0, run.err);
    }
    const CliRun collected = Run(QStringLiteral("collect job.plan"));
    QVERIFY2(collected.exitCode == 0, collected.err + collected.out);
    QCOMPARE(FilesBelow(Path(QStringLiteral("out"))), one);
    QVERIFY(NamesLike(QStringLiteral("job.plan*")).isEmpty());
}

void tst_CliParts::shortenedResultsAreNotDone()
{
    QCOMPARE(Split().exitCode, 0);
    QCOMPARE(RunAllTwice(), QByteArray());
    QFile result(Path(QStringLiteral("out/1.jpg")));
    QVERIFY(result.resize(result.size() - 1));
    const CliRun collected = Run(QStringLiteral("collect job.plan"));
    QCOMPARE(collected.exitCode, 1);
    QVERIFY2(collected.Out().contains(QLatin1String("Written: 23, skipped: 0, failed: 0, not processed: 1.")),
             collected.out);
    QVERIFY2(collected.Out().contains(QLatin1String("as they are not done: 1\n")), collected.out);
    QVERIFY(result.remove());
    QCOMPARE(RunPart(1).exitCode, 0);
    QCOMPARE(Run(QStringLiteral("collect job.plan")).exitCode, 0);
}

void tst_CliParts::collectInEachState()
{
    Write(QStringLiteral("broken.jpg"), "\xff\xd8\xff and no picture");
    job = QStringLiteral("a b broken.jpg -s 100 --on-name-exists rename");
    QCOMPARE(Split().exitCode, 0);
    const CliRun none = Run(QStringLiteral("collect job.plan"));
    QCOMPARE(none.exitCode, 1);
    QVERIFY2(none.Out().contains(QLatin1String("Parts to run again, as they are not done: 1,2,3,4")), none.out);

    QCOMPARE(RunPart(2).exitCode, 0);
    const CliRun one = Run(QStringLiteral("collect job.plan"));
    QCOMPARE(one.exitCode, 1);
    QVERIFY2(one.Out().contains(QLatin1String("as they are not done: 1,3,4")), one.out);

    RunPart(1);
    RunPart(3);
    RunPart(4);
    const CliRun all = Run(QStringLiteral("collect job.plan --report all.json"));
    QCOMPARE(all.exitCode, 1);
    QVERIFY2(all.Out().contains(QLatin1String("Parts done: 4 of 4. Written: 24, skipped: 0, failed: 1")), all.out);
    QVERIFY2(all.Out().contains(QLatin1String("as pictures have failed: ")), all.out);
    QCOMPARE(Content(QStringLiteral("all.json")).count("\"result\": \"written\""), 24);
    QCOMPARE(Content(QStringLiteral("all.json")).count("\"result\": \"failed\""), 1);
    QVERIFY(!NamesLike(QStringLiteral("job.plan")).isEmpty());

    QCOMPARE(Run(QStringLiteral("collect job.plan --remove")).exitCode, 1);
    QVERIFY(NamesLike(QStringLiteral("job.plan*")).isEmpty());
}

void tst_CliParts::numberFromTheEnvironment_data()
{
    QTest::addColumn<QString>("variables");
    QTest::addColumn<QString>("part"); // its first result
    QTest::newRow("Slurm") << "SLURM_ARRAY_TASK_ID=2 SLURM_ARRAY_TASK_MIN=1"
                           << "7.jpg";
    QTest::newRow("Slurm, from 0") << "SLURM_ARRAY_TASK_ID=1 SLURM_ARRAY_TASK_MIN=0"
                                   << "7.jpg";
    QTest::newRow("Slurm, some again") << "SLURM_ARRAY_TASK_ID=2 SLURM_ARRAY_TASK_MIN=2"
                                       << "7.jpg";
    QTest::newRow("Kubernetes") << "JOB_COMPLETION_INDEX=1"
                                << "7.jpg";
    QTest::newRow("GNU parallel") << "PARALLEL_SEQ=2"
                                  << "7.jpg";
}

void tst_CliParts::numberFromTheEnvironment()
{
    QFETCH(QString, variables);
    QFETCH(QString, part);
    QCOMPARE(Split().exitCode, 0);
    const QStringList list = variables.split(QLatin1Char(' '));
    for (const QString& variable : list) {
        environment.insert(variable.section(QLatin1Char('='), 0, 0), variable.section(QLatin1Char('='), 1));
    }
    const CliRun run = Run(QStringLiteral("run --plan job.plan"));
    QVERIFY2(run.exitCode == 0, run.err);
    const Files files = FilesBelow(Path(QStringLiteral("out")));
    QCOMPARE(files.size(), 6);
    QVERIFY2(files.contains(part), qPrintable(files.keys().join(QLatin1Char(' '))));
}

void tst_CliParts::refused_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("message");
    QTest::newRow("no number") << "run --plan job.plan"
                               << "which part is not said";
    QTest::newRow("0") << "run --plan job.plan --part 0"
                       << "the plan has the parts 1 to 4";
    QTest::newRow("too great") << "run --plan job.plan --part 5"
                               << "the plan has the parts 1 to 4";
    QTest::newRow("no number at all") << "run --plan job.plan --part two"
                                      << "there is no part \"two\"";
    QTest::newRow("no plan") << "run --plan none.plan --part 1"
                             << "none.plan cannot be used";
    QTest::newRow("another file") << "run --plan a/1.jpg --part 1"
                                  << "it is no plan";
    QTest::newRow("part without plan") << "run a -o out --part 1"
                                       << "name its plan with --plan";
    QTest::newRow("inputs of its own") << "run --plan job.plan --part 1 a"
                                       << "leave out \"a\"";
    QTest::newRow("a job of its own") << "run --plan job.plan --part 1 -s 50"
                                      << "contradict each other";
    QTest::newRow("resume") << "run --plan job.plan --part 1 --resume"
                            << "contradict each other";
    QTest::newRow("map") << "run --plan job.plan --part 1 --map here"
                         << "two absolute folders";
    QTest::newRow("no parts") << "split a b -o out --plan other.plan"
                              << "split needs --parts";
    QTest::newRow("no file") << "split a b -o out --parts 2"
                             << "split needs --plan";
    QTest::newRow("parts") << "split a b -o out --plan other.plan --parts 0"
                           << "--parts";
    QTest::newRow("collect nothing") << "collect"
                                     << "collect takes one plan";
}

void tst_CliParts::refused()
{
    QFETCH(QString, arguments);
    QFETCH(QString, message);
    QCOMPARE(Split().exitCode, 0);
    const QStringList before = FilesBelow(root->path()).keys();
    const CliRun run = Run(arguments);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.Err().contains(message), run.err);
    QCOMPARE(FilesBelow(root->path()).keys(), before);
}

void tst_CliParts::changedInput()
{
    QCOMPARE(Split().exitCode, 0);
    PictureFiles::WriteJpeg(Path(QStringLiteral("a/1.jpg")), 99, 310, 200);
    const CliRun run = RunPart(1);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.Err().contains(QLatin1String("a/1.jpg has changed since the job was split")), run.err);
    QVERIFY(!QFileInfo::exists(Path(QStringLiteral("out"))));
    QCOMPARE(RunPart(4).exitCode, 0);
}

void tst_CliParts::missingInput()
{
    QCOMPARE(Split().exitCode, 0);
    QVERIFY(QFile::remove(Path(QStringLiteral("a/1.jpg"))));
    const CliRun run = RunPart(1);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.Err().contains(QLatin1String("a/1.jpg is missing here")), run.err);
    QVERIFY(!QFileInfo::exists(Path(QStringLiteral("out"))));
}

void tst_CliParts::damagedPlan_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("message");
    QTest::newRow("newer") << QByteArray("{\"plan\":1,") << QByteArray("{\"plan\":2,") << "a newer version";
    QTest::newRow("header") << QByteArray("\"policies\"") << QByteArray("\"polecies\"") << "it is damaged";
    QTest::newRow("name") << QByteArray("\"to\":\"1.jpg\"") << QByteArray("\"to\":\"9.jpg\"") << "it is damaged";
}

void tst_CliParts::damagedPlan()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, message);
    QCOMPARE(Split().exitCode, 0);
    QByteArray text = Content(QStringLiteral("job.plan"));
    QVERIFY(text.contains(from));
    Write(QStringLiteral("job.plan"), text.replace(from, to));
    const CliRun run = RunPart(1);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.Err().contains(message), run.err);
    QVERIFY(!QFileInfo::exists(Path(QStringLiteral("out"))));
}

void tst_CliParts::clashThatAsks()
{
    job = QStringLiteral("a b -s 100 --on-name-exists ask");
    const CliRun run = Split();
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.Err().contains(QLatin1String("decide with --on-name-exists")), run.err);
    QVERIFY(NamesLike(QStringLiteral("job.plan*")).isEmpty());
}

void tst_CliParts::morePartsThanPictures()
{
    const CliRun run = Run(QStringLiteral("split a -o out --parts 13 --plan job.plan"));
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.Err().contains(QLatin1String("12 pictures cannot be cut into 13 parts")), run.err);
    QVERIFY(NamesLike(QStringLiteral("job.plan*")).isEmpty());
}

/// A file that has come since the job was split is not replaced, and changes no other name.
void tst_CliParts::foreignFileStays()
{
    QCOMPARE(Split().exitCode, 0);
    QVERIFY(QDir(root->path()).mkpath(QStringLiteral("out")));
    Write(QStringLiteral("out/1.jpg"), "somebody else's");
    const CliRun run = RunPart(1);
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(Content(QStringLiteral("out/1.jpg")), QByteArray("somebody else's"));
    QCOMPARE(FilesBelow(Path(QStringLiteral("out"))).size(), 6);
}

void tst_CliParts::namesThatAreTaken_data()
{
    QTest::addColumn<QString>("by");
    QTest::addColumn<bool>("isResult");
    QTest::newRow("the same bytes") << "same" << true;
    QTest::newRow("as many bytes") << "other" << false;
    QTest::newRow("a link to the same bytes") << "link" << false;
    QTest::newRow("a link to nothing") << "dangling" << false;
    QTest::newRow("a folder") << "folder" << false;
}

/// Another run of the part may have made the file; only its bytes can tell.
void tst_CliParts::namesThatAreTaken()
{
    QFETCH(QString, by);
    QFETCH(bool, isResult);
    const QByteArray result = OneRun().value(QStringLiteral("1.jpg"));
    QCOMPARE(Split().exitCode, 0);
    QVERIFY(QDir(root->path()).mkpath(QStringLiteral("out")));
    QByteArray planted = result;
    if (by == QLatin1String("other")) {
        planted[planted.size() / 2] = char(planted.at(planted.size() / 2) ^ 1);
    }
    const QString place = Path(QStringLiteral("out/1.jpg"));
    if (by == QLatin1String("folder")) {
        QVERIFY(QDir().mkdir(place));
    } else if (by == QLatin1String("link") || by == QLatin1String("dangling")) {
        if (!MakeLink(by == QLatin1String("link") ? Path(QStringLiteral("one/1.jpg")) : by, place)) {
            QSKIP("This system makes no links.");
        }
    } else {
        Write(QStringLiteral("out/1.jpg"), planted);
    }
    const std::optional<BatchJob::FileIdentity> before = BatchJob::IdentityOf(place);
    const CliRun run = RunPart(1);
    QCOMPARE(run.exitCode, isResult ? 0 : 1);
    QCOMPARE(run.Err().contains(QLatin1String("out/1.jpg\" exists already")), !isResult);
    QCOMPARE(BatchJob::IdentityOf(place), before);
    QCOMPARE(QFileInfo(place).isSymLink(), by == QLatin1String("link") || by == QLatin1String("dangling"));
    if (QFileInfo(place).isFile()) {
        QCOMPARE(Content(QStringLiteral("out/1.jpg")), planted);
    }
    QCOMPARE(QDir(Path(QStringLiteral("out"))).entryList(QDir::Files | QDir::System | QDir::Hidden).size(),
             by == QLatin1String("folder") ? 5 : 6);
}

void tst_CliParts::foreignFileAppears_data()
{
    QTest::addColumn<QString>("policy");
    QTest::addColumn<bool>("stays");
    QTest::newRow("rename") << "rename" << true;
    QTest::newRow("skip") << "skip" << true;
    QTest::newRow("overwrite") << "overwrite" << false;
}

/// While the part runs.
void tst_CliParts::foreignFileAppears()
{
    QFETCH(QString, policy);
    QFETCH(bool, stays);
    for (int i = 1; i <= 12; ++i) {
        const int side = i == 12 ? 900 : 60; // The last one takes longer than all others.
        PictureFiles::WriteJpeg(Path(QStringLiteral("c/%1.jpg").arg(i)), i, side, side);
    }
    const QString arguments = QStringLiteral("split c -o out --effect denoise --parts 1 --plan job.plan");
    QCOMPARE(Run(arguments + QStringLiteral(" --on-name-exists ") + policy).exitCode, 0);
    const std::unique_ptr<QProcess> run = Start(1, QStringLiteral(" --workers 1"));
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(Path(QStringLiteral("out/1.jpg"))), 60'000);
    QFile foreign(Path(QStringLiteral("out/12.jpg")));
    QVERIFY(foreign.open(QIODevice::NewOnly | QIODevice::WriteOnly) && foreign.write("somebody else's") > 0);
    foreign.close();
    QVERIFY(run->waitForFinished(120'000));
    const QByteArray said = run->readAllStandardError();
    QVERIFY2(run->exitCode() == (stays && policy != QLatin1String("skip") ? 1 : 0), said);
    QCOMPARE(Content(QStringLiteral("out/12.jpg")) == QByteArray("somebody else's"), stays);
    QCOMPARE(FilesBelow(Path(QStringLiteral("out"))).size(), 12);
    const CliRun collected = Run(QStringLiteral("collect job.plan --report all.json"));
    QVERIFY2(collected.Out().contains(stays ? QLatin1String("Written: 11, skipped: 1")
                                            : QLatin1String("Written: 12, skipped: 0")),
             collected.out);
    QCOMPARE(Content(QStringLiteral("all.json")).contains("12.jpg\\\" exists already"), stays);
}

/// As when a machine dies: what was written is found by its bytes.
void tst_CliParts::journalsAreLost()
{
    const Files one = OneRun();
    QCOMPARE(Split().exitCode, 0);
    QCOMPARE(RunPart(1).exitCode, 0);
    const QStringList journals = NamesLike(QStringLiteral("job.plan-*.journal"));
    QCOMPARE(journals.size(), 1);
    QVERIFY(QFile::remove(Path(journals.first())));
    for (int part = 1; part <= partCount; ++part) {
        const CliRun run = RunPart(part);
        QVERIFY2(run.exitCode == 0, run.err);
    }
    QCOMPARE(FilesBelow(Path(QStringLiteral("out"))), one);
    QCOMPARE(Run(QStringLiteral("collect job.plan")).exitCode, 0);
}

void tst_CliParts::foldersElsewhere_data()
{
    QTest::addColumn<QString>("options");
    QTest::newRow("pictures") << "a b -s 100 --on-name-exists rename";
    QTest::newRow("a watermark") << "a b -s 100 --on-name-exists rename --effect watermark-image:file=marks/mark.jpg";
    QTest::newRow("a watermark in a preset") << "a b --preset marked --preset thumbnails --on-name-exists rename";
    QTest::newRow("a background") << "a b -s 100 --on-name-exists rename --frame 20 --background image:marks/mark.jpg";
}

/// The same bytes, although pictures, results and the files of effects are elsewhere.
void tst_CliParts::foldersElsewhere()
{
    QFETCH(QString, options);
    PictureFiles::WriteJpeg(Path(QStringLiteral("marks/mark.jpg")), 50, 30, 20);
    const CliRun saved = Run(QStringLiteral("presets save marked -s 90 --effect watermark-image:file=marks/mark.jpg"));
    QVERIFY2(saved.exitCode == 0, saved.err);
    job = options;
    const Files one = OneRun();
    QVERIFY(one.size() >= 24);
    QCOMPARE(Split().exitCode, 0);
    QVERIFY(QDir(root->path()).mkpath(QStringLiteral("there")));
    for (const QString& folder : {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("marks")}) {
        QVERIFY(QDir(root->path()).rename(folder, QStringLiteral("there/") + folder));
    }
    const CliRun lost = RunPart(1);
    QCOMPARE(lost.exitCode, 2);
    QVERIFY2(lost.Err().contains(QLatin1String(" is missing here")), lost.err);
    const QString map = QStringLiteral(" --map %1=%2").arg(root->path(), Path(QStringLiteral("there")));
    for (int part = 1; part <= partCount; ++part) {
        const CliRun run = RunPart(part, map);
        QVERIFY2(run.exitCode == 0, run.err);
    }
    QCOMPARE(FilesBelow(Path(QStringLiteral("there/out"))), one);
    QCOMPARE(Run(QStringLiteral("collect job.plan") + map).exitCode, 0);
}

void tst_CliParts::fileOfAnEffect_data()
{
    QTest::addColumn<bool>("isThere");
    QTest::addColumn<QString>("message");
    QTest::newRow("missing") << false << "marks/mark.jpg is missing here";
    QTest::newRow("changed") << true << "marks/mark.jpg has changed since the job was split";
}

void tst_CliParts::fileOfAnEffect()
{
    QFETCH(bool, isThere);
    QFETCH(QString, message);
    PictureFiles::WriteJpeg(Path(QStringLiteral("marks/mark.jpg")), 50, 30, 20);
    job += QStringLiteral(" --effect watermark-image:file=marks/mark.jpg");
    QCOMPARE(Split().exitCode, 0);
    QVERIFY(QFile::remove(Path(QStringLiteral("marks/mark.jpg"))));
    if (isThere) {
        PictureFiles::WriteJpeg(Path(QStringLiteral("marks/mark.jpg")), 51, 31, 20);
    }
    const CliRun run = RunPart(1);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.Err().contains(message), run.err);
    QVERIFY(!QFileInfo::exists(Path(QStringLiteral("out"))));
}

QTEST_GUILESS_MAIN(tst_CliParts)

#include "tst_cliparts.moc"
