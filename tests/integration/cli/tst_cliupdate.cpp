// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliRun.h"
#include "FileTimes.h"
#include "Links.h"
#include "PictureFiles.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/// Updates: only what has changed is made again.
class tst_CliUpdate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nothingHasChanged();
    void whatChangesMakesAnew_data();
    void whatChangesMakesAnew();
    void filesOfTheJobCount_data();
    void filesOfTheJobCount();
    void contentsCanCount();
    void equalSizesAndTimesAreNotEnoughForContents();
    void linkInPlaceOfAResult();
    void otherFilesAreNotReplaced();
    void changedResultsAreNotReplaced();
    void namesAreThoseOfTheWholeJob();
    void numbersInPicturesCount();
    void severalResultsOfEachPicture();
    void orphansAreListedAndRemoved();
    void orphansStayIfInputsCannotBeRead();
    void otherJobsHaveNoOrphans();
    void changedOrphansStay();
    void brokenRecordCountsAsNone_data();
    void brokenRecordCountsAsNone();
    void failedPicturesAreTriedAgain();
    void warningsAreToldAgain();
    void reportNamesUnchangedResults();
    void inputsAreNeverReplaced();
    void wrongCombinations_data();
    void wrongCombinations();

private:
    struct Counts
    {
        int written = -1;
        int unchanged = -1;
        int skipped = -1;
        int failed = -1;
    };

    QString Path(const QString& name) const { return root->filePath(name); }
    CliRun Run(const QString& arguments) const
    {
        return CliRun::Of(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts)
                              << QStringLiteral("--settings") << Path(QStringLiteral("settings")),
                          root->path());
    }
    /// The counts of a run with --json.
    Counts CountsOf(const CliRun& run) const
    {
        const QJsonObject end = QJsonDocument::fromJson(run.out.trimmed().split('\n').last()).object();
        const auto count = [&end](const char* name) { return end.value(QLatin1String(name)).toInt(-1); };
        return {count("written"), count("unchanged"), count("skipped"), count("failed")};
    }
    Counts Update(const QString& arguments) const
    {
        const CliRun run = Run(QStringLiteral("run in -o out --json --update ") + arguments);
        last = run;
        return CountsOf(run);
    }
    /// Gives the file another content of the same size and the same time.
    void ChangeSilently(const QString& path) const
    {
        QFile reference(Path(QStringLiteral("reference")));
        QVERIFY(reference.open(QIODevice::WriteOnly));
        reference.close();
        QVERIFY(CopyFileTime(path, reference.fileName()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.seek(file.size() - 2));
        QVERIFY(file.write(" ", 1) == 1); // within the marker that ends a JPEG file, which readers do without
        file.close();
        QVERIFY(CopyFileTime(reference.fileName(), path));
    }
    static void Age(const QString& path)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTimeUtc().addDays(-1), QFileDevice::FileModificationTime));
    }
    static QByteArray ContentOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QStringList Results() const
    {
        QStringList names;
        QDirIterator paths(Path(QStringLiteral("out")), QDir::Files, QDirIterator::Subdirectories);
        while (paths.hasNext()) {
            names.append(QDir(Path(QStringLiteral("out"))).relativeFilePath(paths.next()));
        }
        names.sort();
        return names;
    }

    std::unique_ptr<QTemporaryDir> root;
    mutable CliRun last;
};

#define COMPARE_COUNTS(actual, ...)                                                                                    \
    do {                                                                                                               \
        const Counts counts = actual;                                                                                  \
        const Counts expected{__VA_ARGS__};                                                                            \
        QVERIFY2(counts.written == expected.written && counts.unchanged == expected.unchanged &&                       \
                     counts.skipped == expected.skipped && counts.failed == expected.failed,                           \
                 last.out + last.err);                                                                                 \
    } while (false)

void tst_CliUpdate::init()
{
    root = std::make_unique<QTemporaryDir>();
    for (int i = 1; i <= 4; ++i) {
        PictureFiles::WriteJpeg(Path(QStringLiteral("in/%1.jpg").arg(i)), i, 80, 60);
    }
}

void tst_CliUpdate::nothingHasChanged()
{
    COMPARE_COUNTS(Update({}), 4, 0, 0, 0);
    const QString result = Path(QStringLiteral("out/1.jpg"));
    const QDateTime time = QFileInfo(result).lastModified();
    COMPARE_COUNTS(Update({}), 0, 4, 0, 0);
    QCOMPARE(last.exitCode, 0);
    QCOMPARE(QFileInfo(result).lastModified(), time);
    const CliRun shown = Run(QStringLiteral("run in -o out --update"));
    QVERIFY2(shown.err.contains("Unchanged           4\n"), shown.err.constData());
    QVERIFY2(!shown.err.contains("[1/4]"), shown.err.constData());
    QCOMPARE(QDir(Path(QStringLiteral("out"))).entryList(QDir::Files | QDir::Hidden).size(), 5);
}

void tst_CliUpdate::whatChangesMakesAnew_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("written");
    QTest::newRow("size") << QStringLiteral("--size 40") << QStringLiteral("--size 41") << 4;
    QTest::newRow("quality") << QString() << QStringLiteral("--quality 50") << 4;
    QTest::newRow("default quality said") << QString() << QStringLiteral("--quality 85") << 4;
    QTest::newRow("effect") << QStringLiteral("--effect sepia") << QStringLiteral("--effect grayscale") << 4;
    QTest::newRow("parameter") << QStringLiteral("--effect blur:sigma=1") << QStringLiteral("--effect blur:sigma=2")
                               << 4;
    QTest::newRow("order of effects") << QStringLiteral("--effect sepia --effect invert")
                                      << QStringLiteral("--effect invert --effect sepia") << 4;
    QTest::newRow("crop") << QString() << QStringLiteral("--crop ratio:1x1") << 4;
    QTest::newRow("policy") << QString() << QStringLiteral("--on-name-exists rename") << 0;
    QTest::newRow("workers") << QString() << QStringLiteral("--workers 1") << 0;
    QTest::newRow("name that is the same") << QString() << QStringLiteral("--name original") << 0;
}

void tst_CliUpdate::whatChangesMakesAnew()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(int, written);
    COMPARE_COUNTS(Update(before), 4, 0, 0, 0);
    COMPARE_COUNTS(Update(after), written, 4 - written, 0, 0);
    COMPARE_COUNTS(Update(after), 0, 4, 0, 0);
    QCOMPARE(Results().size(), 4);
}

void tst_CliUpdate::filesOfTheJobCount_data()
{
    QTest::addColumn<QString>("options");
    QTest::newRow("watermark") << QStringLiteral("--effect watermark-image:file=mark.jpg");
    QTest::newRow("background") << QStringLiteral("--frame 20 --background image:mark.jpg");
}

void tst_CliUpdate::filesOfTheJobCount()
{
    QFETCH(QString, options);
    const QString mark = Path(QStringLiteral("mark.jpg"));
    PictureFiles::WriteJpeg(mark, 1, 20, 20);
    COMPARE_COUNTS(Update(options), 4, 0, 0, 0);
    Age(mark);
    COMPARE_COUNTS(Update(options), 0, 4, 0, 0);
    PictureFiles::WriteJpeg(mark, 2, 20, 20);
    COMPARE_COUNTS(Update(options), 4, 0, 0, 0);
}

void tst_CliUpdate::contentsCanCount()
{
    COMPARE_COUNTS(Update(QStringLiteral("--checksum")), 4, 0, 0, 0);
    Age(Path(QStringLiteral("in/1.jpg")));
    COMPARE_COUNTS(Update(QStringLiteral("--checksum")), 0, 4, 0, 0);
    COMPARE_COUNTS(Update({}), 1, 3, 0, 0);
}

void tst_CliUpdate::equalSizesAndTimesAreNotEnoughForContents()
{
    COMPARE_COUNTS(Update(QStringLiteral("--checksum")), 4, 0, 0, 0);
    ChangeSilently(Path(QStringLiteral("in/1.jpg")));
    COMPARE_COUNTS(Update({}), 0, 4, 0, 0);
    COMPARE_COUNTS(Update(QStringLiteral("--checksum")), 1, 3, 0, 0);
    ChangeSilently(Path(QStringLiteral("out/2.jpg")));
    COMPARE_COUNTS(Update({}), 0, 4, 0, 0);
    COMPARE_COUNTS(Update(QStringLiteral("--checksum")), 0, 3, 1, 0); // A result that somebody has changed.
}

void tst_CliUpdate::otherFilesAreNotReplaced()
{
    PictureFiles::WriteJpeg(Path(QStringLiteral("out/1.jpg")), 77, 30, 30);
    const QByteArray content = ContentOf(Path(QStringLiteral("out/1.jpg")));
    for (int i = 0; i < 2; ++i) {
        COMPARE_COUNTS(Update(QStringLiteral("--on-name-exists skip")), i == 0 ? 3 : 0, i == 0 ? 0 : 3, 1, 0);
        QCOMPARE(ContentOf(Path(QStringLiteral("out/1.jpg"))), content);
    }
    COMPARE_COUNTS(Update(QStringLiteral("--on-name-exists rename")), 1, 3, 0, 0);
    COMPARE_COUNTS(Update(QStringLiteral("--on-name-exists rename")), 0, 4, 0, 0);
    COMPARE_COUNTS(Update(QStringLiteral("--on-name-exists rename --size 10")), 4, 0, 0, 0);
    QCOMPARE(Results(), QStringList({QStringLiteral("1 (2).jpg"), QStringLiteral("1.jpg"), QStringLiteral("2.jpg"),
                                     QStringLiteral("3.jpg"), QStringLiteral("4.jpg")}));
    QCOMPARE(ContentOf(Path(QStringLiteral("out/1.jpg"))), content);
}

void tst_CliUpdate::changedResultsAreNotReplaced()
{
    COMPARE_COUNTS(Update({}), 4, 0, 0, 0);
    PictureFiles::WriteJpeg(Path(QStringLiteral("out/1.jpg")), 78, 31, 31);
    const QByteArray content = ContentOf(Path(QStringLiteral("out/1.jpg")));
    COMPARE_COUNTS(Update(QStringLiteral("--size 20 --on-name-exists skip")), 3, 0, 1, 0);
    QCOMPARE(ContentOf(Path(QStringLiteral("out/1.jpg"))), content);
    QVERIFY(QFile::remove(Path(QStringLiteral("out/1.jpg"))));
    COMPARE_COUNTS(Update(QStringLiteral("--size 20 --on-name-exists skip")), 1, 3, 0, 0);
}

void tst_CliUpdate::linkInPlaceOfAResult()
{
    COMPARE_COUNTS(Update({}), 4, 0, 0, 0);
    const QString moved = Path(QStringLiteral("moved.jpg"));
    QVERIFY(QFile::rename(Path(QStringLiteral("out/1.jpg")), moved));
    if (!MakeLink(moved, Path(QStringLiteral("out/1.jpg")))) {
        QSKIP("This system makes no links.");
    }
    const QByteArray content = ContentOf(moved);
    COMPARE_COUNTS(Update(QStringLiteral("--size 20 --on-name-exists skip")), 3, 0, 1, 0);
    QCOMPARE(ContentOf(moved), content);
}

// A new input in front shifts all numbers: every result is made anew under its new name, in place of the old one.
void tst_CliUpdate::namesAreThoseOfTheWholeJob()
{
    const QString numbered = QStringLiteral("--name number ");
    COMPARE_COUNTS(Update(numbered), 4, 0, 0, 0);
    const QByteArray first = ContentOf(Path(QStringLiteral("out/001.jpg")));
    QVERIFY(!first.isEmpty());
    PictureFiles::WriteJpeg(Path(QStringLiteral("in/0.jpg")), 9, 80, 60);
    COMPARE_COUNTS(Update(numbered), 5, 0, 0, 0);
    QCOMPARE(Results().size(), 5);
    QCOMPARE(ContentOf(Path(QStringLiteral("out/002.jpg"))), first);
    QVERIFY(QFile::remove(Path(QStringLiteral("in/0.jpg"))));
    COMPARE_COUNTS(Update(numbered), 4, 0, 0, 0);
    QCOMPARE(ContentOf(Path(QStringLiteral("out/001.jpg"))), first);
    QVERIFY2(last.err.contains("1 result is left from an input that is gone"), last.err.constData());
    QVERIFY2(last.err.contains("/out/005.jpg\n"), last.err.constData());
}

// A new input in front gives all later ones another number, which a watermark may show.
void tst_CliUpdate::numbersInPicturesCount()
{
    const QString numbered = QStringLiteral("--effect watermark-text:text={number},tokens=true");
    const QString named = QStringLiteral("--effect watermark-text:text={name},tokens=true");
    COMPARE_COUNTS(Update(numbered), 4, 0, 0, 0);
    PictureFiles::WriteJpeg(Path(QStringLiteral("in/0.jpg")), 9, 80, 60);
    COMPARE_COUNTS(Update(numbered), 5, 0, 0, 0);
    COMPARE_COUNTS(Update(named), 5, 0, 0, 0);
    QVERIFY(QFile::remove(Path(QStringLiteral("in/0.jpg"))));
    COMPARE_COUNTS(Update(named), 0, 4, 0, 0);
}

void tst_CliUpdate::severalResultsOfEachPicture()
{
    QCOMPARE(Run(QStringLiteral("create large.xml -o x --size 60")).exitCode, 0);
    QCOMPARE(Run(QStringLiteral("create small.xml -o x --size 20")).exitCode, 0);
    const auto update = [this](const QString& more) {
        last = Run(QStringLiteral("run large.xml small.xml in -o out --json --update ") + more);
        return CountsOf(last);
    };
    COMPARE_COUNTS(update({}), 8, 0, 0, 0);
    COMPARE_COUNTS(update({}), 0, 8, 0, 0);
    PictureFiles::WriteJpeg(Path(QStringLiteral("in/2.jpg")), 30, 80, 60);
    COMPARE_COUNTS(update({}), 2, 6, 0, 0);
    QVERIFY(QFile::remove(Path(QStringLiteral("small.xml"))));
    QCOMPARE(Run(QStringLiteral("create small.xml -o x --size 30")).exitCode, 0);
    QVERIFY(QFile::remove(Path(QStringLiteral("in/3.jpg"))));
    COMPARE_COUNTS(update(QStringLiteral("--delete-orphans")), 3, 3, 0, 0);
    QVERIFY2(last.err.contains("2 results were removed"), last.err.constData());
    QCOMPARE(Results().size(), 6);
}

void tst_CliUpdate::orphansAreListedAndRemoved()
{
    PictureFiles::WriteJpeg(Path(QStringLiteral("in/more/5.jpg")), 5, 80, 60);
    const QString options = QStringLiteral("--structure input ");
    COMPARE_COUNTS(Update(options), 5, 0, 0, 0);
    QVERIFY(QFile::remove(Path(QStringLiteral("in/more/5.jpg"))));
    QVERIFY(QFile::remove(Path(QStringLiteral("in/2.jpg"))));
    for (int i = 0; i < 2; ++i) { // Listed until they are removed.
        COMPARE_COUNTS(Update(options), 0, 3, 0, 0);
        QCOMPARE(last.exitCode, 0);
        QVERIFY2(last.err.contains("2 results are left from inputs that are gone; --delete-orphans removes them:\n"),
                 last.err.constData());
        QCOMPARE(Results().size(), 5);
    }
    COMPARE_COUNTS(Update(options + QStringLiteral("--delete-orphans")), 0, 3, 0, 0);
    QVERIFY2(last.err.contains("2 results were removed"), last.err.constData());
    QCOMPARE(Results(),
             QStringList({QStringLiteral("in/1.jpg"), QStringLiteral("in/3.jpg"), QStringLiteral("in/4.jpg")}));
    QVERIFY(!QFileInfo::exists(Path(QStringLiteral("out/in/more"))));
    COMPARE_COUNTS(Update(options), 0, 3, 0, 0);
    QVERIFY2(!last.err.contains("gone"), last.err.constData());
}

void tst_CliUpdate::orphansStayIfInputsCannotBeRead()
{
    COMPARE_COUNTS(Update({}), 4, 0, 0, 0);
    QVERIFY(QFile::remove(Path(QStringLiteral("in/2.jpg"))));
    Update(QStringLiteral("no-such-folder --delete-orphans"));
    QCOMPARE(Results().size(), 4);
    COMPARE_COUNTS(Update(QStringLiteral("--delete-orphans")), 0, 3, 0, 0);
    QCOMPARE(Results().size(), 3);
}

// Jobs may share an output folder, with a part of the inputs or other names.
void tst_CliUpdate::otherJobsHaveNoOrphans()
{
    COMPARE_COUNTS(Update(QStringLiteral("--size 20 --prefix text:small")), 4, 0, 0, 0);
    COMPARE_COUNTS(Update(QStringLiteral("--size 40 --prefix text:large --delete-orphans")), 4, 0, 0, 0);
    const CliRun part = Run(QStringLiteral("run in/1.jpg -o out --json --update --size 40 --prefix text:large "
                                           "--delete-orphans"));
    QVERIFY2(part.exitCode == 0, part.err.constData());
    QVERIFY2(!part.err.contains("removed"), part.err.constData());
    QCOMPARE(Results().size(), 8);
    COMPARE_COUNTS(Update(QStringLiteral("--size 20 --prefix text:small")), 0, 4, 0, 0);
    COMPARE_COUNTS(Update(QStringLiteral("--size 40 --prefix text:large")), 0, 4, 0, 0);
}

void tst_CliUpdate::changedOrphansStay()
{
    COMPARE_COUNTS(Update({}), 4, 0, 0, 0);
    QVERIFY(QFile::remove(Path(QStringLiteral("in/2.jpg"))));
    PictureFiles::WriteJpeg(Path(QStringLiteral("out/2.jpg")), 50, 10, 10);
    COMPARE_COUNTS(Update(QStringLiteral("--delete-orphans")), 0, 3, 0, 0);
    QCOMPARE(Results().size(), 4);
}

void tst_CliUpdate::brokenRecordCountsAsNone_data()
{
    QTest::addColumn<QByteArray>("find");
    QTest::addColumn<QByteArray>("replacement");
    QTest::newRow("empty") << QByteArray() << QByteArray();
    QTest::newRow("no JSON") << QByteArray() << QByteArray("xyz\n");
    QTest::newRow("future version") << QByteArray("{\"record\":1,") << QByteArray("{\"record\":2,");
    QTest::newRow("line missing") << QByteArray("\"results\":4") << QByteArray("\"results\":5");
    QTest::newRow("path that leads out") << QByteArray("\"path\":\"1.jpg\"") << QByteArray("\"path\":\"../1.jpg\"");
    QTest::newRow("absolute path") << QByteArray("\"path\":\"1.jpg\"") << QByteArray("\"path\":\"/1.jpg\"");
    QTest::newRow("cut off") << QByteArray("}\n{") << QByteArray("}\n{\"path\"");
}

void tst_CliUpdate::brokenRecordCountsAsNone()
{
    QFETCH(QByteArray, find);
    QFETCH(QByteArray, replacement);
    COMPARE_COUNTS(Update({}), 4, 0, 0, 0);
    const QString path = Path(QStringLiteral("out/.velkora-batch-results"));
    QByteArray text = ContentOf(path);
    QVERIFY(find.isEmpty() || text.contains(find));
    text = find.isEmpty() ? replacement : text.replace(find, replacement);
    QFile record(path);
    QVERIFY(record.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(record.write(text), text.size());
    record.close();
    const QByteArray result = ContentOf(Path(QStringLiteral("out/1.jpg")));
    COMPARE_COUNTS(Update(QStringLiteral("--size 20 --on-name-exists skip")), 0, 0, 4, 0);
    QVERIFY2(last.err.contains("the record of earlier results was ignored: it is damaged"), last.err.constData());
    QCOMPARE(ContentOf(Path(QStringLiteral("out/1.jpg"))), result);
    COMPARE_COUNTS(Update(QStringLiteral("--size 20 --on-name-exists overwrite")), 4, 0, 0, 0);
    COMPARE_COUNTS(Update(QStringLiteral("--size 20")), 0, 4, 0, 0);
}

void tst_CliUpdate::failedPicturesAreTriedAgain()
{
    QFile broken(Path(QStringLiteral("in/1.jpg")));
    const QByteArray whole = ContentOf(broken.fileName());
    QVERIFY(broken.open(QIODevice::WriteOnly | QIODevice::Truncate));
    broken.write("no picture");
    broken.close();
    for (int i = 0; i < 2; ++i) {
        const Counts counts = Update({});
        QCOMPARE(counts.written + counts.unchanged, 3);
        QCOMPARE(last.exitCode, 1);
    }
    QVERIFY(broken.open(QIODevice::WriteOnly | QIODevice::Truncate));
    broken.write(whole);
    broken.close();
    COMPARE_COUNTS(Update({}), 1, 3, 0, 0);
    QCOMPARE(last.exitCode, 0);
}

void tst_CliUpdate::warningsAreToldAgain()
{
    QVERIFY(QDir(Path(QStringLiteral("in"))).removeRecursively());
    QVERIFY(QDir(root->path()).mkdir(QStringLiteral("in")));
    QVERIFY(QFile::copy(QStringLiteral(PAGES_DATA "/two-pages.tif"), Path(QStringLiteral("in/pages.tif"))));
    COMPARE_COUNTS(Update({}), 1, 0, 0, 0);
    const QByteArray warning = "\"event\":\"warning\"";
    QCOMPARE(last.out.count(warning), 1);
    COMPARE_COUNTS(Update({}), 0, 1, 0, 0);
    QCOMPARE(last.out.count(warning), 1);
    COMPARE_COUNTS(Update(QStringLiteral("--strict")), 0, 0, 0, 1);
    QCOMPARE(last.exitCode, 1);
}

void tst_CliUpdate::reportNamesUnchangedResults()
{
    COMPARE_COUNTS(Update({}), 4, 0, 0, 0);
    Age(Path(QStringLiteral("in/2.jpg")));
    COMPARE_COUNTS(Update(QStringLiteral("--report report.csv")), 1, 3, 0, 0);
    const QByteArray report = ContentOf(Path(QStringLiteral("report.csv")));
    QCOMPARE(report.count("unchanged"), 3);
    QCOMPARE(report.count("written"), 1);
    QCOMPARE(last.out.count("\"event\":\"unchanged\""), 3);
}

// An output folder within the inputs: results of the last update are inputs of the next one, which reads them.
void tst_CliUpdate::inputsAreNeverReplaced()
{
    const auto run = [this](const QString& more) {
        last = Run(QStringLiteral("run in in/out/1.jpg -o in/out --json --update --on-name-exists skip ") + more);
        return CountsOf(last);
    };
    last = Run(QStringLiteral("run in -o in/out --json --update"));
    COMPARE_COUNTS(CountsOf(last), 4, 0, 0, 0);
    const QByteArray result = ContentOf(Path(QStringLiteral("in/out/1.jpg")));
    run(QStringLiteral("--size 20"));
    QCOMPARE(ContentOf(Path(QStringLiteral("in/out/1.jpg"))), result);
}

void tst_CliUpdate::wrongCombinations_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("--checksum") << QStringLiteral("run in -o out --checksum")
                                << QByteArray("--checksum needs --update");
    QTest::newRow("--delete-orphans") << QStringLiteral("run in -o out --delete-orphans")
                                      << QByteArray("--delete-orphans needs --update");
    for (const char* other : {"--in-place", "--resume", "--dry-run"}) {
        QTest::newRow(other) << QStringLiteral("run in -o out --update ") + QLatin1String(other)
                             << QByteArray("--update and ") + other + " contradict each other; remove one of them";
    }
}

void tst_CliUpdate::wrongCombinations()
{
    QFETCH(QString, arguments);
    QFETCH(QByteArray, message);
    const CliRun run = Run(arguments);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.err.contains(message), run.err.constData());
    QVERIFY(!QFileInfo::exists(Path(QStringLiteral("out"))));
}

QTEST_GUILESS_MAIN(tst_CliUpdate)
#include "tst_cliupdate.moc"
