// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ProcessEnd.h"
#include "WindowStage.h"

#include "hosts/common/JournalFile.h"

#include <QListWidget>
#include <QProcess>

#include <algorithm>
#include <cstdio>

using namespace BatchDesktop;

using RunState = JobRunner::State;

/// Windows that were killed in a run, and what the next one makes of it.
class tst_WindowResume : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aKilledRunIsResumed();
    void aKilledRunIsForgotten();
    void theJobInTheWindowStays();
    void aClosedRunIsOffered();
    void aRunOfSeveralPresetsIsOffered();
    void finishedRunsAreNotOffered();
    void vanishedFoldersAreForgotten();
    void runsThatEndLateAreOffered();
    void runsOfThisWindowEndTheSearch();

private:
    bool KillWindowInItsRun() const;
    QStringList HiddenResults() const;

    std::unique_ptr<WindowStage> stage;
};

namespace {

constexpr int photos = 20;
constexpr char folderVariable[] = "BATCHCORE_TEST_KILLED_WINDOW";

/// A window of another process, which starts a run in the folder. The run cannot end: the name of one result is taken,
/// and nobody answers the question about it.
int RunUntilKilled()
{
    EndWithParent();
    const QDir folder(qEnvironmentVariable(folderVariable));
    MainWindow window(folder.filePath(QStringLiteral("settings")), folder.filePath(QStringLiteral("data")));
    window.show();
    Settings settings = window.Job().CurrentSettings();
    settings.outputFolder = folder.filePath(QStringLiteral("out"));
    window.Job().Change(settings, QStringLiteral("Test"));
    window.AddPaths({folder.filePath(QStringLiteral("photos"))});
    const auto isThere = [&] { return window.Job().Document().GetInputModel()->GetFileNodesCount() == photos; };
    if (!QTest::qWaitFor(isThere, WindowStage::patience)) {
        return 1;
    }
    window.StartRun();
    const auto isHeld = [&] {
        return window.Runner().OpenQuestion() && window.Runner().Results().size() == photos - 1;
    };
    if (!QTest::qWaitFor(isHeld, WindowStage::patience)) {
        return 1;
    }
    std::puts("held");
    std::fflush(stdout);
    return QApplication::exec();
}

} // namespace

void tst_WindowResume::init()
{
    stage = std::make_unique<WindowStage>();
    stage->MakePhotos(photos);
}

void tst_WindowResume::cleanup()
{
    stage.reset();
}

bool tst_WindowResume::KillWindowInItsRun() const
{
    QDir().mkpath(stage->Path(QStringLiteral("out")));
    if (!QFile::copy(stage->Photo(1), stage->Result(photos))) {
        return false;
    }
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(folderVariable), stage->Path(QString()));
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), QStringList());
    QByteArray out;
    while (!out.contains("held")) {
        if (!process.waitForReadyRead(WindowStage::patience)) {
            qWarning("%s", process.readAllStandardError().constData());
            return false;
        }
        out += process.readAllStandardOutput();
    }
    const QList<qint64> children = ChildrenOf(process.processId());
    process.kill();
    const auto isGone = [&children] { return std::none_of(children.begin(), children.end(), IsProcessAlive); };
    return process.waitForFinished() && process.exitStatus() == QProcess::CrashExit &&
           QTest::qWaitFor(isGone, WindowStage::patience) && QFile::remove(stage->Result(photos));
}

QStringList tst_WindowResume::HiddenResults() const
{
    return QDir(stage->Path(QStringLiteral("out"))).entryList({QStringLiteral(".*")}, QDir::Files | QDir::Hidden);
}

void tst_WindowResume::aKilledRunIsResumed()
{
    QVERIFY(KillWindowInItsRun());
    QCOMPARE(QDir(stage->Path(QStringLiteral("out"))).entryList(QDir::Files).size(), photos - 1);
    QVERIFY(stage->Open());
    QTRY_VERIFY_WITH_TIMEOUT(stage->IsVisible("resumeBar"), WindowStage::patience);
    const QString text = stage->Text("resumeText");
    QVERIFY2(text.contains(QStringLiteral("of %1 pictures").arg(photos)), qPrintable(text));
    QVERIFY2(text.contains(QDir::toNativeSeparators(stage->Path(QStringLiteral("out")))), qPrintable(text));
    stage->Click("resumeInterrupted");
    QVERIFY(stage->WaitForEnd());
    QVERIFY(!stage->IsVisible("resumeBar"));
    QCOMPARE(stage->Runner().LastEnd()->written, photos);
    // The window was empty, so that it shows the job of the run, with all of its results.
    QCOMPARE(stage->Count(), photos);
    for (int photo = 1; photo <= photos; ++photo) {
        QCOMPARE(stage->StateOf(photo).state, RunStates::State::Written);
        QVERIFY(QFile::exists(stage->Result(photo)));
    }
    QCOMPARE(HiddenResults(), QStringList());
}

void tst_WindowResume::aKilledRunIsForgotten()
{
    QVERIFY(KillWindowInItsRun());
    QVERIFY(stage->Open());
    QTRY_VERIFY_WITH_TIMEOUT(stage->IsVisible("resumeBar"), WindowStage::patience);
    QVERIFY(!HiddenResults().isEmpty());
    stage->Click("forgetInterrupted");
    QVERIFY(!stage->IsVisible("resumeBar"));
    QCOMPARE(HiddenResults().filter(QStringLiteral("journal")), QStringList());
    QCOMPARE(stage->Runner().CurrentState(), RunState::Idle);
}

void tst_WindowResume::theJobInTheWindowStays()
{
    QVERIFY(KillWindowInItsRun());
    QVERIFY(stage->Open());
    QTRY_VERIFY_WITH_TIMEOUT(stage->IsVisible("resumeBar"), WindowStage::patience);
    stage->Window().AddPaths({stage->Photo(3)});
    QTRY_COMPARE_WITH_TIMEOUT(stage->Count(), 1, WindowStage::patience);
    stage->Click("resumeInterrupted");
    QVERIFY(stage->WaitForEnd());
    QCOMPARE(stage->Runner().LastEnd()->written, photos);
    QCOMPARE(stage->Count(), 1);
}

void tst_WindowResume::aClosedRunIsOffered()
{
    QVERIFY(stage->Open());
    QVERIFY(stage->Add(photos));
    stage->SetOutput();
    stage->Click("start");
    stage->Click("pause");
    QVERIFY(stage->WaitForState(RunState::Paused));
    stage->Close();
    QVERIFY(stage->Open());
    QTRY_VERIFY_WITH_TIMEOUT(stage->IsVisible("resumeBar"), WindowStage::patience);
    stage->Click("resumeInterrupted");
    QVERIFY(stage->WaitForEnd());
    QCOMPARE(stage->Runner().LastEnd()->written, photos);
}

void tst_WindowResume::aRunOfSeveralPresetsIsOffered()
{
    QVERIFY(stage->Open());
    QVERIFY(stage->Add(photos));
    stage->SetOutput();
    stage->Trigger("several");
    auto* const list = qobject_cast<QListWidget*>(stage->Part("presetList"));
    for (const char* const preset : {"web", "thumbnails"}) {
        list->findItems(QString::fromLatin1(preset), Qt::MatchExactly).first()->setCheckState(Qt::Checked);
    }
    stage->Click("startSeveral");
    stage->Click("pause");
    QVERIFY(stage->WaitForState(RunState::Paused));
    const int done = stage->Runner().CurrentProgress().Done();
    QVERIFY(done < 2 * photos);
    stage->Close();
    QVERIFY(stage->Open());
    QTRY_VERIFY_WITH_TIMEOUT(stage->IsVisible("resumeBar"), WindowStage::patience);
    const QString text = stage->Text("resumeText");
    QVERIFY2(text.contains(QStringLiteral("after %1 of %2 ").arg(done).arg(2 * photos)), qPrintable(text));
    stage->Click("resumeInterrupted");
    QVERIFY(stage->WaitForEnd());
    QCOMPARE(stage->Runner().LastEnd()->written, 2 * photos);
    QCOMPARE(stage->Count(), photos);
    QCOMPARE(stage->Window().Job().CurrentSettings().outputFolder, stage->Path(QStringLiteral("out")));
}

void tst_WindowResume::finishedRunsAreNotOffered()
{
    PictureFiles::WriteTruncated(stage->Photo(2));
    QVERIFY(stage->Open());
    QVERIFY(stage->Add(photos));
    stage->SetOutput();
    QVERIFY(stage->Run());
    QCOMPARE(stage->Runner().LastEnd()->failed, 1);
    stage->Close();
    InterruptedRunSearch search(stage->SettingsFolder());
    QSignalSpy found(&search, &InterruptedRunSearch::Found);
    search.Start();
    QVERIFY(found.wait(WindowStage::patience));
    QVERIFY(found.first().first().value<QVector<InterruptedRun>>().isEmpty());
    QCOMPARE(HiddenResults(), QStringList());
}

void tst_WindowResume::vanishedFoldersAreForgotten()
{
    QVERIFY(KillWindowInItsRun());
    QVERIFY(QDir(stage->Path(QStringLiteral("out"))).removeRecursively());
    InterruptedRunSearch search(stage->SettingsFolder());
    QSignalSpy found(&search, &InterruptedRunSearch::Found);
    search.Start();
    QVERIFY(found.wait(WindowStage::patience));
    QVERIFY(found.first().first().value<QVector<InterruptedRun>>().isEmpty());
    QVERIFY(!QFileInfo::exists(stage->Path(QStringLiteral("out"))));
}

void tst_WindowResume::runsThatEndLateAreOffered()
{
    QVERIFY(KillWindowInItsRun());
    const QStringList journals = BatchHost::JournalFile::In(stage->Path(QStringLiteral("out")));
    QCOMPARE(journals.size(), 1);
    auto server = BatchHost::JournalFile::Take(journals.first());
    QVERIFY2(server->Problem().isEmpty(), qPrintable(server->Problem()));
    InterruptedRunSearch search(stage->SettingsFolder());
    QSignalSpy found(&search, &InterruptedRunSearch::Found);
    const auto foundLast = [&] { return found.last().first().value<QVector<InterruptedRun>>(); };
    search.Start();
    QVERIFY(found.wait(WindowStage::patience));
    QVERIFY(foundLast().isEmpty());
    server.reset();
    QTRY_COMPARE_WITH_TIMEOUT(foundLast().size(), 1, WindowStage::patience);
    QCOMPARE(foundLast().first().journal, journals.first());
}

// The journal of a run of its own must not be taken for one that was left behind.
void tst_WindowResume::runsOfThisWindowEndTheSearch()
{
    QVERIFY(KillWindowInItsRun());
    const QString out = stage->Path(QStringLiteral("out"));
    auto server = BatchHost::JournalFile::Take(BatchHost::JournalFile::In(out).value(0));
    InterruptedRunSearch search(stage->SettingsFolder());
    QSignalSpy found(&search, &InterruptedRunSearch::Found);
    search.Start();
    QVERIFY(found.wait(WindowStage::patience));
    search.Remember(out);
    server.reset();
    QVERIFY(!found.wait(2000));
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (qEnvironmentVariableIsSet(folderVariable)) {
        return RunUntilKilled();
    }
    tst_WindowResume test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_windowresume.moc"
