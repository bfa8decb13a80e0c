// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliRun.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"
#include "ZTStyle.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

class tst_CliJobs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void versionAndHelp();
    void createWritesTheJob();
    void savedJobsAreOverridden();
    void namesOfJobsStay();
    void jobsWithoutPictures();
    void inputsNamedTwice_data();
    void inputsNamedTwice();
    void jobsGoToStandardOutput();
    void showTellsEverything();
    void filesAreNotReplacedUnasked();
    void namesNeedNoLocale();
    void catalogues();
    void wrongJobsAreExplained_data();
    void wrongJobsAreExplained();
    void problemsAreToldAndCounted();

private:
    QString Path(const QString& name) const { return root->filePath(name); }
    void Write(const QString& name, const QByteArray& content = QByteArray()) const;
    CliRun Run(const QStringList& arguments) const { return CliRun::Of(arguments, root->path()); }
    bool Load(const QString& name, ZTBatchDocument& job) const;

    std::unique_ptr<QTemporaryDir> root;
};

void tst_CliJobs::init()
{
    root = std::make_unique<QTemporaryDir>();
    Write(QStringLiteral("photos/1.jpg"));
    Write(QStringLiteral("photos/2.png"));
}

void tst_CliJobs::Write(const QString& name, const QByteArray& content) const
{
    QVERIFY(QDir().mkpath(QFileInfo(Path(name)).path()));
    QFile file(Path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

bool tst_CliJobs::Load(const QString& name, ZTBatchDocument& job) const
{
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) && job.Deserialize(QString::fromUtf8(file.readAll()));
}

void tst_CliJobs::versionAndHelp()
{
    const CliRun version = Run({QStringLiteral("--version")});
    QCOMPARE(version.exitCode, 0);
    QCOMPARE(version.out.split(' ').value(0), QByteArray("velkora-batch"));
    QCOMPARE(version.out.count('\n'), 1);
    const CliRun verbose = Run({QStringLiteral("--version"), QStringLiteral("--verbose")});
    QCOMPARE(verbose.exitCode, 0);
    QVERIFY(verbose.out.startsWith(version.out));
    QVERIFY2(verbose.out.contains("\nfiles of workers: ") || verbose.out.contains("\nworkers: not confined"),
             verbose.out.constData());
    for (const char* arguments : {"--help", "-h", "create --help", "show -h", "effects --help", "formats --help"}) {
        const CliRun help = Run(QString::fromLatin1(arguments).split(QLatin1Char(' ')));
        QCOMPARE(help.exitCode, 0);
        QVERIFY(help.out.contains("Usage: velkora-batch "));
        QVERIFY(help.err.isEmpty());
    }
}

void tst_CliJobs::createWritesTheJob()
{
    const CliRun run = Run({QStringLiteral("create"), QStringLiteral("job.xml"), QStringLiteral("photos"),
                            QStringLiteral("--output"), QStringLiteral("results"), QStringLiteral("--effect"),
                            QStringLiteral("blur:sigma=2"), QStringLiteral("--size"), QStringLiteral("50%")});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.err, QByteArray("job.xml: a job of 2 pictures.\n"));
    QVERIFY(run.out.isEmpty());
    ZTBatchDocument job;
    QVERIFY(Load(QStringLiteral("job.xml"), job));
    QCOMPARE(job.GetInputModel()->GetFileNodesCount(), 2);
    QCOMPARE(job.GetOutputSettings()->GetPath(), Path(QStringLiteral("results")));
    QCOMPARE(job.GetOutputSettings()->GetImageSizeSettings().unit, 1);
    QCOMPARE(job.GetOutputSettings()->GetNamingTemplate(ZTBatchOutputSettings::PartMiddle),
             ZTBatchOutputSettings::TemplateOriginalName);
    QCOMPARE(job.GetStyle()->GetEffectCount(), 1);
}

void tst_CliJobs::savedJobsAreOverridden()
{
    QCOMPARE(
        Run({QStringLiteral("create"), QStringLiteral("a.xml"), QStringLiteral("photos/1.jpg"), QStringLiteral("-ox"),
             QStringLiteral("--effect"), QStringLiteral("blur"), QStringLiteral("--size"), QStringLiteral("100")})
            .exitCode,
        0);
    QCOMPARE(Run({QStringLiteral("create"), QStringLiteral("b.xml"), QStringLiteral("--from"), QStringLiteral("a.xml"),
                  QStringLiteral("photos/2.png"), QStringLiteral("-oy"), QStringLiteral("--effect"),
                  QStringLiteral("sepia")})
                 .exitCode,
             0);
    ZTBatchDocument job;
    QVERIFY(Load(QStringLiteral("b.xml"), job));
    QCOMPARE(job.GetInputModel()->GetFileNodesCount(), 2);
    QCOMPARE(job.GetOutputSettings()->GetPath(), Path(QStringLiteral("y")));
    QCOMPARE(job.GetOutputSettings()->GetImageSizeSettings().size, 100.0);
    QCOMPARE(job.GetStyle()->GetEffectCount(), 2);
    QCOMPARE(job.GetStyle()->EffectAt(1), QStringLiteral("sepia"));

    QCOMPARE(Run({QStringLiteral("create"), QStringLiteral("c.xml"), QStringLiteral("--from"), QStringLiteral("a.xml"),
                  QStringLiteral("photos/2.png"), QStringLiteral("--no-inputs"), QStringLiteral("--no-effects")})
                 .exitCode,
             0);
    QVERIFY(Load(QStringLiteral("c.xml"), job));
    QCOMPARE(job.GetInputModel()->GetFileNodesCount(), 1);
    QCOMPARE(job.GetStyle()->GetEffectCount(), 0);
}

void tst_CliJobs::namesOfJobsStay()
{
    QCOMPARE(Run({QStringLiteral("create"), QStringLiteral("a.xml"), QStringLiteral("photos"), QStringLiteral("-ox"),
                  QStringLiteral("--job-name"), QStringLiteral("Holidays & \"more\"")})
                 .exitCode,
             0);
    QCOMPARE(Run({QStringLiteral("create"), QStringLiteral("b.xml"), QStringLiteral("--from"), QStringLiteral("a.xml")})
                 .exitCode,
             0);
    const CliRun show = Run({QStringLiteral("show"), QStringLiteral("b.xml")});
    QVERIFY2(show.out.contains("Holidays & \"more\"\n"), show.out.constData());
    QFile saved(Path(QStringLiteral("b.xml")));
    QVERIFY(saved.open(QIODevice::ReadOnly));
    QVERIFY(saved.readAll().contains("name=\"Holidays &amp; &quot;more&quot;\""));
}

void tst_CliJobs::jobsWithoutPictures()
{
    const CliRun create = Run({QStringLiteral("create"), QStringLiteral("a.xml"), QStringLiteral("-ox")});
    QCOMPARE(create.exitCode, 0);
    QCOMPARE(create.err, QByteArray("a.xml: a job without pictures; give them to run or plan, after the job.\n"));
    const CliRun later = Run({QStringLiteral("create"), QStringLiteral("b.xml"), QStringLiteral("--from"),
                              QStringLiteral("a.xml"), QStringLiteral("photos/1.jpg")});
    QCOMPARE(later.exitCode, 0);
    QCOMPARE(later.err, QByteArray("b.xml: a job of 1 picture.\n"));
}

/// The order in which they are named does not matter.
void tst_CliJobs::inputsNamedTwice_data()
{
    QTest::addColumn<QString>("inputs");
    QTest::addColumn<QByteArray>("told");
    QTest::newRow("folder first") << QStringLiteral("photos photos/1.jpg") << QByteArray("photos/1.jpg");
    QTest::newRow("file first") << QStringLiteral("photos/1.jpg photos") << QByteArray();
    QTest::newRow("the same file") << QStringLiteral("photos/1.jpg photos/2.png photos/1.jpg")
                                   << QByteArray("photos/1.jpg");
}

void tst_CliJobs::inputsNamedTwice()
{
    QFETCH(QString, inputs);
    QFETCH(QByteArray, told);
    const QStringList arguments =
        QStringList{QStringLiteral("create"), QStringLiteral("a.xml"), QStringLiteral("-ox")} +
        inputs.split(QLatin1Char(' '));
    const CliRun run = Run(arguments);
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.err.endsWith("a.xml: a job of 2 pictures.\n"), run.err.constData());
    QCOMPARE(run.err.count("is in the job already."), told.isEmpty() ? 0 : 1);
    QVERIFY(run.Err().contains(QString::fromUtf8(told)));
    const CliRun quiet = Run(arguments + QStringList{QStringLiteral("-q"), QStringLiteral("--force")});
    QCOMPARE(quiet.exitCode, 0);
    QVERIFY2(quiet.err.isEmpty(), quiet.err.constData());
}

void tst_CliJobs::jobsGoToStandardOutput()
{
    const CliRun run = Run({QStringLiteral("create"), QStringLiteral("-"), QStringLiteral("photos"),
                            QStringLiteral("-o"), QStringLiteral("x")});
    QCOMPARE(run.exitCode, 0);
    QVERIFY(run.err.isEmpty());
    ZTBatchDocument job;
    QVERIFY(job.Deserialize(QString::fromUtf8(run.out)));
    QCOMPARE(job.GetInputModel()->GetFileNodesCount(), 2);
}

void tst_CliJobs::showTellsEverything()
{
    QCOMPARE(Run({QStringLiteral("create"), QStringLiteral("a.xml"), QStringLiteral("photos"), QStringLiteral("-ox"),
                  QStringLiteral("--effect"), QStringLiteral("blur:sigma=3"), QStringLiteral("--frame"),
                  QStringLiteral("10"), QStringLiteral("--format"), QStringLiteral("webp")})
                 .exitCode,
             0);
    const CliRun run = Run({QStringLiteral("show"), QStringLiteral("a.xml")});
    QCOMPARE(run.exitCode, 0);
    for (const char* part :
         {"Inputs: 2 pictures", "photos/ (2)", "1.jpg", "2.png", "blur:sigma=3", "WebP", "frame                10"}) {
        QVERIFY2(run.out.contains(part), part);
    }
}

void tst_CliJobs::filesAreNotReplacedUnasked()
{
    Write(QStringLiteral("a.xml"), "precious");
    QStringList arguments{QStringLiteral("create"), QStringLiteral("a.xml"), QStringLiteral("photos"),
                          QStringLiteral("-ox")};
    const CliRun refused = Run(arguments);
    QCOMPARE(refused.exitCode, 2);
    QVERIFY(refused.err.contains("a.xml exists; use --force to replace it"));
    QFile file(Path(QStringLiteral("a.xml")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("precious"));
    // Windows does not replace open files.
    file.close();
    arguments.append(QStringLiteral("--force"));
    QCOMPARE(Run(arguments).exitCode, 0);
    ZTBatchDocument job;
    QVERIFY(Load(QStringLiteral("a.xml"), job));
}

void tst_CliJobs::namesNeedNoLocale()
{
    const QString name = QString::fromUtf8("\xC3\xA9t\xC3\xA9 \xF0\x9F\x8C\xBB.jpg");
    Write(QStringLiteral("photos/") + name);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    const CliRun run = CliRun::Of({QStringLiteral("show"), QStringLiteral("photos")}, root->path(), environment);
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.out.contains(name.toUtf8()), run.out.constData());
    QVERIFY2(run.err.isEmpty(), run.err.constData());
}

void tst_CliJobs::catalogues()
{
    const CliRun effects = Run({QStringLiteral("effects")});
    QCOMPARE(effects.exitCode, 0);
    QVERIFY(effects.out.contains("\nwatermark-text\n"));
    QVERIFY(effects.out.contains("a number from -10 to 10 (stops)"));
    const CliRun blur = Run({QStringLiteral("effects"), QStringLiteral("blur"), QStringLiteral("--json")});
    const QJsonArray array = QJsonDocument::fromJson(blur.out).array();
    QCOMPARE(array.size(), 1);
    QCOMPARE(array.first().toObject().value(QStringLiteral("name")).toString(), QStringLiteral("blur"));
    QVERIFY(!array.first().toObject().value(QStringLiteral("parameters")).toArray().isEmpty());

    const CliRun formats = Run({QStringLiteral("formats")});
    QCOMPARE(formats.exitCode, 0);
    QVERIFY(formats.out.contains("JPEG XL (.jxl)"));
    const CliRun json = Run({QStringLiteral("formats"), QStringLiteral("--json")});
    QVERIFY(QJsonDocument::fromJson(json.out).array().size() > 5);
}

void tst_CliJobs::wrongJobsAreExplained_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QByteArray>("job");
    QTest::addColumn<QString>("wanted");
    const QByteArray none;
    const auto row = [](const char* name, const char* arguments, const QByteArray& job, const char* wanted) {
        QTest::newRow(name) << QString::fromLatin1(arguments) << job << QString::fromLatin1(wanted);
    };
    row("no file", "create", none, "JOB.xml INPUT...");
    row("no job's name", "create photos -ox", none, "a name that ends with .xml");
    row("missing input", "create a.xml nothing.jpg -ox", none, "nothing.jpg does not exist");
    row("missing job", "show nothing.xml", none, "nothing.xml cannot be read");
    row("folder as job", "show folder.xml", none, "folder.xml cannot be read");
    row("name that an option has elsewhere", "show photos --json", none,
        "unknown option --json; it is an option of run, watch, plan, effects, formats, presets; \"velkora-batch show "
        "--help\" "
        "lists the options");
    row("option twice", "create a.xml photos -ox --format png --format jpeg", none,
        "--format is given 2 times, but takes one value; remove \"png\" or \"jpeg\"");
    row("wrong option", "create a.xml photos --ouput x", none, "did you mean \"--output\"?");
    row("wrong effect", "create a.xml photos -ox --effect blurr", none, "did you mean \"blur\"?");
    row("cannot be written", "create nowhere/a.xml photos -ox", none, "nowhere/a.xml cannot be written");
    row("not XML", "show job.xml", "<!DOCTYPE batch>\n<root><input></root>", "line 2, column");
    row("other type", "show job.xml", "<!DOCTYPE other>\n<root/>", "<!DOCTYPE batch>");
    row("not text", "show job.xml", "\xFF\xD8\xFF\xE0 JFIF", "it is not UTF-8 text");
    row("empty", "show job.xml", none, "is not a batch job");
    row("entities", "show job.xml", "<!DOCTYPE batch [<!ENTITY a \"b\">]>\n<root/>", "declares what a job must not");
    row("wrong value", "create b.xml --from job.xml",
        "<!DOCTYPE batch><root><input><inputElement inputText=\"a\" fileName=\"/a.jpg\" type=\"1\"/></input><output>"
        "<folder fileName=\"/x\"/><folderStructure type=\"9\"/></output></root>",
        "9");
    row("wrong effect in the job", "create b.xml --from job.xml",
        "<!DOCTYPE batch><root><input><inputElement inputText=\"a\" fileName=\"/a.jpg\" type=\"1\"/></input><style>"
        "<effect UID=\"blurr\" enabled=\"1\"/></style><output><folder fileName=\"/x\"/></output></root>",
        "did you mean \"blur\"?");
}

void tst_CliJobs::wrongJobsAreExplained()
{
    QFETCH(QString, arguments);
    QFETCH(QByteArray, job);
    QFETCH(QString, wanted);
    Write(QStringLiteral("job.xml"), job);
    QVERIFY(QDir(root->path()).mkdir(QStringLiteral("empty")));
    QVERIFY(QDir(root->path()).mkdir(QStringLiteral("folder.xml")));
    const CliRun run = Run(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.Err().contains(wanted), run.err.constData());
    QVERIFY(run.err.startsWith("velkora-batch: "));
    QVERIFY2(!run.err.endsWith("..\n") || run.err.endsWith("...\n"), run.err.constData());
    QVERIFY(run.out.isEmpty());
    QVERIFY(!QFile::exists(Path(QStringLiteral("a.xml"))));
}

void tst_CliJobs::problemsAreToldAndCounted()
{
#ifdef Q_OS_WIN
    QSKIP("A link that Qt makes there is an ordinary file unless its name ends with .lnk.");
#endif
    QVERIFY(QFile::link(QStringLiteral("/nowhere/at/all"), Path(QStringLiteral("photos/lost.jpg"))));
    const CliRun run = Run({QStringLiteral("create"), QStringLiteral("a.xml"), QStringLiteral("photos"),
                            QStringLiteral("-ox"), QStringLiteral("-q")});
    QCOMPARE(run.exitCode, 1);
    QVERIFY(run.err.contains("photos/lost.jpg is a dangling link."));
    QVERIFY(QFile::exists(Path(QStringLiteral("a.xml"))));
}

QTEST_GUILESS_MAIN(tst_CliJobs)
#include "tst_clijobs.moc"
