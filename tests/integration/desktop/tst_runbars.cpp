// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureFiles.h"

#include "hosts/common/InputCollector.h"
#include "hosts/common/JobDefaults.h"
#include "hosts/desktop/job/Settings.h"
#include "hosts/desktop/run/QuestionBar.h"
#include "hosts/desktop/run/RunBar.h"
#include "hosts/desktop/run/RunPriority.h"
#include "server/protocol/ServerLimits.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"

#include <QAccessible>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QtTest>

using namespace BatchDesktop;
using namespace BatchHost;

/// The bars of the run and of questions, with runs of the real server.
class tst_RunBars : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theForecastStandsBeforeRuns();
    void buttonsFollowTheRun();
    void endsAreTold();
    void failedPicturesAreRetried();
    void questionsAreAnswered();
    void answersHoldForTheRest();
    void cancellingEndsTheQuestion();
    void otherProgramsGoFirst();
    void everyWidgetHasAName();

private:
    QString Path(const QString& name) const { return folder->filePath(name); }
    void Start(const BatchJob::PolicyValues& policies = {});
    bool WaitForEnd() const;
    QWidget* Part(const char* name) const { return window->findChild<QWidget*>(QString::fromLatin1(name)); }
    void Click(const char* name) const { QTest::mouseClick(Part(name), Qt::LeftButton); }
    QString StatusText() const { return window->findChild<QLabel*>(QStringLiteral("status"))->text(); }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<JobRunner> runner;
    std::unique_ptr<QWidget> window;
    RunBar* bar = nullptr;
    QuestionBar* questions = nullptr;
};

namespace {

constexpr int patience = 60'000; // ms

} // namespace

void tst_RunBars::init()
{
    folder = std::make_unique<QTemporaryDir>();
    for (int i = 1; i <= 3; ++i) {
        PictureFiles::WriteJpeg(Path(QStringLiteral("photos/%1.jpg").arg(i)), i);
    }
    runner = std::make_unique<JobRunner>(Path(QStringLiteral("settings")));
    window = std::make_unique<QWidget>();
    auto* const layout = new QVBoxLayout(window.get());
    questions = new QuestionBar(*runner);
    bar = new RunBar(*runner);
    layout->addWidget(questions);
    layout->addWidget(bar);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
}

void tst_RunBars::cleanup()
{
    window.reset();
    runner.reset();
}

void tst_RunBars::Start(const BatchJob::PolicyValues& policies)
{
    ZTBatchDocument job;
    SetJobDefaults(job);
    job.GetOutputSettings()->SetPath(Path(QStringLiteral("out")));
    InputCollector(job, {}).Add({Path(QStringLiteral("photos"))});
    runner->Start(job, policies);
}

bool tst_RunBars::WaitForEnd() const
{
    return QTest::qWaitFor([this] { return runner->LastEnd().has_value(); }, patience);
}

void tst_RunBars::theForecastStandsBeforeRuns()
{
    bar->SetForecast(QStringLiteral("3 pictures"));
    QCOMPARE(StatusText(), QStringLiteral("3 pictures"));
    for (const char* name : {"pause", "cancel", "showFailed", "retryFailed", "openFolder", "saveReport", "progress"}) {
        QVERIFY2(!Part(name)->isVisible(), name);
    }
    QVERIFY(!questions->isVisible());
}

void tst_RunBars::buttonsFollowTheRun()
{
    Start();
    QVERIFY(Part("pause")->isVisible());
    QVERIFY(Part("cancel")->isVisible());
    QVERIFY(Part("progress")->isVisible());
    Click("pause");
    QCOMPARE(runner->CurrentState(), JobRunner::State::Pausing);
    QTRY_COMPARE_WITH_TIMEOUT(runner->CurrentState(), JobRunner::State::Paused, patience);
    QVERIFY2(StatusText().startsWith(QStringLiteral("Paused")), qPrintable(StatusText()));
    Click("pause");
    QCOMPARE(runner->CurrentState(), JobRunner::State::Running);
    QVERIFY(WaitForEnd());
    QVERIFY(!Part("pause")->isVisible());
    QVERIFY(Part("openFolder")->isVisible());
    QVERIFY(!Part("retryFailed")->isVisible());
    QSignalSpy wanted(bar, &RunBar::FolderWanted);
    Click("openFolder");
    QCOMPARE(wanted.size(), 1);
    QCOMPARE(wanted.first().first().toString(), Path(QStringLiteral("out")));
}

void tst_RunBars::endsAreTold()
{
    Start();
    QVERIFY(WaitForEnd());
    QVERIFY2(StatusText().contains(QStringLiteral("all 3 pictures were written")), qPrintable(StatusText()));
    Start();
    QVERIFY(WaitForEnd());
    QVERIFY2(StatusText().contains(QStringLiteral("0 written, 3 skipped, 0 failed")), qPrintable(StatusText()));
}

void tst_RunBars::failedPicturesAreRetried()
{
    PictureFiles::WriteTruncated(Path(QStringLiteral("photos/2.jpg")));
    Start();
    QVERIFY(WaitForEnd());
    QVERIFY(Part("showFailed")->isVisible());
    PictureFiles::WriteJpeg(Path(QStringLiteral("photos/2.jpg")), 7);
    Click("retryFailed");
    QVERIFY(runner->CurrentState() != JobRunner::State::Idle);
    QVERIFY(WaitForEnd());
    QCOMPARE(runner->LastEnd()->failed, 0);
    QVERIFY(!Part("retryFailed")->isVisible());
}

void tst_RunBars::questionsAreAnswered()
{
    Start();
    QVERIFY(WaitForEnd());
    QSignalSpy pictures(questions, &QuestionBar::PicturesWanted);
    Start(Settings::AskingPolicies());
    QTRY_VERIFY_WITH_TIMEOUT(questions->isVisible(), patience);
    QCOMPARE(pictures.size(), 1);
    QCOMPARE(pictures.first().first().toString(), Path(QStringLiteral("out/1.jpg")));
    const QString text = window->findChild<QLabel*>(QStringLiteral("questionText"))->text();
    QVERIFY2(text.contains(QStringLiteral("1.jpg")), qPrintable(text));
    // Escape is no answer.
    QTest::keyClick(questions, Qt::Key_Escape);
    QVERIFY(runner->OpenQuestion());
    Click("answer_rename");
    QVERIFY(!questions->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(questions->isVisible(), patience);
    Click("answer_skip");
    QTRY_VERIFY_WITH_TIMEOUT(questions->isVisible(), patience);
    QTest::keyClick(Part("answer_overwrite"), Qt::Key_Space);
    QVERIFY(WaitForEnd());
    QCOMPARE(runner->LastEnd()->written, 2);
    QCOMPARE(runner->LastEnd()->skipped, 1);
    QVERIFY(QFile::exists(Path(QStringLiteral("out/1 (2).jpg"))));
}

void tst_RunBars::answersHoldForTheRest()
{
    Start();
    QVERIFY(WaitForEnd());
    Start(Settings::AskingPolicies());
    QTRY_VERIFY_WITH_TIMEOUT(questions->isVisible(), patience);
    Click("answerForTheRest");
    Click("answer_skip");
    QVERIFY(WaitForEnd());
    QCOMPARE(runner->LastEnd()->skipped, 3);
}

void tst_RunBars::cancellingEndsTheQuestion()
{
    Start();
    QVERIFY(WaitForEnd());
    Start(Settings::AskingPolicies());
    QTRY_VERIFY_WITH_TIMEOUT(questions->isVisible(), patience);
    Click("cancel");
    QVERIFY(!questions->isVisible());
    QVERIFY(WaitForEnd());
    QVERIFY(runner->LastEnd()->isCancelled);
}

void tst_RunBars::otherProgramsGoFirst()
{
    const auto isInBackground = [] { return BatchProtocol::ServerLimits::FromEnvironment().isInBackground; };
    const QString file = Path(QStringLiteral("window.ini"));
    qunsetenv(BatchProtocol::normalPriorityLimit.variable);
    QObject parent;
    const RunPriority priority(file, &parent);
    QVERIFY(priority.Action()->isChecked());
    QVERIFY(isInBackground());
    priority.Action()->trigger();
    QVERIFY(!isInBackground());
    qunsetenv(BatchProtocol::normalPriorityLimit.variable);
    const RunPriority remembered(file, &parent);
    QVERIFY(!remembered.Action()->isChecked());
    QVERIFY(!isInBackground());
    remembered.Action()->trigger();
    QVERIFY(isInBackground());
}

void tst_RunBars::everyWidgetHasAName()
{
    Start();
    QVERIFY(WaitForEnd());
    Start(Settings::AskingPolicies());
    QTRY_VERIFY_WITH_TIMEOUT(questions->isVisible(), patience);
    for (const QWidget* const widget : window->findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus) {
            continue;
        }
        QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
        QVERIFY2(accessible && !accessible->text(QAccessible::Name).isEmpty(), qPrintable(widget->objectName()));
    }
}

QTEST_MAIN(tst_RunBars)
#include "tst_runbars.moc"
