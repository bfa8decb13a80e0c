// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureFiles.h"

#include "hosts/common/InputCollector.h"
#include "hosts/common/JobDefaults.h"
#include "hosts/common/RequestError.h"
#include "hosts/desktop/job/Settings.h"
#include "hosts/desktop/run/JobRunner.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace BatchDesktop;
using namespace BatchHost;

using BatchJob::PolicyKind;
using State = JobRunner::State;

/// Runs of the window with the real server.
class tst_JobRunner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyPictureHasItsResult();
    void jobsThatCannotRunAreRefused();
    void runsFollowEachOther();
    void pausesAndGoesOn();
    void cancelledRunsCanBeTakenUp();
    void questionsWaitForAnswers();
    void failedPicturesAreRetried();
    void reportsAreSavedAfterwards();
    void timeLeftFollowsTheBytes();

private:
    QString Path(const QString& name) const { return folder->filePath(name); }
    void Build(ZTBatchDocument& job) const;
    bool RunAll(const BatchJob::PolicyValues& policies);
    bool WaitForEnd() const;

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<JobRunner> runner;
};

namespace {

constexpr int patience = 60'000; // ms

/// Skips what goes wrong.
constexpr BatchJob::PolicyValues skipping{};

} // namespace

void tst_JobRunner::init()
{
    folder = std::make_unique<QTemporaryDir>();
    for (int i = 1; i <= 3; ++i) {
        PictureFiles::WriteJpeg(Path(QStringLiteral("photos/%1.jpg").arg(i)), i);
    }
    runner = std::make_unique<JobRunner>(Path(QStringLiteral("settings")));
    QCOMPARE(runner->Obstacle(), QString());
}

void tst_JobRunner::cleanup()
{
    runner.reset();
}

void tst_JobRunner::Build(ZTBatchDocument& job) const
{
    SetJobDefaults(job);
    job.GetOutputSettings()->SetPath(Path(QStringLiteral("out")));
    InputCollector(job, {}).Add({Path(QStringLiteral("photos"))});
}

bool tst_JobRunner::WaitForEnd() const
{
    return QTest::qWaitFor([this] { return runner->LastEnd().has_value(); }, patience);
}

bool tst_JobRunner::RunAll(const BatchJob::PolicyValues& policies)
{
    ZTBatchDocument job;
    Build(job);
    runner->Start(job, policies);
    return WaitForEnd();
}

void tst_JobRunner::everyPictureHasItsResult()
{
    PictureFiles::WriteTruncated(Path(QStringLiteral("photos/broken.jpg")));
    QSignalSpy results(runner.get(), &JobRunner::ResultKnown);
    QSignalSpy ends(runner.get(), &JobRunner::Ended);
    QVERIFY(RunAll(skipping));
    QCOMPARE(runner->CurrentState(), State::Idle);
    QCOMPARE(results.size(), 4);
    QCOMPARE(ends.size(), 1);
    QCOMPARE(runner->LastEnd()->written, 3);
    QCOMPARE(runner->LastEnd()->failed, 1);
    QCOMPARE(runner->CurrentProgress().Done(), 4);
    QCOMPARE(runner->CurrentProgress().bytesDone, runner->CurrentProgress().bytes);
    const FileResult broken = runner->Results().value(Path(QStringLiteral("photos/broken.jpg")));
    QCOMPARE(broken.kind, FileResult::Kind::Failed);
    QVERIFY(!broken.reason.isEmpty());
    const FileResult first = runner->Results().value(Path(QStringLiteral("photos/1.jpg")));
    QCOMPARE(first.output, Path(QStringLiteral("out/1.jpg")));
    QVERIFY(QFile::exists(first.output));
    runner->Dismiss();
    QCOMPARE(QDir(Path(QStringLiteral("out"))).entryList(QDir::Files | QDir::Hidden).size(), 3);
}

void tst_JobRunner::jobsThatCannotRunAreRefused()
{
    ZTBatchDocument job;
    SetJobDefaults(job);
    try {
        runner->Start(job, skipping);
        QFAIL("A job without pictures and folder was started.");
    } catch (const RequestError& error) {
        QVERIFY(!error.text.isEmpty());
    }
    QCOMPARE(runner->CurrentState(), State::Idle);
    QVERIFY(RunAll(skipping));
    QCOMPARE(runner->LastEnd()->written, 3);
}

// The server of the first run knows the first run's journal; the second run has a server of its own.
void tst_JobRunner::runsFollowEachOther()
{
    QVERIFY(RunAll(skipping));
    QCOMPARE(runner->LastEnd()->written, 3);
    QVERIFY(RunAll(skipping));
    QCOMPARE(runner->LastEnd()->written, 0);
    QCOMPARE(runner->LastEnd()->skipped, 3);
    BatchJob::PolicyValues renaming = skipping;
    renaming[std::size_t(PolicyKind::Naming)] = ZTBatchManager::NamingRename;
    QVERIFY(RunAll(renaming));
    QCOMPARE(runner->LastEnd()->written, 3);
    QVERIFY(QFile::exists(Path(QStringLiteral("out/1 (2).jpg"))));
}

void tst_JobRunner::pausesAndGoesOn()
{
    for (int i = 4; i <= 60; ++i) {
        PictureFiles::WriteJpeg(Path(QStringLiteral("photos/%1.jpg").arg(i)), i);
    }
    ZTBatchDocument job;
    Build(job);
    runner->Start(job, skipping);
    runner->Pause();
    QCOMPARE(runner->CurrentState(), State::Pausing);
    QTRY_COMPARE_WITH_TIMEOUT(runner->CurrentState(), State::Paused, patience);
    QVERIFY(!runner->LastEnd());
    runner->GoOn();
    QVERIFY(WaitForEnd());
    QCOMPARE(runner->LastEnd()->written, 60);
}

void tst_JobRunner::cancelledRunsCanBeTakenUp()
{
    ZTBatchDocument job;
    Build(job);
    runner->Start(job, skipping);
    runner->Pause();
    QTRY_COMPARE_WITH_TIMEOUT(runner->CurrentState(), State::Paused, patience);
    runner->Cancel();
    QCOMPARE(runner->CurrentState(), State::Cancelling);
    QVERIFY(WaitForEnd());
    QVERIFY(runner->LastEnd()->isCancelled);
    QVERIFY(runner->LastEnd()->NotProcessed() > 0);
    runner->TakeUp(Path(QStringLiteral("out")));
    QVERIFY(WaitForEnd());
    QCOMPARE(runner->LastEnd()->written, 3);
}

void tst_JobRunner::questionsWaitForAnswers()
{
    QVERIFY(RunAll(skipping));
    QSignalSpy changed(runner.get(), &JobRunner::QuestionChanged);
    ZTBatchDocument job;
    Build(job);
    runner->Start(job, Settings::AskingPolicies());
    QTRY_VERIFY_WITH_TIMEOUT(runner->OpenQuestion(), patience);
    QCOMPARE(runner->OpenQuestion()->kind, PolicyKind::Naming);
    QCOMPARE(runner->OpenQuestion()->input, Path(QStringLiteral("photos/1.jpg")));
    QCOMPARE(runner->OpenQuestion()->output, Path(QStringLiteral("out/1.jpg")));
    runner->Answer(ZTBatchManager::NamingSkip, false);
    QVERIFY(!runner->OpenQuestion());
    QTRY_VERIFY_WITH_TIMEOUT(runner->OpenQuestion(), patience);
    QCOMPARE(runner->OpenQuestion()->input, Path(QStringLiteral("photos/2.jpg")));
    runner->Answer(ZTBatchManager::NamingRename, true);
    QVERIFY(WaitForEnd());
    QCOMPARE(runner->LastEnd()->skipped, 1);
    QCOMPARE(runner->LastEnd()->written, 2);
    QVERIFY(changed.size() >= 4);
}

// With the name and the number that it had in the run.
void tst_JobRunner::failedPicturesAreRetried()
{
    const QString second = Path(QStringLiteral("photos/2.jpg"));
    PictureFiles::WriteTruncated(second);
    ZTBatchDocument job;
    Build(job);
    ZTBatchOutputSettings& output = *job.GetOutputSettings();
    output.SetNamingTemplate(ZTBatchOutputSettings::PartMiddle, ZTBatchOutputSettings::TemplateNumber);
    runner->Start(job, skipping);
    QVERIFY(WaitForEnd());
    QCOMPARE(runner->LastEnd()->failed, 1);
    const QString wanted = runner->Results().value(second).output;
    QVERIFY(!QFile::exists(wanted));
    PictureFiles::WriteJpeg(second, 9);
    QSignalSpy results(runner.get(), &JobRunner::ResultKnown);
    QVERIFY(runner->RetryFailed());
    QVERIFY(WaitForEnd());
    QCOMPARE(runner->LastEnd()->failed, 0);
    QCOMPARE(runner->LastEnd()->written, 3);
    QCOMPARE(results.size(), 3); // Two of them are from before.
    QCOMPARE(runner->Results().value(second).output, wanted);
    QVERIFY(QFile::exists(wanted));
    QVERIFY(!runner->RetryFailed());
}

void tst_JobRunner::reportsAreSavedAfterwards()
{
    const QString path = Path(QStringLiteral("report.csv"));
    QVERIFY(RunAll(skipping));
    runner->SaveReport(path);
    QFile report(path);
    QVERIFY(report.open(QIODevice::ReadOnly));
    QCOMPARE(report.readAll().count("\"written\""), 3);
    try {
        runner->SaveReport(Path(QStringLiteral("report.txt")));
        QFAIL("A report of an unknown kind was written.");
    } catch (const RequestError& error) {
        QVERIFY(error.text.contains(QStringLiteral(".csv")));
    }
}

void tst_JobRunner::timeLeftFollowsTheBytes()
{
    JobRunner::Progress progress;
    progress.bytes = 1'000;
    QVERIFY(progress.SecondsLeft() < 0);
    progress.seconds = 10;
    QVERIFY(progress.SecondsLeft() < 0);
    progress.bytesDone = 250;
    QCOMPARE(progress.SecondsLeft(), 30.0);
    progress.bytesDone = 1'000;
    QCOMPARE(progress.SecondsLeft(), 0.0);
}

QTEST_GUILESS_MAIN(tst_JobRunner)
#include "tst_jobrunner.moc"
