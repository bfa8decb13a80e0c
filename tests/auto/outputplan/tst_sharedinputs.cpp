// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "job/plan/RunPlan.h"

#include "job/plan/SharedNames.h"
#include "job/values/JobValues.h"

#include <QtTest>

using namespace BatchJob;
using Settings = ZTBatchOutputSettings;
using Clash = OutputPlan::Clash;

/// Plans of several jobs that share their inputs.
class tst_SharedInputs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void resultsComePictureByPicture();
    void eachJobNamesAsIfAlone_data();
    void eachJobNamesAsIfAlone();
    void jobsClashInOneFolder();
    void policiesDecideAboutClashesOfJobs();
    void aFileIsProbedOnce();
    void aProbeServesThoseThatNeedIt();
    void keptResultsStay();
    void manyFiles();

private:
    QString Path(const QString& name) const { return folder->filePath(name); }
    JobSettings Job(const QString& subFolder, const QString& format = QStringLiteral("JPEG")) const;

    std::unique_ptr<QTemporaryDir> folder;
};

namespace {

OutputNaming NamingOf(Settings::NamingTemplate middle)
{
    Settings settings(nullptr);
    settings.SetNamingTemplate(Settings::PartMiddle, middle);
    settings.SetCustomTemplate(Settings::PartMiddle, QStringLiteral("Sea"));
    settings.SetStartNumber(Settings::PartMiddle, 7);
    settings.SetDigitsCount(Settings::PartMiddle, 3);
    settings.SetNamingTemplate(Settings::PartSuffix, Settings::TemplateNothing);
    return OutputNaming(settings);
}

QVector<JobFile> Files(int count)
{
    QVector<JobFile> files;
    for (int i = 0; i < count; ++i) {
        files.append({QStringLiteral("/in/%1/%2.jpg").arg(i % 2).arg(i / 2), QString::number(i % 2)});
    }
    return files;
}

Policies Renaming()
{
    Policies policies;
    policies.Set(PolicyKind::Naming, Decision::Rename);
    return policies;
}

} // namespace

void tst_SharedInputs::init()
{
    folder = std::make_unique<QTemporaryDir>();
}

JobSettings tst_SharedInputs::Job(const QString& subFolder, const QString& format) const
{
    JobSettings job;
    job.outputFolder = subFolder.isEmpty() ? folder->path() : Path(subFolder);
    job.format = format;
    job.naming = NamingOf(Settings::TemplateOriginalName);
    return job;
}

void tst_SharedInputs::resultsComePictureByPicture()
{
    OutputPlan plan(Files(2), {Job(QStringLiteral("a")), Job(QStringLiteral("b"), QStringLiteral("PNG"))},
                    folder->path());
    plan.MakeNames();
    QCOMPARE(plan.Count(), 4);
    QCOMPARE(plan.JobCount(), 2);
    QStringList results;
    for (int i = 0; i < plan.Count(); ++i) {
        results.append(QStringLiteral("%1 %2 %3").arg(plan.FileOf(i)).arg(plan.JobOf(i)).arg(plan.Output(i)));
    }
    QCOMPARE(results, QStringList({QStringLiteral("0 0 ") + Path(QStringLiteral("a/0.jpg")),
                                   QStringLiteral("0 1 ") + Path(QStringLiteral("b/0.png")),
                                   QStringLiteral("1 0 ") + Path(QStringLiteral("a/0.jpg")),
                                   QStringLiteral("1 1 ") + Path(QStringLiteral("b/0.png"))}));
    QCOMPARE(plan.ClashOf(2), Clash::Result);
    QCOMPARE(plan.ClashesWith(2), 0);
    QCOMPARE(plan.ClashesWith(3), 1);
}

void tst_SharedInputs::eachJobNamesAsIfAlone_data()
{
    QTest::addColumn<int>("structure");
    QTest::addColumn<int>("naming");
    for (const auto& [structure, ofStructure] :
         {std::pair(Settings::StructureFlat, "flat"), std::pair(Settings::StructureAsInput, "as the input"),
          std::pair(Settings::StructureByCaptureDate, "by date")}) {
        for (const auto& [naming, ofNaming] :
             {std::pair(Settings::TemplateOriginalName, "names"), std::pair(Settings::TemplateNumber, "numbers"),
              std::pair(Settings::TemplateCustomText, "one text")}) {
            QTest::addRow("%s, %s", ofStructure, ofNaming) << int(structure) << int(naming);
        }
    }
}

void tst_SharedInputs::eachJobNamesAsIfAlone()
{
    QFETCH(const int, structure);
    QFETCH(const int, naming);
    QVector<JobSettings> jobs{Job(QStringLiteral("a")), Job(QStringLiteral("b"), QStringLiteral("PNG")),
                              Job(QStringLiteral("c/d"))};
    jobs[1].folderStructure = Settings::FolderStructure(structure);
    jobs[1].naming = NamingOf(Settings::NamingTemplate(naming));
    jobs[2].naming = NamingOf(Settings::TemplateNumber);
    const QVector<JobFile> files = Files(6);
    RunPlan together(OutputPlan(files, jobs, folder->path()));
    const QDateTime captured(QDate(2024, 5, 6), QTime(7, 8));
    for (const int index : together.Names().FilesToProbe()) {
        together.SetProbe(index, {captured, {}, {}});
    }
    QVERIFY(together.MakeNames(Renaming()));
    for (int job = 0; job < jobs.size(); ++job) {
        RunPlan alone(OutputPlan(files, jobs.at(job)));
        for (const int index : alone.Names().FilesToProbe()) {
            alone.SetProbe(index, {captured, {}, {}});
        }
        QVERIFY(alone.MakeNames(Renaming()));
        for (int file = 0; file < files.size(); ++file) {
            const int result = file * jobs.size() + job;
            QCOMPARE(together.Names().Output(result), alone.Names().Output(file));
            QCOMPARE(together.IsRenamed(result), alone.IsRenamed(file));
        }
    }
}

void tst_SharedInputs::jobsClashInOneFolder()
{
    RunPlan plan(OutputPlan(Files(1), {Job({}), Job(QStringLiteral(".")), Job(QStringLiteral("c"))}, folder->path()));
    Policies skipping;
    QVERIFY(plan.MakeNames(skipping));
    QCOMPARE(plan.Names().ClashOf(0), Clash::None);
    QCOMPARE(plan.Names().ClashOf(1), Clash::Result);
    QCOMPARE(plan.Names().ClashesWith(1), 0);
    QCOMPARE(plan.Names().ClashOf(2), Clash::None);
    const Refusal refusal = RefusalOfSharedNames(plan);
    QVERIFY2(refusal.message.startsWith(QStringLiteral("1 result would get the name of another")),
             qPrintable(refusal.message));
}

void tst_SharedInputs::policiesDecideAboutClashesOfJobs()
{
    RunPlan plan(OutputPlan(Files(2), {Job(QStringLiteral("A")), Job(QStringLiteral("a"))}, folder->path()));
    QVERIFY(plan.MakeNames(Renaming()));
    QCOMPARE(plan.Names().OutputName(0), QStringLiteral("0.jpg"));
    QCOMPARE(plan.Names().OutputName(1), QStringLiteral("0 (2).jpg")); // Some systems know one folder only.
    QCOMPARE(plan.Names().OutputName(2), QStringLiteral("0 (3).jpg"));
}

void tst_SharedInputs::aFileIsProbedOnce()
{
    JobSettings dated = Job(QStringLiteral("b"));
    dated.naming = NamingOf(Settings::TemplateCaptureDate);
    const OutputPlan plan(Files(3), {Job(QStringLiteral("a")), dated, dated}, folder->path());
    QCOMPARE(plan.FilesToProbe(), QVector<int>({1, 4, 7}));
    QCOMPARE(plan.ResultsToProbe(4), QVector<int>({4, 5}));
    QVERIFY(OutputPlan(Files(3), {Job(QStringLiteral("a")), Job(QStringLiteral("b"))}, folder->path())
                .FilesToProbe()
                .isEmpty());
}

/// A job that needs no probe plans and makes its result as if nobody had looked.
void tst_SharedInputs::aProbeServesThoseThatNeedIt()
{
    JobSettings dated = Job(QStringLiteral("b"));
    dated.folderStructure = Settings::StructureByCaptureDate;
    RunPlan plan(OutputPlan(Files(2), {dated, Job(QStringLiteral("a")), dated}, folder->path()));
    plan.SetProbe(0, {QDateTime(QDate(2024, 5, 6), QTime(7, 8)), {}, {}});
    plan.SetProbeFailure(3, {PolicyKind::Input, ZTBatchMessage::ReadFileError, QStringLiteral("damaged"), {}});
    QVERIFY(plan.MakeNames(Policies()));
    for (const int result : {0, 2}) {
        QCOMPARE(plan.Names().Folder(result), Path(QStringLiteral("b/2024/2024-05-06")));
    }
    QCOMPARE(plan.TroubleOf(3).reason, QStringLiteral("damaged"));
    QCOMPARE(plan.TroubleOf(5).reason, QStringLiteral("damaged"));
    QCOMPARE(plan.TroubleOf(4).kind, PolicyKind::Naming); // Its name is that of the first file.
}

void tst_SharedInputs::keptResultsStay()
{
    RunPlan plan(OutputPlan(Files(2), {Job(QStringLiteral("a")), Job(QStringLiteral("b"))}, folder->path()));
    plan.KeepResult(1, Path(QStringLiteral("b/0 (2).jpg")));
    QVERIFY(plan.MakeNames(Renaming()));
    QCOMPARE(plan.Names().Output(1), Path(QStringLiteral("b/0 (2).jpg")));
    QCOMPARE(plan.Names().Output(0), Path(QStringLiteral("a/0.jpg")));
    QCOMPARE(plan.Names().Output(3), Path(QStringLiteral("b/0.jpg")));
}

void tst_SharedInputs::manyFiles()
{
    constexpr int count = 100'000;
    QElapsedTimer time;
    time.start();
    JobSettings numbered = Job(QStringLiteral("b"));
    numbered.naming = NamingOf(Settings::TemplateCustomText);
    RunPlan plan(OutputPlan(Files(count), {Job(QStringLiteral("a")), numbered}, folder->path()));
    QVERIFY(plan.MakeNames(Renaming()));
    // Seconds, even in a debug build under load; a search through the names for each name would take many minutes.
    QVERIFY2(time.elapsed() < 60'000, qPrintable(QString::number(time.elapsed())));
    QSet<QString> outputs;
    for (int i = 0; i < plan.Count(); ++i) {
        outputs.insert(plan.Names().Output(i));
    }
    QCOMPARE(outputs.size(), 2 * count);
}

QTEST_APPLESS_MAIN(tst_SharedInputs)
#include "tst_sharedinputs.moc"
