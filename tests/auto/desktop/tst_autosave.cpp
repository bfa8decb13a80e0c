// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DeskStage.h"

#include <QElapsedTimer>

using namespace BatchDesktop;

/// What is edited outlives its window.
class tst_Autosave : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everythingIsThereAgain();
    void changesAreSavedSoon();
    void closedWindowsKeepTheirPictures();
    void newPicturesTakeThePlaceOfOldOnes();
    void changedJobsAreNeverLeftBehind();
    void foldersKeepTheirTree();
    void damagedFilesAreNoObstacle();
    void unwritableFoldersAreSaidOnce();
    void largeJobsDoNotStopTheWindow();

private:
    void Edit();
    void Restart();

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<DeskStage> stage;
};

void tst_Autosave::init()
{
    folder = std::make_unique<QTemporaryDir>();
    stage = std::make_unique<DeskStage>(folder->path());
}

void tst_Autosave::cleanup()
{
    stage.reset();
}

void tst_Autosave::Edit()
{
    stage->AddInputs({QStringLiteral("a.jpg"), QStringLiteral("b.jpg")});
    stage->presets->Choose(QStringLiteral("web"));
    stage->SetLength(456);
    Settings settings = stage->job.CurrentSettings();
    settings.policies = {};
    settings.outputFolder = QStringLiteral("/my results");
    stage->job.Change(settings, QStringLiteral("Errors"));
}

void tst_Autosave::Restart()
{
    stage.reset();
    stage = std::make_unique<DeskStage>(folder->path());
}

void tst_Autosave::everythingIsThereAgain()
{
    Edit();
    const QString file = stage->Path("job.vbatch.xml");
    stage->desk->Keeper().dialogs.saveFile = [file](QWidget*, const QString&, const QString&) { return file; };
    QVERIFY(stage->desk->Keeper().SaveAs());
    stage->SetLength(457);
    const Settings before = stage->job.CurrentSettings();
    Restart();
    stage->desk->Restore(true);
    QVERIFY(stage->job.CurrentSettings() == before);
    QCOMPARE(stage->Inputs(), (QStringList{QStringLiteral("a.jpg"), QStringLiteral("b.jpg")}));
    QCOMPARE(stage->presets->Active(), QStringLiteral("web"));
    QVERIFY(stage->presets->IsChanged());
    QCOMPARE(stage->desk->Keeper().File(), file);
    QVERIFY(stage->desk->Keeper().IsChanged());
    QVERIFY(!stage->Notice().isEmpty()); // The window did not end as it should.
    QVERIFY(stage->desk->Keeper().Save());
    QVERIFY(!stage->desk->Keeper().IsChanged());
}

void tst_Autosave::changesAreSavedSoon()
{
    QSignalSpy saved(&stage->desk->Saving(), &Autosave::Saved);
    Edit();
    QVERIFY(!stage->desk->Saving().IsDone());
    QTRY_VERIFY(stage->desk->Saving().IsDone());
    QVERIFY(!saved.isEmpty());
    const EditedFiles files(stage->Path("data"));
    QCOMPARE(files.ReadState()->settings.imageSize.size, 456.0);
    QCOMPARE(files.ReadInputs()->TopPaths(), (QStringList{QStringLiteral("/in/a.jpg"), QStringLiteral("/in/b.jpg")}));
}

void tst_Autosave::closedWindowsKeepTheirPictures()
{
    Edit();
    stage->desk->Close();
    Restart();
    stage->desk->Restore(true);
    QCOMPARE(stage->Inputs().size(), 2);
    QCOMPARE(stage->Notice(), QString());
}

void tst_Autosave::newPicturesTakeThePlaceOfOldOnes()
{
    Edit();
    stage->desk->Close();
    Restart();
    stage->desk->Restore(false);
    QVERIFY(stage->Inputs().isEmpty());
    QCOMPARE(stage->Length(), 456.0);
    QCOMPARE(stage->presets->Active(), QStringLiteral("web"));
    QVERIFY(!stage->desk->Keeper().IsChanged());
}

void tst_Autosave::changedJobsAreNeverLeftBehind()
{
    const QString file = stage->Path("job.vbatch.xml");
    stage->desk->Keeper().dialogs.saveFile = [file](QWidget*, const QString&, const QString&) { return file; };
    QVERIFY(stage->desk->Keeper().SaveAs());
    Edit();
    stage->desk->Close();
    Restart();
    stage->desk->Restore(false);
    QCOMPARE(stage->Inputs().size(), 2);
    QCOMPARE(stage->desk->Keeper().File(), file);
    QVERIFY(stage->desk->Keeper().IsChanged());
}

void tst_Autosave::foldersKeepTheirTree()
{
    ZTBatchInputModel& model = *stage->job.Document().GetInputModel();
    model.InsertBranch(
        NewFolder(QStringLiteral("top"),
                  {NewFolder(QStringLiteral("sub"), {NewFile(QStringLiteral("1"))}),
                   NewFolder(QStringLiteral("two"), {NewFile(QStringLiteral("2"))}), NewFile(QStringLiteral("3"))}),
        QModelIndex());
    model.InsertBranch(NewFile(QStringLiteral("4")), QModelIndex());
    const QString before = stage->job.Document().Serialize(nullptr);
    Restart();
    stage->desk->Restore(true);
    QCOMPARE(stage->job.Document().Serialize(nullptr), before);
    QCOMPARE(stage->job.Document().GetInputModel()->GetFileNodesCount(), 4);
}

void tst_Autosave::damagedFilesAreNoObstacle()
{
    Edit();
    stage.reset();
    const QString state = folder->filePath(QStringLiteral("data/edited/state.json"));
    const QString inputs = folder->filePath(QStringLiteral("data/edited/inputs.dat"));
    QVERIFY(QFile::exists(state));
    QFile whole(inputs);
    QVERIFY(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    for (int length = 0; length < bytes.size(); ++length) {
        DeskStage::Write(inputs, bytes.left(length));
        QVERIFY(!EditedFiles(folder->filePath(QStringLiteral("data"))).ReadInputs());
    }
    DeskStage::Write(inputs, "damaged and much longer than a mark");
    stage = std::make_unique<DeskStage>(folder->path());
    stage->desk->Restore(true);
    QVERIFY(stage->Inputs().isEmpty());
    QCOMPARE(stage->Length(), 456.0);
    stage.reset();
    DeskStage::Write(state, "damaged");
    stage = std::make_unique<DeskStage>(folder->path());
    const Settings before = stage->job.CurrentSettings();
    stage->desk->Restore(true);
    QVERIFY(stage->job.CurrentSettings() == before);
}

void tst_Autosave::unwritableFoldersAreSaidOnce()
{
    const QString inTheWay = folder->filePath(QStringLiteral("data/edited"));
    QTRY_VERIFY(stage->desk->Saving().IsDone());
    QVERIFY(QDir(inTheWay).removeRecursively());
    DeskStage::Write(inTheWay, "a file");
    QSignalSpy failures(&stage->desk->Saving(), &Autosave::Failed);
    Edit();
    QTRY_COMPARE(failures.size(), 1);
    QVERIFY(stage->Notice().contains(QDir::toNativeSeparators(stage->Path("data"))));
    stage->desk->Notice().hide();
    stage->SetLength(1);
    QTRY_COMPARE(failures.size(), 2);
    QCOMPARE(stage->Notice(), QString());
    QVERIFY(QFile::remove(inTheWay));
    QSignalSpy saved(&stage->desk->Saving(), &Autosave::Saved);
    stage->SetLength(2);
    QTRY_COMPARE(saved.size(), 1);
    Restart();
    stage->desk->Restore(true);
    QCOMPARE(stage->Inputs().size(), 2);
    QCOMPARE(stage->Length(), 2.0);
}

// Of several saves, the best counts: others may use the machine.
void tst_Autosave::largeJobsDoNotStopTheWindow()
{
    constexpr int files = 100'000;
    constexpr qint64 longest = 50; // ms
    QList<InputNode*> nodes;
    for (int i = 0; i < files; ++i) {
        nodes.append(NewFile(QStringLiteral("%1.jpg").arg(i, 6, 10, QLatin1Char('0'))));
    }
    stage->job.Document().GetInputModel()->InsertBranch(NewFolder(QStringLiteral("all"), nodes), QModelIndex());
    qint64 best = std::numeric_limits<qint64>::max();
    for (int i = 0; i < 5; ++i) {
        stage->AddInputs({QString::number(i)});
        QElapsedTimer clock;
        clock.start();
        qint64 stall = 0;
        QTimer heart;
        QObject::connect(&heart, &QTimer::timeout, &heart, [&] { stall = std::max(stall, clock.restart()); });
        heart.start(0);
        QTRY_VERIFY_WITH_TIMEOUT(stage->desk->Saving().IsDone(), 60'000);
        best = std::min(best, stall);
    }
    qInfo("The window stood still for %d ms.", int(best));
    QVERIFY(best < longest);
    Restart();
    QElapsedTimer clock;
    clock.start();
    stage->desk->Restore(true);
    qInfo("It has everything again after %d ms.", int(clock.elapsed()));
    QCOMPARE(stage->job.Document().GetInputModel()->GetFileNodesCount(), files + 5);
}

QTEST_MAIN(tst_Autosave)
#include "tst_autosave.moc"
