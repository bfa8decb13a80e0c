// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "job/plan/FolderCheck.h"
#include "job/plan/RunForecast.h"

#include "ZTBatchManager.h"

#include <QtTest>

using namespace BatchJob;
using Settings = ZTBatchOutputSettings;

/// What a run would do with each file: the plan of a run under its policies.
class tst_RunForecast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void filesWithoutTrouble();
    void takenNames_data();
    void takenNames();
    void anothersSourceIsRenamed();
    void formats_data();
    void formats();
    void failedProbes();
    void missingInputs();
    void foldersThatCannotBeMade();
    void namesComeBeforeFiles();
    void newNamesFollowTheDocument();
    void keptResultsKeepTheirNames();
    void filesGivenUpKeepTheirNames();

private:
    QString Path(const QString& name) const { return folder->filePath(name); }
    QString Write(const QString& name, const QByteArray& content = "content") const;
    RunPlan Plan(const QStringList& inputs) const;

    std::unique_ptr<QTemporaryDir> folder;
    JobSettings settings;
};

namespace {

constexpr char jpeg[] = "\xFF\xD8\xFF and so on";

Policies With(PolicyKind kind, int value)
{
    PolicyValues values{};
    values[std::size_t(kind)] = value;
    return Policies(values);
}

} // namespace

void tst_RunForecast::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
    settings = JobSettings();
    settings.outputFolder = Path(QStringLiteral("out"));
    settings.format = QStringLiteral("PNG");
    Settings naming(nullptr);
    naming.SetNamingTemplate(Settings::PartMiddle, Settings::TemplateOriginalName);
    naming.SetNamingTemplate(Settings::PartSuffix, Settings::TemplateNothing);
    settings.naming = OutputNaming(naming);
}

QString tst_RunForecast::Write(const QString& name, const QByteArray& content) const
{
    QFile file(Path(name));
    if (!QDir().mkpath(QFileInfo(file).path()) || !file.open(QIODevice::WriteOnly) ||
        file.write(content) != content.size()) {
        qFatal("%s cannot be written", qPrintable(file.fileName()));
    }
    return file.fileName();
}

RunPlan tst_RunForecast::Plan(const QStringList& inputs) const
{
    QVector<JobFile> files;
    for (const QString& input : inputs) {
        files.append({input, {}});
    }
    RunPlan plan(OutputPlan(files, settings));
    plan.ReadInputs();
    return plan;
}

void tst_RunForecast::filesWithoutTrouble()
{
    const RunForecast forecast(Plan({Write(QStringLiteral("in/a.jpg"))}), Policies());
    QVERIFY(!forecast.Of(0).decision);
    QVERIFY(forecast.Of(0).trouble.kind == PolicyKind::None);
    QCOMPARE(forecast.Names().Output(0), Path(QStringLiteral("out/a.png")));
    QVERIFY(!QFileInfo::exists(Path(QStringLiteral("out"))));
}

void tst_RunForecast::takenNames_data()
{
    QTest::addColumn<int>("policy");
    QTest::addColumn<int>("decision");
    QTest::addColumn<QString>("disk");
    QTest::addColumn<QString>("result");
    const auto row = [](const char* name, int policy, Decision decision, const char* disk, const char* result) {
        QTest::newRow(name) << policy << int(decision) << disk << result;
    };
    row("skip", ZTBatchManager::NamingSkip, Decision::Skip, "a.png", "b.png");
    row("ask", ZTBatchManager::NamingAsk, Decision::Ask, "a.png", "b.png");
    row("overwrite", ZTBatchManager::NamingOverwrite, Decision::Overwrite, "a.png", "b.png");
    row("rename", ZTBatchManager::NamingRename, Decision::Rename, "a (2).png", "b (2).png");
}

void tst_RunForecast::takenNames()
{
    QFETCH(int, policy);
    QFETCH(int, decision);
    QFETCH(QString, disk);
    QFETCH(QString, result);
    Write(QStringLiteral("out/a.png"));
    const QStringList inputs{Write(QStringLiteral("in/a.jpg")), Write(QStringLiteral("in/b.jpg")),
                             Write(QStringLiteral("in/x/b.jpg"))};
    const RunForecast forecast(Plan(inputs), With(PolicyKind::Naming, policy));
    QCOMPARE(int(forecast.Of(0).decision.value()), decision);
    QCOMPARE(forecast.Of(0).trouble.reason,
             QStringLiteral("\"%1\" exists already").arg(Path(QStringLiteral("out/a.png"))));
    QVERIFY(!forecast.Of(1).decision);
    QCOMPARE(int(forecast.Of(2).decision.value()), decision);
    QCOMPARE(forecast.Of(2).trouble.reason,
             QStringLiteral("\"%1\" is the result of \"%2\"").arg(Path(QStringLiteral("out/b.png")), inputs[1]));
    QCOMPARE(forecast.Names().OutputName(0), disk);
    QCOMPARE(forecast.Names().OutputName(2), result);
}

void tst_RunForecast::anothersSourceIsRenamed()
{
    // The result of the first has the name of the second's source.
    const QStringList inputs{Write(QStringLiteral("in/b.png")), Write(QStringLiteral("out/b.png"))};
    const Policies overwrite = With(PolicyKind::Naming, ZTBatchManager::NamingOverwrite);
    const RunForecast forecast(Plan(inputs), overwrite);
    QVERIFY(forecast.Of(0).decision == Decision::Rename);
    QCOMPARE(forecast.Of(0).trouble.reason, QStringLiteral("\"%1\" is a source of this job").arg(inputs[1]));
    QCOMPARE(forecast.Names().OutputName(0), QStringLiteral("b (2).png"));
    QVERIFY(forecast.Of(1).decision == Decision::Rename);
    QCOMPARE(forecast.Names().OutputName(1), QStringLiteral("b (3).png"));
    // In place, the second replaces itself.
    RunPlan plan = Plan(inputs);
    plan.ReplaceOriginals();
    const RunForecast inPlace(plan, overwrite);
    QVERIFY(inPlace.Of(0).decision == Decision::Rename);
    QCOMPARE(inPlace.Names().OutputName(0), QStringLiteral("b (2).png"));
    QVERIFY(!inPlace.Of(1).decision && inPlace.Of(1).isInPlace);
    QCOMPARE(inPlace.Names().OutputName(1), QStringLiteral("b.png"));
}

void tst_RunForecast::formats_data()
{
    QTest::addColumn<int>("policy");
    QTest::addColumn<bool>("isWritten");
    QTest::newRow("skip") << int(ZTBatchManager::WriteToFormatSkip) << false;
    QTest::newRow("stop") << int(ZTBatchManager::WriteToFormatStop) << false;
    QTest::newRow("ask") << int(ZTBatchManager::WriteToFormatAsk) << false;
    QTest::newRow("nearest") << int(ZTBatchManager::WriteToFormatNearest) << true;
}

void tst_RunForecast::formats()
{
    QFETCH(int, policy);
    QFETCH(bool, isWritten);
    settings.format = Settings::GetOriginalFormat();
    RunPlan plan =
        Plan({Write(QStringLiteral("in/good.jpg"), jpeg), Write(QStringLiteral("in/a.dng"), QByteArray("II*\0etc", 7)),
              Write(QStringLiteral("in/b.psd"), "8BPS and so on")});
    plan.SetProbe(2, {{}, QStringLiteral("PSD"), QStringLiteral("PNG")});
    const RunForecast forecast(plan, With(PolicyKind::WriteToFormat, policy));
    QVERIFY(!forecast.Of(0).decision);
    for (const int file : {1, 2}) {
        QCOMPARE(!forecast.Of(file).decision, isWritten);
        QCOMPARE(forecast.Of(file).trouble.kind == PolicyKind::WriteToFormat, !isWritten);
    }
    QCOMPARE(forecast.Names().OutputName(1), isWritten ? QStringLiteral("a.tif") : QString());
    QCOMPARE(forecast.Names().OutputName(2), isWritten ? QStringLiteral("b.png") : QString());
}

void tst_RunForecast::failedProbes()
{
    RunPlan plan = Plan({Write(QStringLiteral("in/a.jpg"))});
    plan.SetProbeFailure(0, {PolicyKind::Processing, ZTBatchMessage::ApplyAdjustmentError, QStringLiteral("why"), {}});
    const RunForecast forecast(plan, With(PolicyKind::Processing, ZTBatchManager::ProcessingStop));
    QVERIFY(forecast.Of(0).decision == Decision::Stop);
    QCOMPARE(forecast.Of(0).trouble.reason, QStringLiteral("why"));
}

void tst_RunForecast::missingInputs()
{
    const RunForecast forecast(Plan({Path(QStringLiteral("in/no.jpg"))}),
                               With(PolicyKind::Input, ZTBatchManager::InputAsk));
    QVERIFY(forecast.Of(0).decision == Decision::Ask);
    QCOMPARE(forecast.Of(0).trouble.reason, QStringLiteral("it does not exist"));
}

void tst_RunForecast::foldersThatCannotBeMade()
{
    const QString input = Write(QStringLiteral("in/a.jpg"));
    settings.outputFolder = input + QStringLiteral("/below");
    const RunForecast forecast(Plan({input}), With(PolicyKind::Output, ZTBatchManager::OutputStop));
    QVERIFY(forecast.Of(0).decision == Decision::Stop);
    QCOMPARE(forecast.Of(0).trouble.reason, input + QStringLiteral(" is not a folder"));
    QVERIFY(WhyNotWritable(Path(QStringLiteral("new/and/deep"))).isEmpty());
}

/// A run decides about the name before it opens the input, so a missing input takes a name, too.
void tst_RunForecast::namesComeBeforeFiles()
{
    Write(QStringLiteral("out/a.png"));
    const QStringList inputs{Path(QStringLiteral("in/a.jpg")), Write(QStringLiteral("in/x/a.jpg"))};
    const RunForecast skipped(Plan(inputs), Policies());
    QVERIFY(skipped.Of(0).trouble.kind == PolicyKind::Naming);
    const RunForecast renamed(Plan(inputs), With(PolicyKind::Naming, ZTBatchManager::NamingRename));
    QVERIFY(renamed.Of(0).trouble.kind == PolicyKind::Input);
    QCOMPARE(renamed.Names().OutputName(1), QStringLiteral("a (3).png"));
}

/// File by file, the forecast comes to the names that a run makes for all files at once.
void tst_RunForecast::newNamesFollowTheDocument()
{
    settings.format = Settings::GetOriginalFormat();
    Write(QStringLiteral("out/1.jpg"));
    Write(QStringLiteral("out/1 (2).tif"));
    QStringList inputs;
    for (int i = 0; i < 30; ++i) {
        const QString ending = i % 3 == 0 ? QStringLiteral("dng") : QStringLiteral("jpg");
        const QByteArray content = i % 3 == 0 ? QByteArray("II*\0etc", 7) : QByteArray(jpeg);
        inputs.append(Write(QStringLiteral("in/%1/%2.%3").arg(i).arg(i % 4).arg(ending), content));
    }
    PolicyValues values{};
    values[std::size_t(PolicyKind::Naming)] = ZTBatchManager::NamingRename;
    values[std::size_t(PolicyKind::WriteToFormat)] = ZTBatchManager::WriteToFormatNearest;
    const RunForecast forecast(Plan(inputs), Policies(values));
    RunPlan plan = Plan(inputs);
    QVERIFY(plan.MakeNames(Policies(values)));
    QSet<QString> names;
    for (int i = 0; i < inputs.size(); ++i) {
        QCOMPARE(forecast.Names().Output(i), plan.Names().Output(i));
        QVERIFY(plan.TroubleOf(i).kind == PolicyKind::None);
        names.insert(plan.Names().Output(i));
    }
    QCOMPARE(names.size(), inputs.size());
}

void tst_RunForecast::keptResultsKeepTheirNames()
{
    const QStringList inputs{Write(QStringLiteral("in/a.jpg")), Write(QStringLiteral("in/x/a.jpg"))};
    RunPlan plan = Plan(inputs);
    plan.KeepResult(1, Write(QStringLiteral("out/a (2).png")));
    QVERIFY(plan.MakeNames(With(PolicyKind::Naming, ZTBatchManager::NamingRename)));
    QCOMPARE(plan.Names().OutputName(0), QStringLiteral("a.png"));
    QCOMPARE(plan.Names().OutputName(1), QStringLiteral("a (2).png"));
}

void tst_RunForecast::filesGivenUpKeepTheirNames()
{
    Write(QStringLiteral("out/a.png"));
    const QStringList inputs{Write(QStringLiteral("in/a.jpg")), Write(QStringLiteral("in/x/a.jpg"))};
    RunPlan plan = Plan(inputs);
    plan.KeepWithoutResult(0, Path(QStringLiteral("out/a.png")));
    QVERIFY(plan.MakeNames(With(PolicyKind::Naming, ZTBatchManager::NamingRename)));
    QCOMPARE(plan.Names().OutputName(0), QStringLiteral("a.png"));
    QCOMPARE(plan.Names().OutputName(1), QStringLiteral("a (2).png"));
}

QTEST_GUILESS_MAIN(tst_RunForecast)
#include "tst_runforecast.moc"
