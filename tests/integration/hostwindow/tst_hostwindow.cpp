// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "HostWindow.h"
#include "PictureDrop.h"
#include "PictureUpdate.h"

#include "PictureFiles.h"
#include "PrivateTempDir.h"
#include "ZTBatchManager.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

/// The window that docs/guide/a-host-in-an-hour.md builds, against the real server: pictures are dropped, buttons are
/// clicked, and questions are answered in their dialogs.
class tst_HostWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void dropShowsInTreeAndGrid();
    void dropOfSomethingElseIsRefused();
    void refreshMarksWhatIsGone();
    void registeredActionIsInTheToolBar();

    void runWritesEveryPicture();
    void repeatedInputIsLeftOut();
    void namingQuestion_data();
    void namingQuestion();
    void questionAboutADamagedPicture();
    void closedQuestionCancels();
    void policyIsChosenAndKept();
    void pausedRunGoesOnWhenResumed();
    void cancelledRunCanBeStartedAgain();
    void lostServerIsExplained();

private:
    QString Path(const QString& name) const { return folder->FilePath(name); }
    QStringList MakePictures(int count) const;
    bool Drop(const QStringList& paths);
    void Click(const char* button);
    void Start();
    bool WaitForEnd() const;
    QString Log() const { return window->findChild<QTextBrowser*>()->toPlainText(); }
    QStringList Results() const;
    QMessageBox* Question() const;
    void Answer(const QString& button, bool forAll);

    template<typename Widget>
    Widget* Find(const char* name) const
    {
        return window->findChild<Widget*>(QLatin1String(name));
    }

    std::unique_ptr<PrivateTempDir> folder;
    std::unique_ptr<PictureDrop> drop;
    std::unique_ptr<PictureUpdate> update;
    std::unique_ptr<HostWindow> window;
};

void tst_HostWindow::init()
{
    folder = std::make_unique<PrivateTempDir>();
    ZTBatchManager::InitInstance(Path(QStringLiteral("settings")));
    drop = std::make_unique<PictureDrop>();
    ZTBatchManager::Instance()->RegisterDragAndDropHandler(drop.get());
    update = std::make_unique<PictureUpdate>();
    ZTBatchManager::Instance()->RegisterInputUpdateHandler(update.get());
    window = std::make_unique<HostWindow>();
    window->show();
    Find<QLineEdit>("folder")->setText(Path(QStringLiteral("out")));
    Find<QSpinBox>("length")->setValue(32);
}

void tst_HostWindow::cleanup()
{
    if (QTest::currentTestFailed()) {
        qInfo("%s", qUtf8Printable(Log()));
    }
    window.reset();
    ZTBatchManager::ReleaseInstance();
    update.reset();
    drop.reset();
    folder.reset();
}

QStringList tst_HostWindow::MakePictures(int count) const
{
    QStringList paths;
    for (int i = 0; i < count; ++i) {
        paths.append(Path(QStringLiteral("in/picture%1.jpg").arg(i, 2, 10, QLatin1Char('0'))));
        PictureFiles::WriteJpeg(paths.last(), i);
    }
    return paths;
}

/// Drags the files onto the tree and drops them there; whether the window took them.
bool tst_HostWindow::Drop(const QStringList& paths)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& path : paths) {
        urls.append(QUrl::fromLocalFile(path));
    }
    if (!urls.isEmpty()) {
        data.setUrls(urls);
    }
    QWidget* const place = Find<QTreeView>("tree")->viewport();
    QDragEnterEvent enter(place->rect().center(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(place, &enter);
    if (!enter.isAccepted()) {
        return false;
    }
    QDropEvent drop(place->rect().center(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    drop.ignore();
    QApplication::sendEvent(place, &drop);
    return drop.isAccepted();
}

void tst_HostWindow::Click(const char* button)
{
    auto* const found = Find<QPushButton>(button);
    QVERIFY2(found, button);
    QVERIFY2(found->isEnabled(), button);
    QTest::mouseClick(found, Qt::LeftButton);
}

void tst_HostWindow::Start()
{
    Click("start");
    QVERIFY(!Find<QPushButton>("start")->isEnabled());
}

bool tst_HostWindow::WaitForEnd() const
{
    return QTest::qWaitFor([this] { return Find<QPushButton>("start")->isEnabled(); }, 60'000);
}

QStringList tst_HostWindow::Results() const
{
    return QDir(Path(QStringLiteral("out"))).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

/// The dialog of the open question; null if none comes.
QMessageBox* tst_HostWindow::Question() const
{
    QMessageBox* box = nullptr;
    const bool isAsked = QTest::qWaitFor(
        [&] {
            box = window->findChild<QMessageBox*>();
            return box && box->isVisible();
        },
        60'000);
    return isAsked ? box : nullptr;
}

void tst_HostWindow::Answer(const QString& button, bool forAll)
{
    QMessageBox* const box = Question();
    QVERIFY(box);
    const QPointer<QMessageBox> guard(box);
    box->checkBox()->setChecked(forAll);
    for (QAbstractButton* const candidate : box->buttons()) {
        if (candidate->text() == button) {
            QTest::mouseClick(candidate, Qt::LeftButton);
            QTRY_VERIFY(!guard);
            return;
        }
    }
    QFAIL(qPrintable(QStringLiteral("The question has no button \"%1\".").arg(button)));
}

void tst_HostWindow::dropShowsInTreeAndGrid()
{
    MakePictures(12);
    PictureFiles::WriteJpeg(Path(QStringLiteral("loose.jpg")));
    QVERIFY(Drop({Path(QStringLiteral("in")), Path(QStringLiteral("loose.jpg"))}));

    const QAbstractItemModel& tree = *Find<QTreeView>("tree")->model();
    QCOMPARE(tree.rowCount(), 2);
    QCOMPARE(tree.rowCount(tree.index(0, 0)), 12);

    // The folder is collapsed: its row and that of the loose file. Expanded it has four rows of three.
    auto* const grid = Find<QTableView>("grid");
    window->findChild<QTabWidget*>()->setCurrentIndex(1);
    QTRY_COMPARE(grid->model()->rowCount(), 2);
    QCOMPARE(grid->columnSpan(0, 0), 3);
    const QPoint place = grid->visualRect(grid->model()->index(0, 0)).center();
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(grid->model()->rowCount(), 6);
    QVERIFY(grid->model()->index(4, 2).data().toString().endsWith(QStringLiteral("picture11.jpg")));
}

void tst_HostWindow::dropOfSomethingElseIsRefused()
{
    QVERIFY(!Drop({}));
    ZTBatchManager::Instance()->UnregisterDragAndDropHandler();
    QVERIFY(!Drop(MakePictures(1)));
    QCOMPARE(Find<QTreeView>("tree")->model()->rowCount(), 0);
}

void tst_HostWindow::refreshMarksWhatIsGone()
{
    const QStringList pictures = MakePictures(2);
    QVERIFY(Drop(pictures));
    QVERIFY(QFile::remove(pictures.at(0)));
    for (QAction* const action : window->findChild<QToolBar*>()->actions()) {
        if (action->text() == QStringLiteral("Refresh")) {
            action->trigger();
        }
    }
    const QAbstractItemModel& tree = *Find<QTreeView>("tree")->model();
    QCOMPARE(tree.index(0, 0).data(Qt::ToolTipRole).toString(), QStringLiteral("The file is gone."));
    QCOMPARE(tree.index(1, 0).data(Qt::ToolTipRole), tree.index(1, 0).data());
}

void tst_HostWindow::registeredActionIsInTheToolBar()
{
    QAction action(QStringLiteral("Sort"));
    const auto* const bar = window->findChild<QToolBar*>();
    ZTBatchManager::Instance()->RegisterInputAction(&action, 1);
    QVERIFY(bar->actions().contains(&action));
    ZTBatchManager::Instance()->UnregisterInputAction(&action);
    QVERIFY(!bar->actions().contains(&action));
}

void tst_HostWindow::runWritesEveryPicture()
{
    QVERIFY(Drop(MakePictures(12)));
    Start();
    QVERIFY(WaitForEnd());
    QCOMPARE(Results().size(), 12);
    QCOMPARE(QImage(Path(QStringLiteral("out/picture03.jpg"))).size(), QSize(32, 24));
    const auto* const progress = window->findChild<QProgressBar*>();
    QCOMPARE(progress->maximum(), 12);
    QCOMPARE(progress->value(), 12);
    QVERIFY(Log().contains(QStringLiteral("12 written, 0 skipped, 0 failed")));

    // The same server makes the next run.
    QVERIFY(Drop({Path(QStringLiteral("in"))}));
    Find<QLineEdit>("folder")->setText(Path(QStringLiteral("second")));
    Start();
    QVERIFY(WaitForEnd());
    QVERIFY(QFileInfo::exists(Path(QStringLiteral("second/picture03.jpg"))));
}

void tst_HostWindow::repeatedInputIsLeftOut()
{
    const QStringList pictures = MakePictures(1);
    QVERIFY(Drop(pictures));
    QVERIFY(Drop(pictures));
    Start();
    QVERIFY(WaitForEnd());
    QCOMPARE(Results().size(), 1);
    QVERIFY(Log().contains(QStringLiteral("1 written, 0 skipped, 0 failed")));
}

void tst_HostWindow::namingQuestion_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("forAll");
    QTest::addColumn<int>("files");
    QTest::addColumn<QString>("totals");

    QTest::newRow("skip each") << QStringLiteral("Skip") << false << 2 << QStringLiteral("0 written, 2 skipped");
    QTest::newRow("skip all") << QStringLiteral("Skip") << true << 2 << QStringLiteral("0 written, 2 skipped");
    QTest::newRow("overwrite all") << QStringLiteral("Overwrite") << true << 2
                                   << QStringLiteral("2 written, 0 skipped");
    QTest::newRow("rename each") << QStringLiteral("Rename") << false << 4 << QStringLiteral("2 written, 0 skipped");
}

void tst_HostWindow::namingQuestion()
{
    QFETCH(QString, answer);
    QFETCH(bool, forAll);
    QFETCH(int, files);
    QFETCH(QString, totals);

    QVERIFY(Drop(MakePictures(2)));
    for (int i = 0; i < 2; ++i) {
        PictureFiles::WriteJpeg(Path(QStringLiteral("out/picture0%1.jpg").arg(i)), 7);
    }
    Start();
    QVERIFY(Question());
    QVERIFY(Question()->text().contains(QStringLiteral("picture00.jpg\nFile name already exists.")));
    Answer(answer, forAll);
    if (!forAll) {
        QVERIFY(Question());
        QVERIFY(Question()->text().contains(QStringLiteral("picture01.jpg")));
        Answer(answer, forAll);
    }
    QVERIFY(WaitForEnd());
    QCOMPARE(Results().size(), files);
    QVERIFY(Log().contains(totals));
}

void tst_HostWindow::questionAboutADamagedPicture()
{
    const QStringList pictures = MakePictures(3);
    PictureFiles::WriteTruncated(pictures.at(1));
    QVERIFY(Drop(pictures));
    Start();
    QVERIFY(Question());
    QVERIFY(Question()->text().contains(QStringLiteral("Error reading file.")));
    QCOMPARE(Question()->buttons().size(), 2);
    Answer(QStringLiteral("Skip"), false);
    QVERIFY(WaitForEnd());
    QCOMPARE(Results(), (QStringList{QStringLiteral("picture00.jpg"), QStringLiteral("picture02.jpg")}));
    QVERIFY(Log().contains(QStringLiteral("2 written, 0 skipped, 1 failed")));
}

void tst_HostWindow::closedQuestionCancels()
{
    QVERIFY(Drop(MakePictures(1)));
    PictureFiles::WriteJpeg(Path(QStringLiteral("out/picture00.jpg")));
    Start();
    QMessageBox* const box = Question();
    QVERIFY(box);
    QTest::keyClick(box, Qt::Key_Escape);
    QVERIFY(WaitForEnd());
    QCOMPARE(Results().size(), 1);
}

void tst_HostWindow::policyIsChosenAndKept()
{
    QVERIFY(Drop(MakePictures(1)));
    PictureFiles::WriteJpeg(Path(QStringLiteral("out/picture00.jpg")));
    QTest::keyClicks(Find<QComboBox>("Names that exist"), QStringLiteral("Rename"));
    QCOMPARE(ZTBatchManager::Instance()->GetNamingPolicy(), ZTBatchManager::NamingRename);
    Start();
    QVERIFY(WaitForEnd());
    QCOMPARE(Results().size(), 2);

    window.reset();
    ZTBatchManager::ReleaseInstance();
    ZTBatchManager::InitInstance(Path(QStringLiteral("settings")));
    window = std::make_unique<HostWindow>();
    QCOMPARE(Find<QComboBox>("Names that exist")->currentText(), QStringLiteral("Rename"));
}

void tst_HostWindow::pausedRunGoesOnWhenResumed()
{
    QVERIFY(Drop(MakePictures(40)));
    // The request follows the job on the pipe at once.
    connect(ZTBatchManager::Instance(), &ZTBatchManager::ConnectionEstablished, window.get(),
            [this] { Find<QPushButton>("pause")->click(); });
    Start();
    const auto* const pause = Find<QPushButton>("pause");
    QTRY_COMPARE_WITH_TIMEOUT(pause->text(), QStringLiteral("Resume"), 60'000);
    QVERIFY(!Find<QPushButton>("start")->isEnabled());
    Click("pause");
    QVERIFY(WaitForEnd());
    QCOMPARE(Results().size(), 40);
    QCOMPARE(pause->text(), QStringLiteral("Pause"));
}

void tst_HostWindow::cancelledRunCanBeStartedAgain()
{
    QVERIFY(Drop(MakePictures(40)));
    auto* const canceller = new QObject(window.get());
    connect(ZTBatchManager::Instance(), &ZTBatchManager::ConnectionEstablished, canceller,
            [this] { Find<QPushButton>("cancel")->click(); });
    Start();
    QVERIFY(WaitForEnd());
    QVERIFY(Results().size() < 40);
    delete canceller;
    QTest::keyClicks(Find<QComboBox>("Names that exist"), QStringLiteral("Overwrite"));
    Start();
    QVERIFY(WaitForEnd());
    QCOMPARE(Results().size(), 40);
}

void tst_HostWindow::lostServerIsExplained()
{
    QVERIFY(Drop(MakePictures(1)));
    PictureFiles::WriteJpeg(Path(QStringLiteral("out/picture00.jpg")));
    Start();
    QVERIFY(Question());
    ZTBatchManager::Instance()->Stop();
    QVERIFY(WaitForEnd());
    QTRY_VERIFY(!window->findChild<QMessageBox*>());
    QVERIFY(Log().contains(QStringLiteral("Abnormal process termination.")));
    QVERIFY(Log().contains(QStringLiteral("The server could not be started, or has ended.\nIts last words")));

    // A further run has a server of its own.
    Start();
    Answer(QStringLiteral("Overwrite"), false);
    QVERIFY(WaitForEnd());
    QVERIFY(Log().contains(QStringLiteral("1 written, 0 skipped, 0 failed")));
}

QTEST_MAIN(tst_HostWindow)
#include "tst_hostwindow.moc"
