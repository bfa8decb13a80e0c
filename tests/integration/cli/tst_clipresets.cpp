// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PresetStage.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"

#include <QDir>
#include <QtTest>

#include <memory>

/// How presets are kept: the real command, with presets below a settings folder of its own. Nothing here makes
/// pictures.
class tst_CliPresets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void presetsAreSavedListedAndRemoved();
    void presetsComeFromJobsAndPresets();
    void presetsAreNotReplacedUnasked_data();
    void presetsAreNotReplacedUnasked();
    void unknownPresetsAreNamed_data();
    void unknownPresetsAreNamed();
    void wrongRequestsAreExplained_data();
    void wrongRequestsAreExplained();
    void brokenPresetsAreNamed_data();
    void brokenPresetsAreNamed();
    void foldersThatCannotHoldPresets();
    void presetsThatComeAlongStay();

private:
    std::unique_ptr<PresetStage> stage;
};

namespace {

const QByteArray wrongSettings = "<!DOCTYPE batch><root><output><folderStructure type=\"9\"/></output></root>";

} // namespace

void tst_CliPresets::init()
{
    stage = std::make_unique<PresetStage>();
    stage->Write(stage->Path(QStringLiteral("photos/1.jpg")), {});
    stage->Write(stage->Path(QStringLiteral("photos/2.jpg")), {});
}

void tst_CliPresets::presetsAreSavedListedAndRemoved()
{
    const CliRun save = stage->Run(QStringLiteral("presets save mine --size 16 --format png --job-name Small"));
    QVERIFY2(save.exitCode == 0, save.err.constData());
    QVERIFY2(save.Err().contains(stage->Preset(QStringLiteral("mine"))), save.err.constData());
    ZTBatchDocument job;
    QVERIFY(job.Deserialize(QString::fromUtf8(stage->Read(stage->Preset(QStringLiteral("mine"))))));
    QCOMPARE(job.GetInputModel()->rowCount(), 0);
    QCOMPARE(job.GetOutputSettings()->GetImageSizeSettings().size, 16.0);

    for (const char* arguments : {"presets", "presets list"}) {
        const CliRun list = stage->Run(QLatin1String(arguments));
        QCOMPARE(list.exitCode, 0);
        QVERIFY2(list.out.contains("mine") && list.out.contains("Small"), list.out.constData());
        QVERIFY2(list.err.isEmpty(), list.err.constData());
    }
    const QJsonObject listed = stage->Listed(QStringLiteral("mine"));
    QCOMPARE(listed.value(QStringLiteral("title")).toString(), QStringLiteral("Small"));
    QCOMPARE(listed.value(QStringLiteral("file")).toString(), stage->Preset(QStringLiteral("mine")));
    QCOMPARE(listed.value(QStringLiteral("comesAlong")), QJsonValue(false));
    QVERIFY(!listed.contains(QStringLiteral("error")));

    const CliRun remove = stage->Run(QStringLiteral("presets remove mine"));
    QVERIFY2(remove.exitCode == 0, remove.err.constData());
    QVERIFY(!QFile::exists(stage->Preset(QStringLiteral("mine"))));
    QVERIFY(stage->Listed(QStringLiteral("mine")).isEmpty());
    QCOMPARE(stage->Run(QStringLiteral("presets remove mine")).exitCode, 2);
    QVERIFY(stage->Run(QStringLiteral("presets save quiet -q")).err.isEmpty());
}

void tst_CliPresets::presetsComeFromJobsAndPresets()
{
    QCOMPARE(stage->Run(QStringLiteral("create job.xml photos -o out --size 16 --format png")).exitCode, 0);
    QCOMPARE(stage->Run(QStringLiteral("presets save first --from job.xml")).exitCode, 0);
    ZTBatchDocument job;
    QVERIFY(job.Deserialize(QString::fromUtf8(stage->Read(stage->Preset(QStringLiteral("first"))))));
    QCOMPARE(job.GetInputModel()->rowCount(), 0);
    QCOMPARE(job.GetOutputSettings()->GetPath(), stage->Path(QStringLiteral("out")));
    QCOMPARE(stage->Run(QStringLiteral("presets save second --preset first --size 8 -o here")).exitCode, 0);
    QVERIFY(job.Deserialize(QString::fromUtf8(stage->Read(stage->Preset(QStringLiteral("second"))))));
    QCOMPARE(job.GetOutputSettings()->GetImageSizeSettings().size, 8.0);
    QCOMPARE(job.GetOutputSettings()->GetPath(), QStringLiteral("here"));
    QCOMPARE(stage->Run(QStringLiteral("presets save third --preset second")).exitCode, 0);
    QVERIFY(job.Deserialize(QString::fromUtf8(stage->Read(stage->Preset(QStringLiteral("third"))))));
    QCOMPARE(job.GetOutputSettings()->GetPath(), QStringLiteral("here"));
}

void tst_CliPresets::presetsAreNotReplacedUnasked_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("same") << QStringLiteral("mine");
    QTest::newRow("other letter case") << QStringLiteral("Mine");
}

void tst_CliPresets::presetsAreNotReplacedUnasked()
{
    QFETCH(const QString, name);
    QCOMPARE(stage->Run(QStringLiteral("presets save mine --size 16")).exitCode, 0);
    const QByteArray before = stage->Read(stage->Preset(QStringLiteral("mine")));
    const CliRun refused = stage->Run(QStringLiteral("presets save %1 --size 8").arg(name));
    QCOMPARE(refused.exitCode, 2);
    QVERIFY2(refused.err.contains("exists; use --force to replace it"), refused.err.constData());
    QCOMPARE(stage->Read(stage->Preset(QStringLiteral("mine"))), before);
    QCOMPARE(stage->Run(QStringLiteral("presets save %1 --size 8 --force").arg(name)).exitCode, 0);
    QCOMPARE(stage->FilesIn(QStringLiteral("settings/presets")), QStringList(QStringLiteral("mine.xml")));
    QVERIFY(stage->Read(stage->Preset(QStringLiteral("mine"))) != before);
}

void tst_CliPresets::unknownPresetsAreNamed_data()
{
    QTest::addColumn<QString>("arguments");
    for (const char* arguments :
         {"run photos -o out --preset mien", "plan photos -o out --preset mien", "show --preset mien",
          "create job.xml --preset mien", "presets save other --preset mien", "presets remove mien"}) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments);
    }
}

void tst_CliPresets::unknownPresetsAreNamed()
{
    QFETCH(const QString, arguments);
    QCOMPARE(stage->Run(QStringLiteral("presets save mine --size 16")).exitCode, 0);
    QCOMPARE(stage->Run(QStringLiteral("presets save blue --size 16")).exitCode, 0);
    const CliRun run = stage->Run(arguments);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.err.contains("\"mien\""), run.err.constData());
    QVERIFY2(run.err.contains("did you mean \"mine\"?"), run.err.constData());
    QVERIFY2(run.err.contains("blue"), run.err.constData());
    QVERIFY(run.out.isEmpty());
    QVERIFY(!QFile::exists(stage->Path(QStringLiteral("out"))) &&
            !QFile::exists(stage->Path(QStringLiteral("job.xml"))));
}

void tst_CliPresets::wrongRequestsAreExplained_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("wanted");
    const auto row = [](const char* arguments, const char* wanted) {
        QTest::newRow(arguments) << QString::fromUtf8(arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts)
                                 << QString::fromUtf8(wanted);
    };
    const auto badName = [](const QString& name, const char* wanted) {
        QTest::newRow(qPrintable(QStringLiteral("the name \"%1\"").arg(name.left(20))))
            << QStringList{QStringLiteral("presets"), QStringLiteral("save"), name} << QString::fromUtf8(wanted);
    };
    row("presets save", "presets save NAME");
    row("presets remove", "presets remove NAME");
    row("presets sav mine", "did you mean \"save\"?");
    row("presets list mine", "list takes no name");
    row("presets save mine photos", "a preset has no inputs");
    row("presets remove mine --size 8", "--size");
    row("presets list --size 8", "--size");
    row("presets --force", "--force");
    row("presets save mine --json", "--json");
    row("presets save mine --size nothing", "--size");
    row("presets save mine --from nothing.xml", "nothing.xml cannot be read");
    row("presets save mine --from nothing.xml --preset web", "--from and --preset");
    row("create job.xml --from nothing.xml --preset web", "--from and --preset");
    row("run job.xml photos -o out --preset web", "job.xml");
    row("show photos --preset web --preset mail", "--preset is given 2 times");
    row("run photos -o out --preset ./web.xml", "the name of a preset");
    badName(QStringLiteral("a/b"), "\"a_b\"");
    badName(QStringLiteral("../a"), "begins with a dot");
    badName(QStringLiteral("a\\b"), "\"a_b\"");
    badName(QStringLiteral("a:b"), "\"a_b\"");
    badName(QStringLiteral("CON"), "\"_\"");
    badName(QStringLiteral("nul.x"), "\"_.x\"");
    badName(QStringLiteral("end."), "\"end_\"");
    badName(QStringLiteral("end "), "\"end_\"");
    badName(QStringLiteral("a\nb"), "\"a_b\"");
    badName(QStringLiteral(".hidden"), "begins with a dot");
    badName(QStringLiteral(".."), "begins with a dot");
    badName(QStringLiteral("web.xml"), "\"web\"");
    badName(QString(), "empty");
    badName(QString(300, QLatin1Char('x')), "longer than");
}

void tst_CliPresets::wrongRequestsAreExplained()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, wanted);
    const CliRun run = stage->Run(arguments);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.Err().contains(wanted), run.err.constData());
    QVERIFY(run.err.startsWith("velkora-batch: "));
    QVERIFY(run.out.isEmpty());
    QVERIFY(!QFile::exists(stage->Path(QStringLiteral("settings"))));
    QVERIFY(!QFile::exists(stage->Path(QStringLiteral("out"))));
}

void tst_CliPresets::brokenPresetsAreNamed_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no XML") << QByteArray("nonsense") << QStringLiteral("line 1");
    QTest::newRow("no text") << QByteArray("\xFF\xD8\xFF\xE0") << QStringLiteral("not UTF-8");
    QTest::newRow("empty") << QByteArray() << QStringLiteral("not a batch job");
    QTest::newRow("wrong settings") << wrongSettings << QStringLiteral("9");
    QTest::newRow("unknown effect") << QByteArray("<!DOCTYPE batch><root><style><effect UID=\"blurr\" enabled=\"1\"/>"
                                                  "</style></root>")
                                    << QStringLiteral("did you mean \"blur\"?");
    QTest::newRow("a picture that is gone")
        << QByteArray("<!DOCTYPE batch><root><output><transformation transformationState=\"1\" "
                      "transformationBackgroundType=\"3\" transformationBackgroundImage=\"/nowhere/logo.png\"/>"
                      "</output></root>")
        << QStringLiteral("/nowhere/logo.png");
}

void tst_CliPresets::brokenPresetsAreNamed()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, reason);
    QCOMPARE(stage->Run(QStringLiteral("presets save mine --size 16")).exitCode, 0);
    stage->Write(stage->Preset(QStringLiteral("broken")), content);
    const CliRun list = stage->Run(QStringLiteral("presets"));
    QCOMPARE(list.exitCode, 1);
    QVERIFY2(list.out.contains("mine"), list.out.constData());
    QVERIFY2(list.Err().contains(stage->Preset(QStringLiteral("broken"))), list.err.constData());
    QVERIFY2(list.Err().contains(reason), list.err.constData());
    QVERIFY2(!list.err.contains("?.") && !list.err.contains(".."), list.err.constData());
    QVERIFY(stage->Listed(QStringLiteral("broken")).value(QStringLiteral("error")).toString().contains(reason));
    QCOMPARE(stage->Listed(QStringLiteral("mine")).value(QStringLiteral("name")).toString(), QStringLiteral("mine"));
    const CliRun run = stage->Run(QStringLiteral("run --preset broken photos -o out"));
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.Err().contains(reason), run.err.constData());
    QVERIFY(!QFile::exists(stage->Path(QStringLiteral("out"))));
    QCOMPARE(stage->Run(QStringLiteral("show --preset mine photos")).exitCode, 0);
    QCOMPARE(stage->Run(QStringLiteral("presets save broken --size 8")).exitCode, 2);
    QCOMPARE(stage->Read(stage->Preset(QStringLiteral("broken"))), content);
    QCOMPARE(stage->Run(QStringLiteral("presets remove broken")).exitCode, 0);
}

void tst_CliPresets::foldersThatCannotHoldPresets()
{
    stage->Write(stage->Path(QStringLiteral("settings/presets")), "a file");
    const CliRun save = stage->Run(QStringLiteral("presets save mine"));
    QCOMPARE(save.exitCode, 2);
    QVERIFY2(save.Err().contains(stage->Path(QStringLiteral("settings/presets"))), save.err.constData());
    QCOMPARE(stage->Read(stage->Path(QStringLiteral("settings/presets"))), QByteArray("a file"));
    // What is no file is no preset.
    QFile::remove(stage->Path(QStringLiteral("settings/presets")));
    QVERIFY(QDir().mkpath(stage->Path(QStringLiteral("settings/presets/folder.xml"))));
    QCOMPARE(stage->Run(QStringLiteral("presets")).exitCode, 0);
    QVERIFY(stage->Listed(QStringLiteral("folder")).isEmpty());
}

void tst_CliPresets::presetsThatComeAlongStay()
{
    const CliRun remove = stage->Run(QStringLiteral("presets remove web"));
    QCOMPARE(remove.exitCode, 2);
    QVERIFY2(remove.err.contains("comes with the program"), remove.err.constData());
    QCOMPARE(stage->Listed(QStringLiteral("web")).value(QStringLiteral("comesAlong")), QJsonValue(true));
}

QTEST_GUILESS_MAIN(tst_CliPresets)
#include "tst_clipresets.moc"
