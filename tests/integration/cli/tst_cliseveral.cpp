// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Events.h"
#include "PictureFiles.h"
#include "PresetStage.h"
#include "RawPicture.h"
#include "TestPictures.h"

#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QtTest>

#include <memory>

/// Several results of each picture in one run: real commands, servers, workers and pictures.
class tst_CliSeveral : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void resultsAreThoseOfRunsOfTheirOwn();
    void optionsApplyToEachPreset();
    void eachPictureIsDecodedOnce();
    void savedJobsMakeResultsToo();
    void aPresetGivenOnceIsAsBefore();
    void reportsSayThePreset();
    void eventsSayThePreset();
    void failuresBelongToTheirPreset();
    void plansShowAllResults();
    void theRunIsNamedAsAWhole();
    void clashesEndTheRunBeforeIt();
    void wrongCombinations_data();
    void wrongCombinations();
    void resumedRunsNeedTheSameJobs();

private:
    QMap<QString, QByteArray> FilesBelow(const QString& name) const;
    CliRun Run(const QString& arguments) const { return stage->Run(arguments); }

    std::unique_ptr<PresetStage> stage;
};

namespace {

QVector<QJsonObject> ReportOf(const QByteArray& text)
{
    QVector<QJsonObject> entries;
    const QJsonArray array = QJsonDocument::fromJson(text).array();
    for (const QJsonValue& value : array) {
        entries.append(value.toObject());
    }
    return entries;
}

#ifdef Q_OS_WIN
constexpr char secondOfHeif[] = "photos/4.avif"; // HEVC has no encoder.
#else
constexpr char secondOfHeif[] = "photos/4.heic";
#endif

const QString twoPresets = QStringLiteral("--preset web --preset thumbnails");

} // namespace

void tst_CliSeveral::initTestCase()
{
    StartPictures();
}

void tst_CliSeveral::init()
{
    stage = std::make_unique<PresetStage>();
    PictureFiles::WriteJpeg(stage->Path(QStringLiteral("photos/1.jpg")), 1, 400, 300);
    PictureFiles::WriteJpeg(stage->Path(QStringLiteral("photos/sub/2.jpg")), 2, 300, 400);
    stage->Write(stage->Path(QStringLiteral("photos/3.dng")), RawPicture::CompressedDng());
    WritePicture(Chart(320, 240), stage->Path(QLatin1String(secondOfHeif)));
    WritePicture(Chart(240, 320, 4), stage->Path(QStringLiteral("photos/5.avif")));
}

/// The content of every file below a folder, hidden ones too, by its relative path.
QMap<QString, QByteArray> tst_CliSeveral::FilesBelow(const QString& name) const
{
    QMap<QString, QByteArray> files;
    const QDir folder(stage->Path(name));
    QDirIterator paths(folder.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (paths.hasNext()) {
        const QString path = paths.next();
        files.insert(folder.relativeFilePath(path), stage->Read(path));
    }
    return files;
}

void tst_CliSeveral::resultsAreThoseOfRunsOfTheirOwn()
{
    const QString more = QStringLiteral("run photos -q --structure input --suffix number ");
    for (const char* preset : {"web", "thumbnails", "archive"}) {
        const CliRun alone = Run(more + QStringLiteral("--preset %1 -o alone/%1").arg(QLatin1String(preset)));
        QVERIFY2(alone.exitCode == 0, alone.err.constData());
    }
    const CliRun together = Run(more + QStringLiteral("-o out --preset archive ") + twoPresets);
    QVERIFY2(together.exitCode == 0, together.err.constData());
    const auto files = FilesBelow(QStringLiteral("out"));
    QCOMPARE(files.size(), 15);
    QCOMPARE(files.keys(), FilesBelow(QStringLiteral("alone")).keys());
    QVERIFY(files == FilesBelow(QStringLiteral("alone")));
}

void tst_CliSeveral::optionsApplyToEachPreset()
{
    const CliRun run = Run(QStringLiteral("run photos/1.jpg -o out -q --size 20 --format png ") + twoPresets);
    QVERIFY2(run.exitCode == 0, run.err.constData());
    for (const char* preset : {"web", "thumbnails"}) {
        const QImage result(stage->Path(QStringLiteral("out/%1/1.png").arg(QLatin1String(preset))));
        QCOMPARE(std::max(result.width(), result.height()), 20);
    }
}

/// One worker or several: all results of one picture come from one decoding.
void tst_CliSeveral::eachPictureIsDecodedOnce()
{
    for (const int workers : {1, 3}) {
        const CliRun run =
            Run(QStringLiteral("run photos -o out%1 -j %1 --json --preset mail ").arg(workers) + twoPresets);
        QVERIFY2(run.exitCode == 0, run.err.constData());
        // The results of the RAW, the HEIF and the AVIF file but the first of each.
        QVERIFY2(run.out.contains("\"6 results were made from pixels that were decoded for another result.\""),
                 run.out.constData());
    }
    // Small pictures of camera files are developed in half size: that is another decoding.
    const CliRun sizes = Run(QStringLiteral("run photos/3.dng -o sizes --json --preset web --preset archive"));
    QVERIFY(sizes.out.contains("1 results were made"));
    const CliRun quick = Run(QStringLiteral("run photos/1.jpg -o quick --json ") + twoPresets);
    QVERIFY(!quick.out.contains("results were made"));
}

void tst_CliSeveral::savedJobsMakeResultsToo()
{
    QVERIFY(QDir().mkpath(stage->Path(QStringLiteral("jobs"))));
    QCOMPARE(Run(QStringLiteral("create jobs/small.xml --size 30 --format png -o elsewhere")).exitCode, 0);
    QCOMPARE(Run(QStringLiteral("create jobs/grey.XML --size 40 --effect grayscale")).exitCode, 0);
    const CliRun run = Run(QStringLiteral("run jobs/small.xml jobs/grey.XML photos/1.jpg -o out -q"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(FilesBelow(QStringLiteral("out")).keys(),
             QStringList({QStringLiteral("grey/1.jpg"), QStringLiteral("small/1.png")}));
    QCOMPARE(QImage(stage->Path(QStringLiteral("out/small/1.png"))).width(), 30);
    QCOMPARE(QImage(stage->Path(QStringLiteral("out/grey/1.jpg"))).width(), 40);

    // Inputs of the first job count; those of the second may be the same.
    QCOMPARE(Run(QStringLiteral("create a.xml photos/1.jpg --size 30")).exitCode, 0);
    QCOMPARE(Run(QStringLiteral("create b.xml photos/1.jpg --size 40")).exitCode, 0);
    QCOMPARE(Run(QStringLiteral("run a.xml b.xml -o own -q")).exitCode, 0);
    QCOMPARE(FilesBelow(QStringLiteral("own")).keys(),
             QStringList({QStringLiteral("a/1.jpg"), QStringLiteral("b/1.jpg")}));
    QCOMPARE(Run(QStringLiteral("create c.xml photos/sub/2.jpg --size 40")).exitCode, 0);
    const CliRun other = Run(QStringLiteral("run a.xml c.xml -o other -q"));
    QCOMPARE(other.exitCode, 2);
    QVERIFY2(other.err.contains("c.xml has other inputs than a.xml"), other.err.constData());
    QCOMPARE(Run(QStringLiteral("run a.xml c.xml photos/1.jpg --no-inputs -o other -q")).exitCode, 0);
}

void tst_CliSeveral::aPresetGivenOnceIsAsBefore()
{
    const CliRun run = Run(QStringLiteral("run photos/1.jpg -o out --preset web --json --report report.csv"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QVERIFY(QFile::exists(stage->Path(QStringLiteral("out/1.jpg"))));
    QVERIFY(!run.out.contains("preset"));
    QVERIFY(!stage->Read(stage->Path(QStringLiteral("report.csv"))).contains("preset"));
}

void tst_CliSeveral::reportsSayThePreset()
{
    for (const char* name : {"report.json", "report.csv"}) {
        const CliRun run =
            Run(QStringLiteral("run photos -o %1.out -q %2 --report %1").arg(QLatin1String(name), twoPresets));
        QVERIFY2(run.exitCode == 0, run.err.constData());
    }
    const QVector<QJsonObject> entries = ReportOf(stage->Read(stage->Path(QStringLiteral("report.json"))));
    QCOMPARE(entries.size(), 10);
    for (int i = 0; i < entries.size(); ++i) {
        const QJsonObject& entry = entries.at(i);
        const QString preset = i % 2 == 0 ? QStringLiteral("web") : QStringLiteral("thumbnails");
        QCOMPARE(entry.value(QStringLiteral("preset")).toString(), preset);
        QVERIFY(entry.value(QStringLiteral("output"))
                    .toString()
                    .startsWith(stage->Path(QStringLiteral("report.json.out/%1/").arg(preset))));
        QCOMPARE(entry.value(QStringLiteral("input")), entries.at(i - i % 2).value(QStringLiteral("input")));
    }
    const QByteArrayList lines = stage->Read(stage->Path(QStringLiteral("report.csv"))).trimmed().split('\n');
    QCOMPARE(lines.size(), 11);
    QVERIFY(lines.first().trimmed().endsWith(",finished,preset"));
    QVERIFY(lines.at(1).trimmed().endsWith(",\"web\""));
    QVERIFY(lines.at(2).trimmed().endsWith(",\"thumbnails\""));
}

void tst_CliSeveral::eventsSayThePreset()
{
    const CliRun run = Run(QStringLiteral("run photos -o out --json ") + twoPresets);
    QVERIFY2(run.exitCode == 0, run.err.constData());
    const QVector<QJsonObject> starts = EventsOf(run.out, QStringLiteral("start"));
    QCOMPARE(starts.size(), 1);
    QCOMPARE(starts.first().value(QStringLiteral("files")).toInt(), 10);
    QCOMPARE(starts.first().value(QStringLiteral("presets")).toArray(),
             QJsonArray({QStringLiteral("web"), QStringLiteral("thumbnails")}));
    const QVector<QJsonObject> written = EventsOf(run.out, QStringLiteral("written"));
    QCOMPARE(written.size(), 10);
    QSet<QString> results;
    for (const QJsonObject& one : written) {
        const QString preset = one.value(QStringLiteral("preset")).toString();
        QVERIFY(one.value(QStringLiteral("output")).toString().contains(QStringLiteral("/out/%1/").arg(preset)));
        results.insert(preset + one.value(QStringLiteral("input")).toString());
    }
    QCOMPARE(results.size(), 10);
}

/// One preset cannot make its result, and has not even a name for it; the other can.
void tst_CliSeveral::failuresBelongToTheirPreset()
{
    QCOMPARE(Run(QStringLiteral("presets save same --format original")).exitCode, 0);
    PictureFiles::WriteTruncated(stage->Path(QStringLiteral("bad/6.jpg")));
    const CliRun run = Run(QStringLiteral("run photos/3.dng bad/6.jpg -o out -q --report report.json "
                                          "--preset same --preset web --preset thumbnails"));
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.err.contains("3.dng (same): "), run.err.constData());
    const QVector<QJsonObject> entries = ReportOf(stage->Read(stage->Path(QStringLiteral("report.json"))));
    QCOMPARE(entries.size(), 6);
    QStringList found;
    for (const QJsonObject& entry : entries) {
        found.append(QStringLiteral("%1 %2 %3")
                         .arg(QFileInfo(entry.value(QStringLiteral("input")).toString()).fileName(),
                              entry.value(QStringLiteral("preset")).toString(),
                              entry.value(QStringLiteral("result")).toString()));
    }
    QCOMPARE(found, QStringList({QStringLiteral("3.dng same skipped"), QStringLiteral("3.dng web written"),
                                 QStringLiteral("3.dng thumbnails written"), QStringLiteral("6.jpg same failed"),
                                 QStringLiteral("6.jpg web failed"), QStringLiteral("6.jpg thumbnails failed")}));
    QCOMPARE(entries.first().value(QStringLiteral("output")).toString(), QString());
}

void tst_CliSeveral::plansShowAllResults()
{
    for (const char* command : {"plan", "run --dry-run"}) {
        const CliRun plan = Run(QStringLiteral("%1 photos -o out %2").arg(QLatin1String(command), twoPresets));
        QVERIFY2(plan.exitCode == 0, plan.err.constData());
        QVERIFY2(plan.err.contains("10 files: 10 without trouble"), plan.err.constData());
        QVERIFY2(plan.out.contains("out/web/photos/1.jpg  400 x 300 px"), plan.out.constData());
        QVERIFY2(plan.out.contains("out/thumbnails/photos/1.jpg  400 x 300 -> 256 x 256 px"), plan.out.constData());
    }
    QVERIFY(!QFile::exists(stage->Path(QStringLiteral("out"))));
    const CliRun json = Run(QStringLiteral("plan photos/1.jpg --json -o out ") + twoPresets);
    const QVector<QJsonObject> lines = EventsOf(json.out);
    QVERIFY2(lines.size() == 2, json.out.constData());
    QCOMPARE(lines.at(0).value(QStringLiteral("preset")).toString(), QStringLiteral("web"));
    QCOMPARE(lines.at(1).value(QStringLiteral("preset")).toString(), QStringLiteral("thumbnails"));

    // Planned names are those of the run, also where workers have to look at the pictures first.
    const QString dated = QStringLiteral("photos -o dated --structure date --name date --suffix number ") + twoPresets;
    const CliRun plan = Run(QStringLiteral("plan --json ") + dated);
    QStringList planned;
    for (const QJsonObject& line : EventsOf(plan.out)) {
        planned.append(QDir(stage->Path(QStringLiteral("dated")))
                           .relativeFilePath(line.value(QStringLiteral("output")).toString()));
    }
    planned.sort();
    const CliRun run = Run(QStringLiteral("run -q ") + dated);
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(FilesBelow(QStringLiteral("dated")).keys(), planned);
}

void tst_CliSeveral::theRunIsNamedAsAWhole()
{
    const CliRun run = Run(QStringLiteral("run photos -o out ") + twoPresets);
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QVERIFY2(run.err.contains("[10/10] "), run.err.constData());
    QVERIFY2(run.err.contains("Written            10  to " + stage->Path(QStringLiteral("out")).toUtf8() + ", in"),
             run.err.constData());
    QCOMPARE(QDir(stage->Path(QStringLiteral("out"))).entryList(QDir::Files | QDir::Hidden), QStringList());
}

/// Two results of one job: the pictures have one name and no folders.
void tst_CliSeveral::clashesEndTheRunBeforeIt()
{
    PictureFiles::WriteJpeg(stage->Path(QStringLiteral("photos/sub/1.jpg")), 7);
    const CliRun run = Run(QStringLiteral("run photos --structure flat -o out ") + twoPresets);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.err.contains("2 results would get the names of others"), run.err.constData());
    QCOMPARE(FilesBelow(QStringLiteral("out")).size(), 0);
}

void tst_CliSeveral::wrongCombinations_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* name, const QString& arguments, const char* problem) {
        QTest::newRow(name) << arguments << QString::fromUtf8(problem);
    };
    row("no output folder", QStringLiteral("run photos ") + twoPresets,
        "several presets or jobs need one output folder, in which each gets a folder of its name: use --output DIR");
    row("no output folder, planned", QStringLiteral("plan photos ") + twoPresets, "need one output folder");
    row("in place", QStringLiteral("run photos -o out --in-place ") + twoPresets,
        "--in-place makes one result of each picture, but several presets or jobs are given");
    row("a preset twice", QStringLiteral("run photos -o out --preset web --preset web"),
        "\"web\" is given twice; remove one of them");
    row("a preset twice, spelled differently", QStringLiteral("run photos -o out --preset web --preset WEB"),
        "\"web\" is given twice; remove one of them");
    row("an unknown preset", QStringLiteral("run photos -o out --preset web --preset wbe"),
        "there is no preset \"wbe\"");
    row("files of one name", QStringLiteral("run a/x.xml b/x.xml photos -o out"),
        "\"x\" is given twice; remove one of them");
    row("files whose names are one folder", QStringLiteral("run a/x.xml c/X.xml photos -o out"),
        "the results of \"x\" and \"X\" would go to one folder, \"X\"; give one of them another name");
    row("presets and jobs", QStringLiteral("run a/x.xml photos -o out ") + twoPresets,
        "a/x.xml and --preset exclude each other");
    row("a second job that is none", QStringLiteral("run a/x.xml photos/1.xml photos -o out"),
        "photos/1.xml cannot be read");
    row("an option that does not fit the second", QStringLiteral("run photos -o out --preset web --preset broken"),
        "broken: ");
    row("show", QStringLiteral("show photos ") + twoPresets, "--preset is given 2 times, but takes one value");
    row("create", QStringLiteral("create job.xml photos ") + twoPresets,
        "--preset is given 2 times, but takes one value");
}

void tst_CliSeveral::wrongCombinations()
{
    QFETCH(const QString, arguments);
    QFETCH(const QString, problem);
    for (const char* job : {"a/x.xml", "b/x.xml", "c/X.xml"}) {
        QDir().mkpath(QFileInfo(stage->Path(QLatin1String(job))).path());
        QCOMPARE(Run(QStringLiteral("create %1 --size 30").arg(QLatin1String(job))).exitCode, 0);
    }
    stage->Write(stage->Preset(QStringLiteral("broken")),
                 "<!DOCTYPE batch><root><output><folderStructure type=\"9\"/></output></root>");
    const CliRun run = Run(arguments);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.Err().contains(problem), run.err.constData());
    QVERIFY(!QFile::exists(stage->Path(QStringLiteral("out"))));
}

/// A run that was stopped is resumed by its jobs, or by its folder alone.
void tst_CliSeveral::resumedRunsNeedTheSameJobs()
{
    const QString last = stage->Path(QStringLiteral("photos/9.jpg"));
    PictureFiles::WriteTruncated(last);
    const QString stopping = QStringLiteral("run photos --structure flat -j 1 --on-input-error stop -o out -q ");
    QCOMPARE(Run(stopping + twoPresets).exitCode, 1);
    const CliRun other = Run(QStringLiteral("run photos --structure flat --resume -o out --preset web --preset mail"));
    QCOMPARE(other.exitCode, 2);
    QVERIFY2(other.err.contains("is of another job"), other.err.constData());
    const CliRun fewer = Run(QStringLiteral("run photos --structure flat --resume -o out --preset web"));
    QVERIFY2(fewer.exitCode == 2 && fewer.err.contains("is of another job"), fewer.err.constData());
    const CliRun order =
        Run(QStringLiteral("run photos --structure flat --resume -o out --preset thumbnails --preset web"));
    QVERIFY2(order.exitCode == 2 && order.err.contains("is of another job"), order.err.constData());
    PictureFiles::WriteJpeg(last, 9);
    const CliRun same =
        Run(QStringLiteral("run photos --structure flat --resume -o out --json --report report.json ") + twoPresets);
    QVERIFY2(same.exitCode == 0, same.err.constData());
    QCOMPARE(FilesBelow(QStringLiteral("out")).size(), 12);
    int earlier = 0;
    for (const QJsonObject& one : EventsOf(same.out, QStringLiteral("written"))) {
        const QString preset = one.value(QStringLiteral("preset")).toString();
        QVERIFY(one.value(QStringLiteral("output")).toString().contains(QStringLiteral("/out/%1/").arg(preset)));
        earlier += one.contains(QStringLiteral("earlier")) ? 1 : 0;
    }
    QVERIFY(earlier > 0);
    for (const QJsonObject& entry : ReportOf(stage->Read(stage->Path(QStringLiteral("report.json"))))) {
        QCOMPARE(entry.value(QStringLiteral("result")).toString(), QStringLiteral("written"));
    }
}

QTEST_GUILESS_MAIN(tst_CliSeveral)
#include "tst_cliseveral.moc"
