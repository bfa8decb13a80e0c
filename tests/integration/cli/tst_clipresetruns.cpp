// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureFiles.h"
#include "PresetStage.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"

#include <QDir>
#include <QImage>
#include <QtTest>

#include <memory>

/// Runs of the real command with the real server, by presets.
class tst_CliPresetRuns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void jobsNeedNoOutput();
    void presetsAreRun();
    void optionsOverride();
    void presetsAreShownPlannedAndMadeJobs();
    void outputsMayBeRelative_data();
    void outputsMayBeRelative();
    void outputsOfJobsMayBeRelative();
    void absentOutputsAreAskedFor();
    void inputsOfAPresetDoNotCount();
    void usersHaveAFolderOfTheirOwn();
    void presetsComeAlong_data();
    void presetsComeAlong();
    void usersPresetsWin();

private:
    std::unique_ptr<PresetStage> stage;
};

namespace {

const QByteArray wrongSettings = "<!DOCTYPE batch><root><output><folderStructure type=\"9\"/></output></root>";

} // namespace

void tst_CliPresetRuns::init()
{
    stage = std::make_unique<PresetStage>();
    PictureFiles::WriteJpeg(stage->Path(QStringLiteral("photos/1.jpg")), 1);
    PictureFiles::WriteJpeg(stage->Path(QStringLiteral("photos/2.jpg")), 2);
}

void tst_CliPresetRuns::jobsNeedNoOutput()
{
    const CliRun create = stage->Run(QStringLiteral("create job.xml photos --size 16"));
    QVERIFY2(create.exitCode == 0, create.err.constData());
    QCOMPARE(create.err,
             QByteArray("job.xml: a job of 2 pictures, without an output folder; give --output to run or plan.\n"));
    const CliRun without = stage->Run(QStringLiteral("run job.xml"));
    QCOMPARE(without.exitCode, 2);
    QVERIFY2(without.err.contains("no output folder: use --output DIR"), without.err.constData());
    QCOMPARE(stage->Run(QStringLiteral("run job.xml -o out")).exitCode, 0);
    QCOMPARE(stage->FilesIn(QStringLiteral("out")).size(), 2);
    // What is wrong for another reason is refused as before.
    stage->Write(stage->Path(QStringLiteral("wrong.xml")), wrongSettings);
    QCOMPARE(stage->Run(QStringLiteral("create other.xml --from wrong.xml")).exitCode, 2);
    QVERIFY(!QFile::exists(stage->Path(QStringLiteral("other.xml"))));
}

void tst_CliPresetRuns::presetsAreRun()
{
    QCOMPARE(stage->Run(QStringLiteral("presets save mine --size 16 --format png --effect invert")).exitCode, 0);
    const CliRun run = stage->Run(QStringLiteral("run --preset mine photos -o out"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(stage->FilesIn(QStringLiteral("out")), QStringList({QStringLiteral("1.png"), QStringLiteral("2.png")}));
    QCOMPARE(QImage(stage->Path(QStringLiteral("out/1.png"))).width(), 16);
    // The letter case of names does not matter.
    QCOMPARE(stage->Run(QStringLiteral("run --preset MINE photos -o other")).exitCode, 0);
    QCOMPARE(stage->FilesIn(QStringLiteral("other")).size(), 2);
}

void tst_CliPresetRuns::optionsOverride()
{
    QCOMPARE(
        stage->Run(QStringLiteral("presets save mine --size 16 --format png -o elsewhere --effect invert")).exitCode,
        0);
    const CliRun run = stage->Run(QStringLiteral("run photos --size 8 -o out --preset mine"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(QImage(stage->Path(QStringLiteral("out/1.png"))).width(), 8);
    QVERIFY(!QFile::exists(stage->Path(QStringLiteral("elsewhere"))));
    const CliRun show = stage->Run(QStringLiteral("show --preset mine --no-effects --effect sepia"));
    QVERIFY2(show.out.contains("sepia") && !show.out.contains("invert"), show.out.constData());
    QVERIFY2(show.out.contains("PNG"), show.out.constData());
}

void tst_CliPresetRuns::presetsAreShownPlannedAndMadeJobs()
{
    QCOMPARE(stage->Run(QStringLiteral("presets save mine --size 16 --format png")).exitCode, 0);
    const CliRun show = stage->Run(QStringLiteral("show --preset mine photos"));
    QVERIFY2(show.out.contains("Inputs: 2 pictures") && show.out.contains("PNG"), show.out.constData());
    const CliRun plan = stage->Run(QStringLiteral("plan --preset mine photos -o out"));
    QVERIFY2(plan.exitCode == 0 && plan.Err().contains(QStringLiteral("2 files")), plan.err.constData());
    QVERIFY2(plan.out.contains("out/1.png"), plan.out.constData());
    QCOMPARE(stage->Run(QStringLiteral("create job.xml --preset mine photos -o out")).exitCode, 0);
    QCOMPARE(stage->Run(QStringLiteral("run job.xml")).exitCode, 0);
    QCOMPARE(stage->FilesIn(QStringLiteral("out")), QStringList({QStringLiteral("1.png"), QStringLiteral("2.png")}));
}

void tst_CliPresetRuns::outputsMayBeRelative_data()
{
    QTest::addColumn<QString>("output");
    QTest::newRow("relative") << QStringLiteral("web");
    QTest::newRow("below") << QStringLiteral("./web/../web");
    QTest::newRow("absolute") << QString();
}

/// A relative output starts where the preset is run, not where it was saved.
void tst_CliPresetRuns::outputsMayBeRelative()
{
    QFETCH(const QString, output);
    const bool isRelative = !output.isEmpty();
    PictureFiles::WriteJpeg(stage->Path(QStringLiteral("a/in.jpg")), 1);
    PictureFiles::WriteJpeg(stage->Path(QStringLiteral("b/in.jpg")), 2);
    const QString given = isRelative ? output : stage->Path(QStringLiteral("fixed"));
    QCOMPARE(stage
                 ->Run({QStringLiteral("presets"), QStringLiteral("save"), QStringLiteral("mine"),
                        QStringLiteral("--output"), given},
                       QStringLiteral("photos"))
                 .exitCode,
             0);
    for (const char* folder : {"a", "b"}) {
        const CliRun run =
            stage->Run({QStringLiteral("run"), QStringLiteral("--preset"), QStringLiteral("mine"),
                        QStringLiteral("in.jpg"), QStringLiteral("--on-name-exists"), QStringLiteral("rename")},
                       QLatin1String(folder));
        QVERIFY2(run.exitCode == 0, run.err.constData());
        QCOMPARE(stage->FilesIn(QLatin1String(folder) + QStringLiteral("/web")).size(), isRelative ? 1 : 0);
    }
    QCOMPARE(stage->FilesIn(QStringLiteral("fixed")).size(), isRelative ? 0 : 2);
    // A job that is made of it has the place where it was made.
    QCOMPARE(stage
                 ->Run({QStringLiteral("create"), QStringLiteral("job.xml"), QStringLiteral("--preset"),
                        QStringLiteral("mine")},
                       QStringLiteral("a"))
                 .exitCode,
             0);
    ZTBatchDocument job;
    QVERIFY(job.Deserialize(QString::fromUtf8(stage->Read(stage->Path(QStringLiteral("a/job.xml"))))));
    QCOMPARE(job.GetOutputSettings()->GetPath(),
             isRelative ? stage->Path(QStringLiteral("a/web")) : stage->Path(QStringLiteral("fixed")));
}

/// As somebody writes them who carries jobs from one machine to another.
void tst_CliPresetRuns::outputsOfJobsMayBeRelative()
{
    stage->Write(stage->Path(QStringLiteral("job.xml")),
                 "<!DOCTYPE batch><root><output><folder fileName=\"results\"/></output></root>");
    const CliRun run =
        stage->Run({QStringLiteral("run"), stage->Path(QStringLiteral("job.xml")), QStringLiteral("1.jpg")},
                   QStringLiteral("photos"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(stage->FilesIn(QStringLiteral("photos/results")), QStringList(QStringLiteral("1.jpg")));
}

void tst_CliPresetRuns::absentOutputsAreAskedFor()
{
    QCOMPARE(stage->Run(QStringLiteral("presets save mine --size 16")).exitCode, 0);
    for (const char* command : {"run", "plan"}) {
        const CliRun run = stage->Run(QLatin1String(command) + QStringLiteral(" --preset mine photos"));
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.contains("no output folder: use --output DIR"), run.err.constData());
    }
}

/// Whoever copies a job into the folder wants its settings.
void tst_CliPresetRuns::inputsOfAPresetDoNotCount()
{
    QCOMPARE(stage->Run(QStringLiteral("create job.xml photos/2.jpg -o out --format png")).exitCode, 0);
    stage->Write(stage->Preset(QStringLiteral("mine")), stage->Read(stage->Path(QStringLiteral("job.xml"))));
    const CliRun run = stage->Run(QStringLiteral("run --preset mine photos/1.jpg"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(stage->FilesIn(QStringLiteral("out")), QStringList(QStringLiteral("1.png")));
}

void tst_CliPresetRuns::usersHaveAFolderOfTheirOwn()
{
#ifdef Q_OS_WIN
    QSKIP("The user's folder there does not come from the environment.");
#endif
    QCOMPARE(stage->RunOfUser(QStringLiteral("presets save mine --size 16")).exitCode, 0);
    QVERIFY(QFile::exists(stage->Path(QStringLiteral("home/.config/velkora-batch/presets/mine.xml"))));
    QCOMPARE(stage->RunOfUser(QStringLiteral("run --preset mine photos -o out")).exitCode, 0);
    QCOMPARE(QImage(stage->Path(QStringLiteral("out/1.jpg"))).width(), 16);
    QVERIFY(stage->Listed(QStringLiteral("mine")).isEmpty());
}

void tst_CliPresetRuns::presetsComeAlong_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QSize>("size");
    QTest::newRow("web") << QStringLiteral("web") << QStringLiteral("in.jpg") << QSize(1600, 1200);
    QTest::newRow("mail") << QStringLiteral("mail") << QStringLiteral("in.jpg") << QSize(1024, 768);
    QTest::newRow("print") << QStringLiteral("print") << QStringLiteral("in.jpg") << QSize(1772, 1358);
    QTest::newRow("thumbnails") << QStringLiteral("thumbnails") << QStringLiteral("in.jpg") << QSize(256, 256);
    QTest::newRow("archive") << QStringLiteral("archive") << QStringLiteral("in.tif") << QSize();
}

void tst_CliPresetRuns::presetsComeAlong()
{
    QFETCH(const QString, name);
    QFETCH(const QString, result);
    QFETCH(const QSize, size);
    PictureFiles::WriteJpeg(stage->Path(QStringLiteral("in.jpg")), 3, 2000, 1500);
    const QJsonObject listed = stage->Listed(name);
    QCOMPARE(listed.value(QStringLiteral("comesAlong")), QJsonValue(true));
    QVERIFY(!listed.value(QStringLiteral("title")).toString().isEmpty());
    QVERIFY(!listed.contains(QStringLiteral("error")));
    const CliRun run = stage->Run(QStringLiteral("run --preset %1 in.jpg -o out").arg(name));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QVERIFY2(!run.err.contains("warning"), run.err.constData());
    QCOMPARE(stage->FilesIn(QStringLiteral("out")), QStringList(result));
    if (size.isValid()) {
        QCOMPARE(QImage(stage->Path(QStringLiteral("out/") + result)).size(), size);
    } else {
        // Nothing is lost: a copy of it has the pixels of the original.
        QCOMPARE(stage->Run(QStringLiteral("run out/in.tif -o back --format png")).exitCode, 0);
        QCOMPARE(stage->Run(QStringLiteral("run in.jpg -o direct --format png")).exitCode, 0);
        QCOMPARE(QImage(stage->Path(QStringLiteral("back/in.png"))),
                 QImage(stage->Path(QStringLiteral("direct/in.png"))));
    }
    if (name == QLatin1String("print")) {
        QCOMPARE(QImage(stage->Path(QStringLiteral("out/in.jpg"))).pixelColor(3, 600).name(),
                 QStringLiteral("#ffffff"));
    }
}

void tst_CliPresetRuns::usersPresetsWin()
{
    QCOMPARE(stage->Run(QStringLiteral("presets save Web --size 16")).exitCode, 0);
    QCOMPARE(stage->Run(QStringLiteral("run --preset web photos -o out")).exitCode, 0);
    QCOMPARE(QImage(stage->Path(QStringLiteral("out/1.jpg"))).width(), 16);
    QVERIFY(stage->Listed(QStringLiteral("web")).isEmpty());
    QCOMPARE(stage->Listed(QStringLiteral("Web")).value(QStringLiteral("comesAlong")), QJsonValue(false));
    const CliRun remove = stage->Run(QStringLiteral("presets remove web"));
    QVERIFY2(remove.exitCode == 0, remove.err.constData());
    QCOMPARE(stage->Listed(QStringLiteral("web")).value(QStringLiteral("comesAlong")), QJsonValue(true));
}

QTEST_GUILESS_MAIN(tst_CliPresetRuns)
#include "tst_clipresetruns.moc"
