// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureFiles.h"

#include "hosts/desktop/pictures/AddingLine.h"
#include "hosts/desktop/pictures/InputModule.h"
#include "hosts/desktop/pictures/PicturesPane.h"

#include "ZTInputDnDHandler.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QTemporaryDir>
#include <QToolButton>
#include <QUrl>
#include <QtTest>

using namespace BatchDesktop;

namespace {

#ifdef Q_OS_WIN
constexpr int linkedFolders = 0; // A link that Qt makes there is an ordinary file.
#else
constexpr int linkedFolders = 1;
#endif

/// What another module may register in place of the window's handler.
class OtherHandler : public ZTBatchManager::ZTInputDnDHandler
{
public:
    mutable int dropped = 0;

protected:
    bool DoIsAccept(const QMimeData&) const override { return true; }
    void DoDropData(ZTBatchInputModel*, const QMimeData&) override { ++dropped; }
};

} // namespace

/// The pane with its module, as users and other modules work with it.
class tst_PicturesPane : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void foldersCanBeDropped();
    void pathsCanBePasted();
    void dialogsAddToo();
    void addingIsOneStep();
    void whatIsThereIsNotAddedAgain();
    void problemsAreSaidAndNothingElseIsLost();
    void otherHandlersTakeOver();
    void otherActionsHaveButtons();
    void selectedPicturesAreRemovedByKey();
    void nextAndPreviousFollowTheFilter();
    void resultsAreNamedWithoutTheirOwnFolder();
    void filterByTextAndState();
    void whatTheFilterHidesIsNotRemoved();
    void theFilterKeepsTheCurrentPictureAndClosedFolders();
    void takenNamesComeAndGoWithThePlan();
    void theGridHasTheSameCurrentPicture();
    void showInFolderGetsTheSelection();
    void vanishedFilesAreSaid();
    void thumbnailsComeForWhatIsSeen();
    void undoingEndsTheScan();
    void everythingHasANameAndATurn();

private:
    QString Path(const QString& name) const { return folder->filePath(name); }
    void WritePictures(const QStringList& names) const;
    void Add(const QStringList& paths);
    QString Head() const { return pane->findChild<QLabel*>(QStringLiteral("picturesHead"))->text(); }
    int Count() const { return job->Document().GetInputModel()->GetFileNodesCount(); }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<EditedJob> job;
    std::unique_ptr<PicturesPane> pane;
    std::unique_ptr<InputModule> module;
    QStringList toChoose; ///< by the next dialog
    QStringList shown;    ///< in their folders
};

void tst_PicturesPane::init()
{
    folder = std::make_unique<QTemporaryDir>();
    ZTBatchManager::InitInstance(folder->path());
    job = std::make_unique<EditedJob>();
    pane = std::make_unique<PicturesPane>(*job,
                                          ThumbnailFiles(Path(QStringLiteral("own")), Path(QStringLiteral("desktop"))));
    const auto choose = [this](QWidget*, const InputDialogs::Use& use) { use(toChoose); };
    module = std::make_unique<InputModule>(
        *pane, InputDialogs{choose, choose, [this](const QStringList& paths) { shown = paths; }});
    pane->resize(600, 700);
    pane->show();
    QVERIFY(QTest::qWaitForWindowExposed(pane.get()));
}

void tst_PicturesPane::cleanup()
{
    module.reset();
    pane.reset();
    job.reset();
    ZTBatchManager::ReleaseInstance();
}

void tst_PicturesPane::WritePictures(const QStringList& names) const
{
    for (const QString& name : names) {
        PictureFiles::WriteJpeg(Path(name));
    }
}

void tst_PicturesPane::Add(const QStringList& paths)
{
    QSignalSpy ended(&pane->Adder(), &InputAdder::Ended);
    pane->AddPaths(paths);
    QTRY_COMPARE(ended.size(), 1);
}

void tst_PicturesPane::foldersCanBeDropped()
{
    WritePictures({QStringLiteral("in/a.jpg"), QStringLiteral("in/sub/b.jpg"), QStringLiteral("c.jpg")});
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(Path(QStringLiteral("in"))), QUrl::fromLocalFile(Path(QStringLiteral("c.jpg")))});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(pane.get(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPoint(10, 10), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(pane.get(), &drop);
    QVERIFY(drop.isAccepted());
    QCOMPARE(drop.dropAction(), Qt::CopyAction);
    QTRY_COMPARE(Head(), QStringLiteral("3 pictures in 2 folders"));
    QVERIFY(pane->findChild<PictureList*>()->isVisible());

    QMimeData text;
    text.setText(QStringLiteral("no path"));
    QDragEnterEvent other(QPoint(10, 10), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    other.ignore();
    QApplication::sendEvent(pane.get(), &other);
    QVERIFY(!other.isAccepted());
}

void tst_PicturesPane::pathsCanBePasted()
{
    WritePictures({QStringLiteral("a.jpg"), QStringLiteral("b.jpg")});
    pane->activateWindow();
    pane->findChild<QToolButton*>(QStringLiteral("listButton"))->setFocus();
    QApplication::clipboard()->setText(Path(QStringLiteral("a.jpg")) + QLatin1Char('\n') +
                                       Path(QStringLiteral("b.jpg")));
    QTest::keySequence(pane.get(), QKeySequence(QKeySequence::Paste));
    QTRY_COMPARE(Head(), QStringLiteral("2 pictures"));
}

void tst_PicturesPane::dialogsAddToo()
{
    WritePictures({QStringLiteral("a.jpg"), QStringLiteral("in/b.jpg")});
    toChoose = QStringList(Path(QStringLiteral("a.jpg")));
    QTest::mouseClick(pane->findChild<QToolButton*>(QStringLiteral("addFilesButton")), Qt::LeftButton);
    QTRY_COMPARE(Head(), QStringLiteral("1 picture"));
    toChoose = QStringList(Path(QStringLiteral("in")));
    QTest::mouseClick(pane->findChild<QToolButton*>(QStringLiteral("addFolderButton")), Qt::LeftButton);
    QTRY_COMPARE(Head(), QStringLiteral("2 pictures in 1 folder"));
}

void tst_PicturesPane::addingIsOneStep()
{
    QStringList names;
    for (int i = 0; i < 60; ++i) {
        names.append(QStringLiteral("in/%1/%2.jpg").arg(i % 7).arg(i));
    }
    WritePictures(names);
    Add({Path(QStringLiteral("in"))});
    QCOMPARE(Count(), 60);
    QCOMPARE(job->History().count(), 1);
    QCOMPARE(job->History().undoText(), QStringLiteral("Add pictures"));
    job->History().undo();
    QCOMPARE(Count(), 0);
    QTRY_COMPARE(Head(), QStringLiteral("0 pictures"));
    job->History().redo();
    QCOMPARE(Count(), 60);
}

void tst_PicturesPane::whatIsThereIsNotAddedAgain()
{
    WritePictures({QStringLiteral("in/a.jpg")});
    Add({Path(QStringLiteral("in"))});
    Add({Path(QStringLiteral("in")), Path(QStringLiteral("in/a.jpg"))});
    QCOMPARE(Count(), 1);
    QCOMPARE(job->History().count(), 1);
    QCOMPARE(pane->findChild<AddingLine*>()->Problems().size(), 2);
}

void tst_PicturesPane::problemsAreSaidAndNothingElseIsLost()
{
    WritePictures({QStringLiteral("in/a.jpg"), QStringLiteral("b.jpg")});
    QVERIFY(QFile::link(Path(QStringLiteral("in")), Path(QStringLiteral("in/again"))));
    Add({Path(QStringLiteral("none")), Path(QStringLiteral("in")), Path(QStringLiteral("none.jpg")),
         Path(QStringLiteral("b.jpg"))});
    QCOMPARE(Count(), 2);
    const auto* const line = pane->findChild<AddingLine*>();
    QVERIFY(line->isVisible());
    QCOMPARE(line->Problems().size(), linkedFolders + 2);
    QCOMPARE(line->Problems().first(), Path(QStringLiteral("none")) + QStringLiteral(" does not exist"));
    QTest::mouseClick(line->findChild<QToolButton*>(QStringLiteral("closeProblems")), Qt::LeftButton);
    QVERIFY(!line->isVisible());
}

void tst_PicturesPane::otherHandlersTakeOver()
{
    WritePictures({QStringLiteral("a.jpg")});
    OtherHandler other;
    ZTBatchManager::Instance()->RegisterDragAndDropHandler(&other);
    pane->AddPaths({Path(QStringLiteral("a.jpg"))});
    QCOMPARE(other.dropped, 1);
    QVERIFY(!pane->Adder().IsBusy());
}

void tst_PicturesPane::otherActionsHaveButtons()
{
    QAction action(QStringLiteral("Rate"));
    action.setObjectName(QStringLiteral("rate"));
    QSignalSpy triggered(&action, &QAction::triggered);
    ZTBatchManager::Instance()->RegisterInputAction(&action, 25);
    auto* const button = pane->findChild<QToolButton*>(QStringLiteral("rateButton"));
    QVERIFY(button);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(triggered.size(), 1);
    QVERIFY(pane->findChild<PictureList*>()->actions().contains(&action));
    QCOMPARE(pane->actions().indexOf(&action), 2);
    ZTBatchManager::Instance()->UnregisterInputAction(&action);
    QVERIFY(!pane->findChild<QToolButton*>(QStringLiteral("rateButton")));
    QVERIFY(!pane->actions().contains(&action));
}

void tst_PicturesPane::selectedPicturesAreRemovedByKey()
{
    WritePictures({QStringLiteral("a.jpg"), QStringLiteral("b.jpg"), QStringLiteral("c.jpg")});
    Add({Path(QStringLiteral("a.jpg")), Path(QStringLiteral("b.jpg")), Path(QStringLiteral("c.jpg"))});
    auto* const remove = pane->findChild<QToolButton*>(QStringLiteral("removeInputsButton"));
    QVERIFY(!remove->isEnabled());
    auto* const list = pane->findChild<PictureList*>();
    pane->activateWindow();
    QTRY_VERIFY(list->isVisible());
    list->setFocus();
    pane->Select(Path(QStringLiteral("b.jpg")));
    QVERIFY(remove->isEnabled());
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(Count(), 2);
    QVERIFY(!pane->Inputs().Contains(Path(QStringLiteral("b.jpg"))));
    job->History().undo();
    QCOMPARE(Count(), 3);
    QCOMPARE(job->Document().GetInputModel()->index(1, 0).data().toString(),
             QDir::toNativeSeparators(Path(QStringLiteral("b.jpg"))));
}

void tst_PicturesPane::nextAndPreviousFollowTheFilter()
{
    WritePictures({QStringLiteral("in/one/a1.jpg"), QStringLiteral("in/one/b1.jpg"), QStringLiteral("in/two/a2.jpg"),
                   QStringLiteral("in/z.jpg")});
    Add({Path(QStringLiteral("in"))});
    QTRY_VERIFY(pane->findChild<PictureList*>()->isVisible());
    QSignalSpy changed(pane.get(), &PicturesPane::CurrentChanged);
    QStringList visited;
    for (int i = 0; i < 5; ++i) {
        pane->SelectNext();
        visited.append(pane->Current().section(QLatin1Char('/'), -1));
    }
    QCOMPARE(visited, QStringList({QStringLiteral("a1.jpg"), QStringLiteral("b1.jpg"), QStringLiteral("a2.jpg"),
                                   QStringLiteral("z.jpg"), QStringLiteral("z.jpg")}));
    QCOMPARE(changed.size(), 4);
    pane->Filter(QStringLiteral("a"), ShownState::All);
    pane->SelectPrevious();
    pane->Select(Path(QStringLiteral("in/two/a2.jpg")));
    pane->SelectPrevious();
    QCOMPARE(pane->Current(), Path(QStringLiteral("in/one/a1.jpg")));
    job->History().undo();
    QTRY_COMPARE(pane->Current(), QString());
}

void tst_PicturesPane::resultsAreNamedWithoutTheirOwnFolder()
{
    WritePictures({QStringLiteral("in/one/a.jpg"), QStringLiteral("b.jpg")});
    Settings settings = job->CurrentSettings();
    settings.structure = ZTBatchOutputSettings::StructureAsInput;
    job->Change(settings, QStringLiteral("Test"));
    Add({Path(QStringLiteral("in")), Path(QStringLiteral("b.jpg"))});
    QTRY_COMPARE(Count(), 2);
    QTRY_VERIFY(pane->Names().IsCurrent());
    const auto result = [&](const QString& file) {
        pane->Select(Path(file));
        return pane->findChild<PictureList*>()->currentIndex().siblingAtColumn(PictureColumns::ResultColumn);
    };
    const QModelIndex inFolder = result(QStringLiteral("in/one/a.jpg"));
    QCOMPARE(inFolder.data().toString(), QStringLiteral("a.jpg"));
    const QString whole = QDir::toNativeSeparators(QStringLiteral("in/one/a.jpg"));
    QVERIFY(inFolder.data(Qt::ToolTipRole).toString().contains(QStringLiteral("Written as %1").arg(whole)));
    QCOMPARE(result(QStringLiteral("b.jpg")).data().toString(), QStringLiteral("b.jpg"));
}

void tst_PicturesPane::filterByTextAndState()
{
    WritePictures({QStringLiteral("in/a.jpg"), QStringLiteral("in/b.jpg"), QStringLiteral("in/ab.jpg")});
    Add({Path(QStringLiteral("in"))});
    QTRY_COMPARE(Head(), QStringLiteral("3 pictures in 1 folder"));
    auto* const text = pane->findChild<QLineEdit*>(QStringLiteral("pictureFilter"));
    pane->activateWindow();
    QTest::keyClick(pane.get(), '/');
    QTRY_VERIFY(text->hasFocus());
    QTest::keyClicks(text, QStringLiteral("B"));
    QTRY_COMPARE(Head(), QStringLiteral("2 of 3 pictures"));
    pane->States().Begin(
        {Path(QStringLiteral("in/a.jpg")), Path(QStringLiteral("in/b.jpg")), Path(QStringLiteral("in/ab.jpg"))});
    pane->Filter(QString(), ShownState::Failed);
    QCOMPARE(Head(), QStringLiteral("0 of 3 pictures"));
    pane->States().Set(Path(QStringLiteral("in/ab.jpg")), RunStates::State::Failed, QStringLiteral("why"));
    QTRY_COMPARE(Head(), QStringLiteral("1 of 3 pictures"));
    pane->Filter(QString(), ShownState::All);
    QCOMPARE(Head(), QStringLiteral("3 pictures in 1 folder"));
}

void tst_PicturesPane::whatTheFilterHidesIsNotRemoved()
{
    WritePictures({QStringLiteral("in/a1.jpg"), QStringLiteral("in/b1.jpg"), QStringLiteral("in/sub/a2.jpg"),
                   QStringLiteral("in/sub/b2.jpg")});
    Add({Path(QStringLiteral("in"))});
    auto* const list = pane->findChild<PictureList*>();
    QTRY_VERIFY(list->isVisible());
    list->selectAll();
    QCOMPARE(pane->SelectedPaths(), QStringList(Path(QStringLiteral("in"))));
    pane->Filter(QStringLiteral("a"), ShownState::All);
    QVERIFY(pane->SelectedPaths().isEmpty() || pane->SelectedPaths() == QStringList(pane->Current()));
    list->selectAll();
    QStringList selected = pane->SelectedPaths();
    selected.sort();
    QCOMPARE(selected, QStringList({Path(QStringLiteral("in/a1.jpg")), Path(QStringLiteral("in/sub/a2.jpg"))}));
    pane->RemoveSelected();
    QCOMPARE(Count(), 2);
    QVERIFY(pane->Inputs().Contains(Path(QStringLiteral("in/b1.jpg"))));
    QVERIFY(pane->Inputs().Contains(Path(QStringLiteral("in/sub/b2.jpg"))));
    job->History().undo();
    QCOMPARE(Count(), 4);
}

void tst_PicturesPane::theFilterKeepsTheCurrentPictureAndClosedFolders()
{
    WritePictures({QStringLiteral("in/one/a1.jpg"), QStringLiteral("in/one/b1.jpg"), QStringLiteral("in/two/a2.jpg"),
                   QStringLiteral("in/two/b2.jpg")});
    Add({Path(QStringLiteral("in"))});
    auto* const list = pane->findChild<PictureList*>();
    QTRY_VERIFY(list->isVisible());
    const QAbstractItemModel& rows = *list->model();
    const auto one = [&] { return rows.index(0, 0, rows.index(0, 0)); };
    QVERIFY(list->isExpanded(one()));
    list->collapse(one());
    pane->Select(Path(QStringLiteral("in/two/b2.jpg")));
    QSignalSpy changed(pane.get(), &PicturesPane::CurrentChanged);
    pane->Filter(QStringLiteral("b"), ShownState::All);
    QCOMPARE(pane->Current(), Path(QStringLiteral("in/two/b2.jpg")));
    QCOMPARE(pane->SelectedPaths(), QStringList(pane->Current()));
    QCOMPARE(changed.size(), 0); // Its preview stays.
    pane->Filter(QStringLiteral("a2"), ShownState::All);
    QCOMPARE(pane->Current(), Path(QStringLiteral("in/two/a2.jpg")));
    QCOMPARE(rows.rowCount(rows.index(0, 0)), 1);
    pane->Filter(QString(), ShownState::All);
    QCOMPARE(pane->Current(), Path(QStringLiteral("in/two/a2.jpg")));
    QVERIFY(!list->isExpanded(one()));
    QVERIFY(list->isExpanded(one().siblingAtRow(1)));
    pane->Filter(QStringLiteral("nothing"), ShownState::All);
    QCOMPARE(pane->Current(), QString());
}

// Names that are planned anew change what passes.
void tst_PicturesPane::takenNamesComeAndGoWithThePlan()
{
    WritePictures({QStringLiteral("in/one/a.jpg"), QStringLiteral("in/two/a.jpg"), QStringLiteral("in/two/b.jpg")});
    Add({Path(QStringLiteral("in"))});
    QTRY_COMPARE(Count(), 3);
    const auto plan = [&](ZTBatchOutputSettings::FolderStructure structure) {
        Settings settings = job->CurrentSettings();
        settings.structure = structure;
        job->Change(settings, QStringLiteral("Test"));
    };
    plan(ZTBatchOutputSettings::StructureAsInput);
    QTRY_VERIFY(pane->Names().IsCurrent());
    pane->Filter(QString(), ShownState::NameTaken);
    QTRY_COMPARE(Head(), QStringLiteral("0 of 3 pictures"));
    plan(ZTBatchOutputSettings::StructureFlat);
    auto* const list = pane->findChild<PictureList*>();
    const QAbstractItemModel& rows = *list->model();
    QTRY_COMPARE(rows.rowCount(), 1);
    const QModelIndex top = rows.index(0, 0);
    QVERIFY(list->isExpanded(top));
    for (int row = 0; row < rows.rowCount(top); ++row) {
        QVERIFY(list->isExpanded(rows.index(row, 0, top)));
    }
    QTRY_VERIFY(Head() != QStringLiteral("0 of 3 pictures"));
    plan(ZTBatchOutputSettings::StructureAsInput);
    QTRY_COMPARE(rows.rowCount(), 0);
    QTRY_COMPARE(Head(), QStringLiteral("0 of 3 pictures"));
}

void tst_PicturesPane::theGridHasTheSameCurrentPicture()
{
    WritePictures({QStringLiteral("in/a.jpg"), QStringLiteral("in/b.jpg"), QStringLiteral("in/c.jpg"),
                   QStringLiteral("in/d.jpg")});
    Add({Path(QStringLiteral("in"))});
    QTRY_VERIFY(pane->findChild<PictureList*>()->isVisible());
    pane->Select(Path(QStringLiteral("in/b.jpg")));
    QTest::mouseClick(pane->findChild<QToolButton*>(QStringLiteral("gridButton")), Qt::LeftButton);
    auto* const grid = pane->findChild<PictureGrid*>();
    QVERIFY(grid->isVisible());
    QCOMPARE(pane->Current(), Path(QStringLiteral("in/b.jpg")));
    QCOMPARE(grid->currentIndex().data().toString(), QStringLiteral("b.jpg"));
    QTest::keyClick(grid, Qt::Key_Right);
    QCOMPARE(pane->Current(), Path(QStringLiteral("in/c.jpg")));
    pane->SelectNext();
    QCOMPARE(pane->Current(), Path(QStringLiteral("in/d.jpg")));
    grid->setCurrentIndex(grid->model()->index(0, 0));
    QCOMPARE(pane->Current(), QString());
    QCOMPARE(pane->SelectedPaths(), QStringList(Path(QStringLiteral("in"))));
    QTest::keyClick(grid, Qt::Key_Return);
    QCOMPARE(grid->model()->rowCount(), 1);
    QTest::keyClick(grid, Qt::Key_Return);
    QCOMPARE(grid->model()->rowCount(), 3);
    pane->Select(Path(QStringLiteral("in/a.jpg")));
    pane->RemoveSelected();
    QTRY_COMPARE(grid->model()->rowCount(), 2);
    QTest::mouseClick(pane->findChild<QToolButton*>(QStringLiteral("listButton")), Qt::LeftButton);
    QVERIFY(pane->findChild<PictureList*>()->isVisible());
}

void tst_PicturesPane::showInFolderGetsTheSelection()
{
    WritePictures({QStringLiteral("a.jpg")});
    Add({Path(QStringLiteral("a.jpg"))});
    QTRY_VERIFY(pane->findChild<PictureList*>()->isVisible());
    pane->Select(Path(QStringLiteral("a.jpg")));
    QTest::mouseClick(pane->findChild<QToolButton*>(QStringLiteral("showInFolderButton")), Qt::LeftButton);
    QCOMPARE(shown, QStringList(Path(QStringLiteral("a.jpg"))));
}

void tst_PicturesPane::vanishedFilesAreSaid()
{
    WritePictures({QStringLiteral("a.jpg")});
    Add({Path(QStringLiteral("a.jpg"))});
    QTRY_VERIFY(pane->findChild<PictureList*>()->isVisible());
    QVERIFY(QFile::remove(Path(QStringLiteral("a.jpg"))));
    pane->Select(Path(QStringLiteral("a.jpg")));
    const QString text = pane->findChild<PictureList*>()->currentIndex().data(Qt::ToolTipRole).toString();
    QVERIFY2(text.contains(QStringLiteral("does not exist any more")), qPrintable(text));
}

void tst_PicturesPane::thumbnailsComeForWhatIsSeen()
{
    QStringList names;
    for (int i = 0; i < 300; ++i) {
        names.append(QStringLiteral("in/%1.jpg").arg(i));
    }
    WritePictures(names);
    Add({Path(QStringLiteral("in"))});
    QTRY_VERIFY_WITH_TIMEOUT(!pane->Pictures().Of(Path(QStringLiteral("in/0.jpg"))).isNull(), 60'000);
    QVERIFY(pane->Pictures().MadeCount() < 100);
    QVERIFY(pane->Pictures().Of(Path(QStringLiteral("in/299.jpg"))).isNull());
    pane->Select(Path(QStringLiteral("in/299.jpg")));
    QTRY_VERIFY_WITH_TIMEOUT(!pane->Pictures().Of(Path(QStringLiteral("in/299.jpg"))).isNull(), 60'000);
}

void tst_PicturesPane::undoingEndsTheScan()
{
    QStringList names;
    for (int i = 0; i < 400; ++i) {
        names.append(QStringLiteral("in/%1/a.jpg").arg(i));
    }
    WritePictures(names);
    const QMetaObject::Connection connection = connect(
        &job->History(), &QUndoStack::indexChanged, this,
        [this](int index) {
            if (index == 1) {
                job->History().undo();
            }
        },
        Qt::QueuedConnection);
    Add({Path(QStringLiteral("in"))});
    disconnect(connection);
    QCOMPARE(Count(), 0);
}

void tst_PicturesPane::everythingHasANameAndATurn()
{
    WritePictures({QStringLiteral("a.jpg")});
    Add({Path(QStringLiteral("a.jpg"))});
    QTRY_VERIFY(pane->findChild<PictureList*>()->isVisible());
    int seen = 0;
    const QList<QWidget*> widgets = pane->findChildren<QWidget*>();
    for (QWidget* const widget : widgets) {
        const bool isInternal = widget->objectName().startsWith(QLatin1String("qt_"));
        if (!isInternal && widget->isVisible() && widget->focusPolicy() & Qt::TabFocus) {
            ++seen;
            QVERIFY2(!widget->accessibleName().isEmpty(), widget->metaObject()->className());
            QVERIFY2(!widget->objectName().isEmpty(), widget->metaObject()->className());
        }
    }
    QVERIFY(seen >= 8);
}

QTEST_MAIN(tst_PicturesPane)
#include "tst_picturespane.moc"
