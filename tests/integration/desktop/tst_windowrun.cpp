// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ProcessEnd.h"
#include "WindowStage.h"

#include <QCheckBox>
#include <QDirIterator>
#include <QListWidget>
#include <QMenuBar>
#include <QMimeData>

using namespace BatchDesktop;

using RunState = JobRunner::State;

/// Runs of the main window with the real server and real workers, from the pictures to the summary.
class tst_WindowRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theRunWritesThePreviewsBytes();
    void pausesAndGoesOnByTheMenu();
    void cancelledRunsAreResumed();
    void onlyWhatHasChangedIsMade();
    void severalPresetsMakeSeveralResults();
    void takenNamesAreAskedWithBothPictures();
    void answersHoldForTheRest();
    void picturesAddedInARunAreForTheNext();
    void failedPicturesAreShownAndRetried();
    void theReportIsSaved();
    void theFolderIsOpened();
    void theSummaryIsPutAway();
    void refusalsAreSaidAfterARunToo();
    void everyControlIsInTheMenu();
#ifdef Q_OS_LINUX
    void theServersDeathIsSurvived();
#endif

private:
    std::unique_ptr<WindowStage> stage;
};

void tst_WindowRun::init()
{
    stage = std::make_unique<WindowStage>();
    stage->MakePhotos(3);
    QVERIFY(stage->Open());
}

void tst_WindowRun::cleanup()
{
    stage.reset();
}

void tst_WindowRun::theRunWritesThePreviewsBytes()
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(stage->Path(QStringLiteral("photos")))});
    PicturesPane& pictures = stage->Window().Pictures();
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&pictures, &enter);
    QDropEvent drop(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&pictures, &drop);
    QVERIFY(drop.isAccepted());
    QTRY_COMPARE_WITH_TIMEOUT(stage->Count(), 3, WindowStage::patience);
    stage->SetOutput();

    auto* const presets = qobject_cast<PresetBox*>(stage->Part("preset"));
    QVERIFY(presets->count() > 1);
    presets->setCurrentIndex(1);
    Q_EMIT presets->activated(1);
    QCOMPARE(presets->Active(), presets->itemData(1).toString());
    stage->Change([](Settings& settings) {
        settings.format = QStringLiteral("PNG");
        settings.formatOptions.clear();
        settings.effects.append({QStringLiteral("exposure"), R"({"stops":1})", true});
    });
    QVERIFY(presets->IsChanged());

    QSignalSpy made(&stage->Window().Preview().Maker(), &PreviewMaker::Made);
    pictures.Select(stage->Photo(2));
    const auto isShown = [&] { return !made.isEmpty() && !stage->Window().Preview().Maker().IsUpdating(); };
    QVERIFY(QTest::qWaitFor(isShown, WindowStage::patience));
    const auto preview = made.last().first().value<PreviewPictures>();
    QCOMPARE(preview.input, stage->Photo(2));
    const QByteArray bytes = stage->Content(preview.result);
    QVERIFY(!bytes.isEmpty());

    QVERIFY(stage->Run());
    QCOMPARE(stage->Runner().LastEnd()->written, 3);
    QCOMPARE(stage->Content(stage->Runner().Results().value(stage->Photo(2)).output), bytes);
    QCOMPARE(stage->StateOf(2).state, RunStates::State::Written);
}

void tst_WindowRun::pausesAndGoesOnByTheMenu()
{
    stage->MakePhotos(30);
    QVERIFY(stage->Add(30));
    stage->SetOutput();
    stage->Trigger("start");
    QCOMPARE(stage->Runner().CurrentState(), RunState::Running);
    QVERIFY(!stage->Part("start")->isEnabled());
    stage->Trigger("pause");
    QVERIFY(stage->WaitForState(RunState::Paused));
    QVERIFY2(stage->Text().startsWith(QStringLiteral("Paused")), qPrintable(stage->Text()));
    QVERIFY(stage->Runner().CurrentProgress().Done() < 30);
    stage->Trigger("pause");
    QVERIFY(stage->WaitForEnd());
    QVERIFY2(stage->Text().contains(QStringLiteral("all 30 pictures")), qPrintable(stage->Text()));
}

void tst_WindowRun::cancelledRunsAreResumed()
{
    stage->MakePhotos(30);
    QVERIFY(stage->Add(30));
    stage->SetOutput();
    stage->Click("start");
    stage->Click("pause");
    QVERIFY(stage->WaitForState(RunState::Paused));
    stage->Click("cancel");
    QVERIFY(stage->WaitForEnd());
    QVERIFY(stage->Runner().LastEnd()->isCancelled);
    const int before = stage->Runner().LastEnd()->written;
    QVERIFY(before < 30);
    QVERIFY(stage->IsVisible("resume"));
    stage->Click("resume");
    QVERIFY(stage->WaitForState(RunState::Idle));
    QCOMPARE(stage->Runner().LastEnd()->written, 30);
    QVERIFY(!stage->IsVisible("resume"));
    QCOMPARE(QDir(stage->Path(QStringLiteral("out"))).entryList(QDir::Files | QDir::Hidden).size(), 30);
}

void tst_WindowRun::onlyWhatHasChangedIsMade()
{
    QVERIFY(stage->Add(3));
    stage->SetOutput();
    auto* const update = stage->Window().findChild<QAction*>(QStringLiteral("updateAction"));
    QVERIFY(update && !update->isChecked());
    update->trigger();
    stage->Click("start");
    QVERIFY(stage->WaitForEnd());
    QCOMPARE(stage->Runner().LastEnd()->written, 3);
    PictureFiles::WriteJpeg(stage->Photo(2), 50);
    const QByteArray before = stage->Content(stage->Result(2));
    stage->Click("start");
    QVERIFY(stage->WaitForEnd());
    QCOMPARE(stage->Runner().LastEnd()->written, 1);
    QCOMPARE(stage->Runner().LastEnd()->unchanged, 2);
    QVERIFY2(stage->Text().contains(QStringLiteral("1 written, 2 were up to date")), qPrintable(stage->Text()));
    QVERIFY(stage->Content(stage->Result(2)) != before);
}

void tst_WindowRun::severalPresetsMakeSeveralResults()
{
    PictureFiles::WriteTruncated(stage->Photo(2));
    QVERIFY(stage->Add(3));
    stage->SetOutput();
    QSignalSpy results(&stage->Runner(), &JobRunner::ResultKnown);
    stage->Trigger("several");
    auto* const list = qobject_cast<QListWidget*>(stage->Part("presetList"));
    const auto mark = [list](const QString& name) {
        const QList<QListWidgetItem*> found = list->findItems(name, Qt::MatchExactly);
        QCOMPARE(found.size(), 1);
        found.first()->setCheckState(Qt::Checked);
    };
    QVERIFY(!stage->Part("startSeveral")->isEnabled());
    mark(QStringLiteral("web"));
    QVERIFY(!stage->Part("startSeveral")->isEnabled());
    mark(QStringLiteral("thumbnails"));
    stage->Click("startSeveral");
    QVERIFY(stage->WaitForEnd());
    QCOMPARE(stage->Runner().LastEnd()->written, 4);
    QCOMPARE(stage->Runner().LastEnd()->failed, 2);
    QCOMPARE(results.size(), 3);
    for (const char* preset : {"web", "thumbnails"}) {
        QDirIterator made(stage->Path(QStringLiteral("out/") + QLatin1String(preset)), {QStringLiteral("*.jpg")},
                          QDir::Files, QDirIterator::Subdirectories);
        QStringList names;
        while (made.hasNext()) {
            names.append(QFileInfo(made.next()).completeBaseName());
        }
        names.sort();
        QCOMPARE(names, (QStringList{QStringLiteral("1"), QStringLiteral("3")}));
    }
    QCOMPARE(stage->StateOf(1).state, RunStates::State::Written);
    QCOMPARE(stage->StateOf(2).state, RunStates::State::Failed);

    const QString report = stage->Path(QStringLiteral("report.json"));
    stage->Window().Runs().chooseReport = [&report](QWidget*) { return report; };
    stage->Click("saveReport");
    QCOMPARE(stage->Content(report).count("\"written\""), 4);

    PictureFiles::WriteJpeg(stage->Photo(2), 5);
    stage->Click("retryFailed");
    QVERIFY(stage->WaitForState(RunState::Idle));
    QCOMPARE(stage->Runner().LastEnd()->written, 6);
    QCOMPARE(stage->StateOf(2).state, RunStates::State::Written);

    // What was chosen is remembered; who cancels starts nothing.
    QTRY_VERIFY(!stage->Window().findChild<QListWidget*>(QStringLiteral("presetList")));
    stage->Trigger("several");
    QVERIFY(stage->Part("startSeveral")->isEnabled());
    stage->Click("cancelSeveral");
    QCOMPARE(stage->Runner().CurrentState(), RunState::Idle);
}

void tst_WindowRun::takenNamesAreAskedWithBothPictures()
{
    PictureFiles::WriteJpeg(stage->Result(1), 9, 128, 48);
    QVERIFY(stage->Add(3));
    stage->SetOutput(true);
    stage->Click("start");
    QVERIFY(stage->WaitForQuestion());
    auto* const existing = qobject_cast<QLabel*>(stage->Part("existingPicture"));
    auto* const wanted = qobject_cast<QLabel*>(stage->Part("wantedPicture"));
    QTRY_VERIFY_WITH_TIMEOUT(existing->isVisible() && wanted->isVisible(), WindowStage::patience);
    const auto shape = [](const QLabel* label) {
        const QSize size = label->pixmap(Qt::ReturnByValue).size();
        return double(size.width()) / size.height();
    };
    QVERIFY(shape(existing) > 2);
    QVERIFY(shape(wanted) < 2);
    // Other pictures go on meanwhile, and Escape is no answer.
    QTRY_COMPARE_WITH_TIMEOUT(stage->Runner().CurrentProgress().Done(), 2, WindowStage::patience);
    QTest::keyClick(&stage->Window(), Qt::Key_Escape);
    QVERIFY(stage->Runner().OpenQuestion());
    const QByteArray old = stage->Content(stage->Result(1));
    stage->Click("answer_rename");
    QVERIFY(stage->WaitForEnd());
    QVERIFY(!stage->IsVisible("questionBar"));
    QCOMPARE(stage->Content(stage->Result(1)), old);
    QVERIFY(QFile::exists(stage->Path(QStringLiteral("out/1 (2).jpg"))));
}

void tst_WindowRun::answersHoldForTheRest()
{
    QVERIFY(stage->Add(3));
    stage->SetOutput(true);
    QVERIFY(stage->Run());
    QCOMPARE(stage->Runner().LastEnd()->written, 3);
    stage->Click("start");
    QVERIFY(stage->WaitForQuestion());
    qobject_cast<QCheckBox*>(stage->Part("answerForTheRest"))->setChecked(true);
    stage->Click("answer_skip");
    QVERIFY(stage->WaitForEnd());
    QCOMPARE(stage->Runner().LastEnd()->skipped, 3);
    QCOMPARE(stage->StateOf(3).state, RunStates::State::Skipped);
}

void tst_WindowRun::picturesAddedInARunAreForTheNext()
{
    QVERIFY(stage->Add(3));
    stage->SetOutput();
    stage->Click("start");
    stage->Click("pause");
    QVERIFY(stage->WaitForState(RunState::Paused));
    PictureFiles::WriteJpeg(stage->Path(QStringLiteral("more/4.jpg")), 4);
    stage->Window().AddPaths({stage->Path(QStringLiteral("more"))});
    QVERIFY(stage->Says(QStringLiteral("added now are for the next run")));
    stage->Click("pause");
    QVERIFY(stage->WaitForEnd());
    QCOMPARE(stage->Runner().LastEnd()->files, 3);
    QVERIFY(!QFile::exists(stage->Result(4)));
    QVERIFY(stage->Run());
    QCOMPARE(stage->Runner().LastEnd()->files, 4);
    QVERIFY(QFile::exists(stage->Result(4)));
    QVERIFY2(!stage->Text().contains(QStringLiteral("next run")), qPrintable(stage->Text()));
}

void tst_WindowRun::failedPicturesAreShownAndRetried()
{
    PictureFiles::WriteTruncated(stage->Photo(2));
    QVERIFY(stage->Add(3));
    stage->SetOutput();
    stage->Change([](Settings& settings) {
        settings.nameParts[ZTBatchOutputSettings::PartMiddle] = {ZTBatchOutputSettings::TemplateNumber, {}, 7, 2};
    });
    QVERIFY(stage->Run());
    QCOMPARE(stage->Runner().LastEnd()->failed, 1);
    QCOMPARE(stage->StateOf(2).state, RunStates::State::Failed);
    QVERIFY(!stage->StateOf(2).reason.isEmpty());
    stage->Click("showFailed");
    auto* const list = stage->Window().findChild<PictureList*>();
    QTRY_COMPARE(list->model()->rowCount(list->model()->index(0, 0)), 1);
    PictureFiles::WriteJpeg(stage->Photo(2), 5);
    stage->Click("retryFailed");
    QVERIFY(stage->WaitForState(RunState::Idle));
    QCOMPARE(stage->Runner().LastEnd()->written, 3);
    QVERIFY(QFile::exists(stage->Result(8).replace(QStringLiteral("/8"), QStringLiteral("/08"))));
    QCOMPARE(stage->StateOf(2).state, RunStates::State::Written);
    QCOMPARE(stage->StateOf(1).state, RunStates::State::Written);
}

void tst_WindowRun::theReportIsSaved()
{
    QVERIFY(stage->Add(3));
    stage->SetOutput();
    QVERIFY(stage->Run());
    QString chosen = stage->Path(QStringLiteral("report.json"));
    stage->Window().Runs().chooseReport = [&chosen](QWidget*) { return chosen; };
    stage->Click("saveReport");
    QCOMPARE(stage->Content(chosen).count("\"written\""), 3);
    QVERIFY2(stage->Text().contains(QDir::toNativeSeparators(chosen)), qPrintable(stage->Text()));
    chosen = stage->Path(QStringLiteral("photos"));
    stage->Click("saveReport");
    QVERIFY2(stage->Text().contains(QStringLiteral("was not saved")), qPrintable(stage->Text()));
    QVERIFY2(stage->Text().contains(QStringLiteral(".json")), qPrintable(stage->Text()));
}

void tst_WindowRun::theFolderIsOpened()
{
    QVERIFY(stage->Add(3));
    stage->SetOutput();
    QVERIFY(stage->Run());
    QString opened;
    stage->Window().Runs().openFolder = [&opened](const QString& folder) { opened = folder; };
    stage->Click("openFolder");
    QCOMPARE(opened, stage->Path(QStringLiteral("out")));
}

void tst_WindowRun::theSummaryIsPutAway()
{
    PictureFiles::WriteTruncated(stage->Photo(2));
    QVERIFY(stage->Add(3));
    stage->SetOutput();
    QVERIFY(stage->Run());
    QVERIFY(stage->IsVisible("retryFailed"));
    // A change is for the next run; what can be done about the last one stays.
    stage->Change([](Settings& settings) { settings.prefixSeparator = QStringLiteral("-"); });
    QVERIFY(stage->Says(QStringLiteral("3 pictures")));
    QVERIFY(stage->IsVisible("retryFailed"));
    stage->Click("putAway");
    for (const char* name : {"retryFailed", "showFailed", "saveReport", "openFolder", "putAway"}) {
        QVERIFY2(!stage->IsVisible(name), name);
    }
    QVERIFY(!stage->Runner().RetryFailed());
    QVERIFY(stage->Says(QStringLiteral("3 pictures, 1 new. 2 names are taken.")));
    QCOMPARE(stage->StateOf(1).state, RunStates::State::None);
    QCOMPARE(QDir(stage->Path(QStringLiteral("out"))).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

void tst_WindowRun::refusalsAreSaidAfterARunToo()
{
    QVERIFY(stage->Add(3));
    stage->SetOutput();
    QVERIFY(stage->Run());
    stage->Change([](Settings& settings) { settings.outputFolder.clear(); });
    stage->Click("start");
    QCOMPARE(stage->Runner().CurrentState(), RunState::Idle);
    QVERIFY2(stage->Text().contains(QStringLiteral("cannot be started")), qPrintable(stage->Text()));
}

void tst_WindowRun::everyControlIsInTheMenu()
{
    QStringList inMenus;
    for (const QAction* const menu : stage->Window().menuBar()->actions()) {
        for (const QAction* const action : menu->menu()->actions()) {
            inMenus.append(action->objectName());
        }
    }
    for (const QToolButton* const button : stage->Part("runBar")->findChildren<QToolButton*>()) {
        QVERIFY2(inMenus.contains(button->objectName() + QStringLiteral("Action")), qPrintable(button->objectName()));
    }
    QVERIFY(inMenus.contains(QStringLiteral("startAction")));
}

#ifdef Q_OS_LINUX
void tst_WindowRun::theServersDeathIsSurvived()
{
    stage->MakePhotos(40);
    QVERIFY(stage->Add(40));
    stage->SetOutput();
    stage->Click("start");
    stage->Click("pause");
    QVERIFY(stage->WaitForState(RunState::Paused));
    QVERIFY(stage->Runner().CurrentProgress().Done() < 40);
    QList<qint64> servers;
    for (const qint64 process : ChildrenOf(QCoreApplication::applicationPid())) {
        const QString program = QFileInfo(QStringLiteral("/proc/%1/exe").arg(process)).symLinkTarget();
        if (program.endsWith(QStringLiteral("/VelkoraBatchProcessing"))) {
            servers.append(process);
        }
    }
    QCOMPARE(servers.size(), 1);
    KillProcess(servers.first());
    QVERIFY(stage->Says(QStringLiteral("server has ended unexpectedly")));
    stage->Click("pause");
    QVERIFY(stage->WaitForEnd());
    QCOMPARE(stage->Runner().LastEnd()->written, 40);
    stage->Change([&](Settings& settings) { settings.outputFolder = stage->Path(QStringLiteral("other")); });
    QVERIFY(stage->Run());
    QCOMPARE(stage->Runner().LastEnd()->written, 40);
}
#endif

QTEST_MAIN(tst_WindowRun)
#include "tst_windowrun.moc"
