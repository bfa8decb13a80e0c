// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliRun.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"

#include <QtTest>

/// Saved jobs on the command line: wherever they stand and whatever they are called, and what they hold that this
/// version does not know.
class tst_CliSavedJobs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void jobsAreKnownByContent_data();
    void jobsAreKnownByContent();
    void jobsAreNoPictures_data();
    void jobsAreNoPictures();
    void jobsInFoldersAreNoPictures();
    void otherFilesAreNoJobs_data();
    void otherFilesAreNoJobs();
    void unknownPartsAreTold_data();
    void unknownPartsAreTold();
    void manyUnknownPartsAreCounted();
    void knownPartsAreSilent();

private:
    QString Path(const QString& name) const { return root->filePath(name); }
    void Write(const QString& name, const QByteArray& content = QByteArray()) const;
    QByteArray SavedJob() const;
    CliRun Run(const QString& arguments) const
    {
        return CliRun::Of(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts), root->path());
    }

    std::unique_ptr<QTemporaryDir> root;
};

void tst_CliSavedJobs::init()
{
    root = std::make_unique<QTemporaryDir>();
    // Enough to know their formats without a worker.
    Write(QStringLiteral("photos/1.jpg"), "\xFF\xD8\xFF\xE0");
    Write(QStringLiteral("photos/2.png"), "\x89PNG\r\n\x1A\n");
    QCOMPARE(Run(QStringLiteral("create good.xml -o web --size 320")).exitCode, 0);
}

void tst_CliSavedJobs::Write(const QString& name, const QByteArray& content) const
{
    QVERIFY(QDir().mkpath(QFileInfo(Path(name)).path()));
    QFile file(Path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

QByteArray tst_CliSavedJobs::SavedJob() const
{
    QFile file(Path(QStringLiteral("good.xml")));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_CliSavedJobs::jobsAreKnownByContent_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("before");
    const auto row = [](const char* name, const char* before) {
        QTest::addRow("%s after %d bytes", name, int(qstrlen(before)))
            << QString::fromLatin1(name) << QByteArray(before);
    };
    row("preset.job", "");
    row("preset", "");
    row("preset.XML", "");
    row("preset.jpg", "");
    row("preset.job", "\xEF\xBB\xBF");
    row("preset.job", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    row("preset.job", "\n  <!-- for the web -->\n");
}

void tst_CliSavedJobs::jobsAreKnownByContent()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, before);
    Write(name, before + SavedJob());
    const CliRun show = Run(QStringLiteral("show %1 photos").arg(name));
    QVERIFY2(show.exitCode == 0, show.err.constData());
    QVERIFY2(show.out.contains("size                 320px\n"), show.out.constData());
    QVERIFY2(show.out.startsWith("Inputs: 2 pictures\n"), show.out.constData());
    const CliRun plan = Run(QStringLiteral("plan %1 photos --quiet").arg(name));
    QVERIFY2(plan.out.contains("photos/1.jpg"), plan.err.constData());
    QVERIFY2(!plan.out.contains(name.toUtf8()), plan.out.constData());
}

void tst_CliSavedJobs::jobsAreNoPictures_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("job");
    const auto row = [](const char* arguments, const char* job) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments) << QString::fromLatin1(job);
    };
    row("run photos good.xml -o out", "good.xml");
    row("plan photos good.xml -o out", "good.xml");
    row("show photos good.xml", "good.xml");
    row("run photos preset.job -o out", "preset.job");
    row("run photos preset.jpg -o out", "preset.jpg");
    row("run good.xml photos preset.job -o out", "preset.job");
    row("show good.xml preset.job", "preset.job");
    row("create new.xml good.xml photos -o out", "good.xml");
    row("create new.xml --from good.xml preset.job -o out", "preset.job");
}

void tst_CliSavedJobs::jobsAreNoPictures()
{
    QFETCH(QString, arguments);
    QFETCH(QString, job);
    Write(QStringLiteral("preset.job"), SavedJob());
    Write(QStringLiteral("preset.jpg"), SavedJob());
    const CliRun run = Run(arguments);
    QCOMPARE(run.exitCode, 2);
    QVERIFY(run.out.isEmpty());
    QCOMPARE(run.Err(),
             QStringLiteral("velkora-batch: %1 is a saved job, not a picture. Saved jobs may be given: as "
                            "the first arguments of run and plan, one as the first argument of show, or to create "
                            "with --from.\n")
                 .arg(QFileInfo(Path(job)).absoluteFilePath()));
    QVERIFY(!QFile::exists(Path(QStringLiteral("out"))));
    QVERIFY(!QFile::exists(Path(QStringLiteral("new.xml"))));
}

// A wildcard that takes everything takes jobs as well; the pictures beside them are wanted all the same.
void tst_CliSavedJobs::jobsInFoldersAreNoPictures()
{
    Write(QStringLiteral("photos/web.job"), SavedJob());
    Write(QStringLiteral("photos/3.picture"));
    const CliRun show =
        CliRun::Of({QStringLiteral("show"), QStringLiteral("photos"), QStringLiteral("--include"), QStringLiteral("*")},
                   root->path());
    QCOMPARE(show.exitCode, 1);
    QVERIFY2(show.out.startsWith("Inputs: 3 pictures\n"), show.out.constData());
    QVERIFY2(show.err.contains("photos/web.job is a saved job, not a picture; it is left out."), show.err.constData());
    QVERIFY2(!show.out.contains("web.job"), show.out.constData());
    // By extension alone nobody has asked for it.
    const CliRun usual = Run(QStringLiteral("show photos"));
    QCOMPARE(usual.exitCode, 0);
    QVERIFY2(usual.err.isEmpty(), usual.err.constData());
}

void tst_CliSavedJobs::otherFilesAreNoJobs_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("other XML") << QByteArray("<!DOCTYPE other>\n<root/>");
    QTest::newRow("no type") << QByteArray("<root><output/></root>");
    QTest::newRow("text") << QByteArray("my <!DOCTYPE batch> notes");
    QTest::newRow("a picture that holds a job") << QByteArray("\xFF\xD8\xFF\xE1") + "<!DOCTYPE batch><root/>";
    QTest::newRow("no text") << QByteArray(5000, '\0');
    QTest::newRow("blanks without end") << QByteArray(5000, ' ');
}

void tst_CliSavedJobs::otherFilesAreNoJobs()
{
    QFETCH(QByteArray, content);
    Write(QStringLiteral("3.picture"), content);
    for (const char* arguments : {"show 3.picture photos", "show photos 3.picture"}) {
        const CliRun show = Run(QLatin1String(arguments));
        QVERIFY2(show.exitCode == 0, show.err.constData());
        QVERIFY2(show.out.startsWith("Inputs: 3 pictures\n"), show.out.constData());
    }
}

void tst_CliSavedJobs::unknownPartsAreTold_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("wanted");
    const auto row = [](const char* name, const char* line, const char* wanted) {
        QTest::newRow(name) << QString::fromLatin1(line) << QString::fromLatin1(wanted);
    };
    row("element of the output", "<output><folder fileName=\"/x\"/><watermark text=\"Ann\"/></output>",
        "line 3: this version does not know the element \"watermark\" in \"output\", and ignores it.");
    row("with elements of its own", "<output><folder fileName=\"/x\"/><layers><layer id=\"1\"/></layers></output>",
        "line 3: this version does not know the element \"layers\" in \"output\", and ignores it.");
    row("attribute of the crop", "<output><folder fileName=\"/x\"/><crop cropType=\"0\" cropTurn=\"1\"/></output>",
        "line 3: this version does not know the attribute \"cropTurn\" of \"crop\", and ignores it.");
    row("attribute of the root's child", "<output version=\"2\"><folder fileName=\"/x\"/></output>",
        "line 3: this version does not know the attribute \"version\" of \"output\", and ignores it.");
    row("element of the root", "<schedule at=\"12:00\"/><output><folder fileName=\"/x\"/></output>",
        "line 3: this version does not know the element \"schedule\" in \"root\", and ignores it.");
    row("attribute of an input",
        "<input><inputElement inputText=\"1.jpg\" fileName=\"/1.jpg\" type=\"1\" page=\"2\"/></input>"
        "<output><folder fileName=\"/x\"/></output>",
        "line 3: this version does not know the attribute \"page\" of \"inputElement\", and ignores it.");
    row("attribute of an effect",
        "<style><effect UID=\"sepia\" enabled=\"1\" mask=\"sky\"/></style>"
        "<output><folder fileName=\"/x\"/></output>",
        "line 3: this version does not know the attribute \"mask\" of \"effect\", and ignores it.");
    row("twice the same",
        "<style><effect UID=\"sepia\" mask=\"sky\"/><effect UID=\"blur\" mask=\"sky\"/></style>"
        "<output><folder fileName=\"/x\"/></output>",
        "line 3: this version does not know the attribute \"mask\" of \"effect\", and ignores it.");
    row("a name of another place", "<output><folder fileName=\"/x\" format=\"JPEG\"/></output>",
        "line 3: this version does not know the attribute \"format\" of \"folder\", and ignores it.");
    row("with a prefix", "<output><folder fileName=\"/x\"/><new:crop/></output>",
        "line 3: this version does not know the element \"new:crop\" in \"output\", and ignores it.");
}

void tst_CliSavedJobs::unknownPartsAreTold()
{
    QFETCH(QString, line);
    QFETCH(QString, wanted);
    Write(QStringLiteral("new.xml"), "<!DOCTYPE batch>\n<root>\n" + line.toUtf8() + "\n</root>\n");
    for (const char* arguments :
         {"show new.xml", "show new.xml photos --quiet", "create - --from new.xml", "plan new.xml photos"}) {
        const CliRun run = Run(QLatin1String(arguments));
        const QStringList lines = run.Err().split(QLatin1Char('\n')).filter(QStringLiteral("does not know"));
        QVERIFY2(lines.size() == 1, run.err.constData());
        QVERIFY2(lines.first().startsWith(QStringLiteral("velkora-batch: new.xml, ")), run.err.constData());
        QVERIFY2(lines.first().contains(wanted), run.err.constData());
    }
    QCOMPARE(Run(QStringLiteral("show new.xml")).exitCode, 0);
}

void tst_CliSavedJobs::manyUnknownPartsAreCounted()
{
    QByteArray parts;
    for (int i = 0; i < 50; ++i) {
        parts += "<part" + QByteArray::number(i) + "/>";
    }
    Write(QStringLiteral("new.xml"), "<!DOCTYPE batch>\n<root>" + parts + "</root>\n");
    const CliRun run = Run(QStringLiteral("show new.xml"));
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.err.count("does not know the element"), 10);
    QVERIFY2(
        run.err.contains("velkora-batch: new.xml: this version does not know 40 other elements and attributes, and "
                         "ignores them.\n"),
        run.err.constData());
}

void tst_CliSavedJobs::knownPartsAreSilent()
{
    QFile profile(Path(QStringLiteral("some.icc")));
    QVERIFY(profile.open(QIODevice::WriteOnly));
    profile.write(QByteArray(36, '\0') + "acsp" + QByteArray(100, '\0'));
    profile.close();
    QCOMPARE(
        Run(QStringLiteral("create full.xml photos -o out --job-name Web --structure input --format jpeg "
                           "--format-option quality=90 --icc some.icc --prefix date --name number:1:3 --suffix "
                           "text:web --prefix-separator _ --suffix-separator _ --size 20cm --side short --resize "
                           "fit --crop fill:15x10cm --crop-position top --frame 10 --frame-size 800x600 "
                           "--background image:photos/1.jpg --background-opacity 0.5 --shadow drop --effect sepia"))
            .exitCode,
        0);
    const CliRun full = Run(QStringLiteral("show full.xml"));
    QVERIFY2(full.exitCode == 0 && full.err.isEmpty(), full.err.constData());
    Write(QStringLiteral("old.xml"),
          "<!DOCTYPE batch><root name=\"a\"><output><crop cropEnabled=\"1\" cropWidth=\"80\"/></output></root>");
    const CliRun old = Run(QStringLiteral("show old.xml"));
    QVERIFY2(old.exitCode == 0 && old.err.isEmpty(), old.err.constData());
}

QTEST_GUILESS_MAIN(tst_CliSavedJobs)
#include "tst_clisavedjobs.moc"
