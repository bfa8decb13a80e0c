// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DeskStage.h"

#include "hosts/common/JobFile.h"
#include "hosts/desktop/jobs/OutputFolder.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

using namespace BatchDesktop;

Q_DECLARE_METATYPE(JobDialogs::Answer)

/// Jobs as files: opened, saved, begun and dropped.
class tst_JobKeeper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void newJobsHaveAFolderOfTheirOwn();
    void jobsAreSavedAndOpened();
    void savingAsksForANameOnce();
    void existingFilesAreNotReplacedByTheExtension();
    void changesAreAskedAbout_data();
    void changesAreAskedAbout();
    void jobsWithoutAFileCanBeTakenBack();
    void changedJobsAreNotReplacedByThoseBefore();
    void undoneChangesAreNone();
    void brokenJobsLeaveThePresentOne_data();
    void brokenJobsLeaveThePresentOne();
    void whatAFileDoesNotNameIsThatOfANewJob();
    void relativeFoldersBeginAtTheJob();
    void recentJobsAreInTheMenu();
    void droppedJobsAreOpened();
    void argumentsAreJobsAndPictures();
    void fullDisksAndMissingFoldersAreSaid();

private:
    QString Save(const char* name);
    QList<QAction*> Recent();

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<DeskStage> stage;
    JobKeeper* keeper = nullptr;
    QString chosen; ///< in the dialogs of files
    int questions = 0;
    JobDialogs::Answer answer = JobDialogs::Answer::Cancel;
};

void tst_JobKeeper::init()
{
    folder = std::make_unique<QTemporaryDir>();
    stage = std::make_unique<DeskStage>(folder->path());
    QVERIFY(stage->isReady);
    keeper = &stage->desk->Keeper();
    chosen.clear();
    questions = 0;
    answer = JobDialogs::Answer::Cancel;
    const auto choose = [this](QWidget*, const QString&, const QString&) { return chosen; };
    keeper->dialogs = {choose, choose, [this](QWidget*, const QString&) {
                           ++questions;
                           return answer;
                       }};
}

void tst_JobKeeper::cleanup()
{
    stage.reset();
}

QString tst_JobKeeper::Save(const char* name)
{
    chosen = stage->Path(name);
    return keeper->SaveAs() ? chosen : QString();
}

QList<QAction*> tst_JobKeeper::Recent()
{
    auto* const menu = stage->jobMenu.findChild<QMenu*>(QStringLiteral("recentJobs"));
    Q_EMIT menu->aboutToShow();
    return menu->actions();
}

void tst_JobKeeper::newJobsHaveAFolderOfTheirOwn()
{
    QCOMPARE(stage->job.CurrentSettings().outputFolder, UsualOutputFolder());
    QVERIFY(UsualOutputFolder().endsWith(QStringLiteral("/Velkora Batch")));
    QVERIFY(!keeper->IsChanged());
    QVERIFY(!keeper->Name().isEmpty());
}

void tst_JobKeeper::jobsAreSavedAndOpened()
{
    stage->SetLength(321);
    stage->AddInputs({QStringLiteral("a.jpg"), QStringLiteral("b.jpg")});
    QVERIFY(keeper->IsChanged());
    const QString path = Save("holiday.vbatch.xml");
    QVERIFY(BatchHost::IsSavedJob(path));
    QCOMPARE(keeper->File(), path);
    QCOMPARE(keeper->Name(), QStringLiteral("holiday"));
    QVERIFY(!keeper->IsChanged());
    stage->Action("newJob").trigger();
    QCOMPARE(questions, 0);
    QVERIFY(stage->Inputs().isEmpty());
    QVERIFY(stage->Length() != 321);
    QCOMPARE(keeper->File(), QString());
    stage->Action("openJob").trigger();
    QCOMPARE(stage->Length(), 321.0);
    QCOMPARE(stage->Inputs().size(), 2);
    QCOMPARE(keeper->File(), path);
    QVERIFY(!keeper->IsChanged());
}

void tst_JobKeeper::savingAsksForANameOnce()
{
    chosen = stage->Path("one"); // The extension is added.
    stage->Action("saveJob").trigger();
    QCOMPARE(keeper->File(), stage->Path("one.vbatch.xml"));
    chosen = stage->Path("other.xml");
    stage->SetLength(99);
    stage->Action("saveJob").trigger();
    QVERIFY(!QFile::exists(chosen));
    QVERIFY(!keeper->IsChanged());
    chosen.clear();
    stage->SetLength(98);
    stage->Action("saveJobAs").trigger(); // Nothing is chosen.
    QVERIFY(keeper->IsChanged());
}

void tst_JobKeeper::existingFilesAreNotReplacedByTheExtension()
{
    DeskStage::Write(stage->Path("one.vbatch.xml"), "precious");
    chosen = stage->Path("one");
    QVERIFY(!keeper->Save());
    QVERIFY(stage->Notice().contains(QStringLiteral("one.vbatch.xml")));
    QFile file(stage->Path("one.vbatch.xml"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("precious"));
}

void tst_JobKeeper::changesAreAskedAbout_data()
{
    QTest::addColumn<JobDialogs::Answer>("given");
    QTest::addColumn<bool>("isNew");
    QTest::addColumn<double>("saved");
    QTest::newRow("cancel") << JobDialogs::Answer::Cancel << false << 100.0;
    QTest::newRow("discard") << JobDialogs::Answer::Discard << true << 100.0;
    QTest::newRow("save") << JobDialogs::Answer::Save << true << 200.0;
}

void tst_JobKeeper::changesAreAskedAbout()
{
    QFETCH(JobDialogs::Answer, given);
    QFETCH(bool, isNew);
    QFETCH(double, saved);
    stage->SetLength(100);
    const QString path = Save("job.vbatch.xml");
    stage->SetLength(200);
    answer = given;
    keeper->New();
    QCOMPARE(questions, 1);
    QCOMPARE(keeper->File().isEmpty(), isNew);
    QCOMPARE(stage->Length() == 200, !isNew);
    answer = JobDialogs::Answer::Discard;
    QVERIFY(keeper->Open(path));
    QCOMPARE(stage->Length(), saved);
}

void tst_JobKeeper::jobsWithoutAFileCanBeTakenBack()
{
    stage->presets->Choose(QStringLiteral("web"));
    stage->SetLength(200);
    stage->AddInputs({QStringLiteral("a.jpg")});
    const Settings before = stage->job.CurrentSettings();
    keeper->New();
    QCOMPARE(questions, 0);
    QVERIFY(stage->Inputs().isEmpty());
    QVERIFY(!stage->Notice().isEmpty());
    QTest::mouseClick(&stage->The<QToolButton>("noticeAction"), Qt::LeftButton);
    QVERIFY(stage->job.CurrentSettings() == before);
    QCOMPARE(stage->Inputs(), QStringList{QStringLiteral("a.jpg")});
    QCOMPARE(stage->presets->Active(), QStringLiteral("web"));
    QVERIFY(stage->presets->IsChanged());
    QVERIFY(keeper->IsChanged());
    QCOMPARE(stage->Notice(), QString());
}

void tst_JobKeeper::changedJobsAreNotReplacedByThoseBefore()
{
    stage->SetLength(200);
    keeper->New();
    QVERIFY(!stage->Notice().isEmpty());
    stage->SetLength(300);
    QCOMPARE(stage->Notice(), QString());
    stage->desk->Tell(QStringLiteral("Something else"));
    stage->SetLength(301);
    QCOMPARE(stage->Notice(), QStringLiteral("Something else"));
}

void tst_JobKeeper::undoneChangesAreNone()
{
    Save("job.vbatch.xml");
    stage->SetLength(200);
    QVERIFY(keeper->IsChanged());
    stage->job.History().undo();
    QVERIFY(!keeper->IsChanged());
    keeper->New();
    QCOMPARE(questions, 0);
}

void tst_JobKeeper::brokenJobsLeaveThePresentOne_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no XML") << QByteArray("hello");
    QTest::newRow("cut off") << QByteArray("<!DOCTYPE batch>\n<root name=\"x\"><input>");
    QTest::newRow("another type") << QByteArray("<!DOCTYPE html>\n<root/>");
    QTest::newRow("no UTF-8") << QByteArray("<!DOCTYPE batch>\n<root name=\"\xff\xfe\"/>");
    QTest::newRow("no file") << QByteArray();
}

void tst_JobKeeper::brokenJobsLeaveThePresentOne()
{
    QFETCH(QByteArray, content);
    stage->SetLength(123);
    stage->AddInputs({QStringLiteral("a.jpg")});
    const QString good = Save("good.vbatch.xml");
    stage->SetLength(124);
    const QString broken = stage->Path("broken.vbatch.xml");
    if (!content.isEmpty()) {
        DeskStage::Write(broken, content);
    }
    answer = JobDialogs::Answer::Discard;
    const Settings before = stage->job.CurrentSettings();
    QVERIFY(!keeper->Open(broken));
    QVERIFY2(stage->Notice().contains(broken), qPrintable(stage->Notice()));
    QVERIFY(stage->job.CurrentSettings() == before);
    QVERIFY(Settings::Of(stage->job.Document(), before.policies) == before);
    QCOMPARE(stage->Inputs(), QStringList{QStringLiteral("a.jpg")});
    QCOMPARE(keeper->File(), good);
    QVERIFY(keeper->IsChanged());
    stage->job.History().undo();
    QCOMPARE(stage->Length(), 123.0);
}

void tst_JobKeeper::whatAFileDoesNotNameIsThatOfANewJob()
{
    stage->SetLength(123);
    const QString path = stage->Path("short.vbatch.xml");
    DeskStage::Write(path, "<!DOCTYPE batch>\n<root name=\"short\"/>\n");
    answer = JobDialogs::Answer::Discard;
    QVERIFY(keeper->Open(path));
    const double length = stage->Length();
    keeper->New();
    QCOMPARE(stage->Length(), length);
    QVERIFY(length != 123);
}

void tst_JobKeeper::relativeFoldersBeginAtTheJob()
{
    const QString path = stage->Path("sub/job.vbatch.xml");
    DeskStage::Write(path,
                     "<!DOCTYPE batch>\n<root name=\"x\"><output><folder fileName=\"results\"/></output></root>\n");
    QVERIFY(keeper->Open(path));
    QCOMPARE(stage->job.CurrentSettings().outputFolder, stage->Path("sub/results"));
}

void tst_JobKeeper::recentJobsAreInTheMenu()
{
    for (int i = 1; i <= 12; ++i) {
        Save(qPrintable(QStringLiteral("%1.vbatch.xml").arg(i)));
    }
    QVERIFY(QFile::remove(stage->Path("11.vbatch.xml")));
    const QList<QAction*> actions = Recent();
    QCOMPARE(actions.size(), 12); // ten, a line, and what clears them
    QVERIFY(actions.at(0)->text().endsWith(QDir::toNativeSeparators(QStringLiteral("/12.vbatch.xml"))));
    QVERIFY(actions.at(0)->isEnabled());
    QVERIFY(actions.at(1)->text().contains(QDir::toNativeSeparators(QStringLiteral("/11.vbatch.xml"))));
    QVERIFY(!actions.at(1)->isEnabled());
    QVERIFY(actions.at(9)->text().endsWith(QDir::toNativeSeparators(QStringLiteral("/3.vbatch.xml"))));
    actions.at(9)->trigger();
    QCOMPARE(keeper->File(), stage->Path("3.vbatch.xml"));
    QVERIFY(Recent().at(0)->text().endsWith(QDir::toNativeSeparators(QStringLiteral("/3.vbatch.xml"))));
    Recent().last()->trigger();
    QCOMPARE(Recent().size(), 2);
}

void tst_JobKeeper::droppedJobsAreOpened()
{
    stage->SetLength(77);
    const QString path = Save("job.vbatch.xml");
    keeper->New();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&stage->window, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&stage->window, &drop);
    QTRY_COMPARE(keeper->File(), path);
    QCOMPARE(drop.dropAction(), Qt::CopyAction);
    QCOMPARE(stage->Length(), 77.0);
}

void tst_JobKeeper::argumentsAreJobsAndPictures()
{
    const QString path = Save("job.vbatch.xml");
    keeper->New();
    const QStringList others = stage->desk->OpenJobs({stage->Path("a.jpg"), path, stage->Path("photos")});
    QCOMPARE(others, (QStringList{stage->Path("a.jpg"), stage->Path("photos")}));
    QCOMPARE(keeper->File(), path);
}

void tst_JobKeeper::fullDisksAndMissingFoldersAreSaid()
{
    stage->SetLength(5);
    chosen = stage->Path("missing/job.vbatch.xml");
    QVERIFY(!keeper->SaveAs());
    QVERIFY(stage->Notice().contains(chosen));
    QVERIFY(keeper->IsChanged());
    QVERIFY(keeper->File().isEmpty());
    const QString path = Save("sub.vbatch.xml");
    stage->SetLength(6);
    QVERIFY(QFile::remove(path) && QDir().mkpath(path)); // A folder in the place of the file.
    answer = JobDialogs::Answer::Save;
    keeper->New(); // What cannot be saved does not go.
    QCOMPARE(questions, 1);
    QVERIFY(stage->Notice().contains(path));
    QCOMPARE(stage->Length(), 6.0);
}

QTEST_MAIN(tst_JobKeeper)
#include "tst_jobkeeper.moc"
