// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WindowStage.h"

#include <QLabel>

using namespace BatchDesktop;

using RunState = JobRunner::State;

/// What goes wrong around the window is a sentence where it happened, and nothing is lost.
class tst_WindowTrouble : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
#ifdef Q_OS_UNIX
    void unreadableFoldersAreNamed();
#endif
    void aVanishedDiskIsAskedAbout();
    void picturesThatVanishFail();
    void aPresetWithoutItsWatermark();
    void aFolderThatCannotBeMade();

private:
    std::unique_ptr<WindowStage> stage;
};

void tst_WindowTrouble::init()
{
    stage = std::make_unique<WindowStage>();
    stage->MakePhotos(3);
    QVERIFY(stage->Open());
}

void tst_WindowTrouble::cleanup()
{
    stage.reset();
}

#ifdef Q_OS_UNIX
// Nobody can follow a link to itself, not even root.
void tst_WindowTrouble::unreadableFoldersAreNamed()
{
    QVERIFY(stage->Add(3));
    const QString loop = stage->Path(QStringLiteral("loop"));
    QVERIFY(QFile::link(loop, loop));
    stage->Window().AddPaths({loop});
    QTRY_VERIFY_WITH_TIMEOUT(stage->Text("addingText").contains(loop), WindowStage::patience);
    QVERIFY(stage->IsVisible("addingText"));
    QCOMPARE(stage->Count(), 3);
}
#endif

// Another file in the place of the folder: it cannot be made again.
void tst_WindowTrouble::aVanishedDiskIsAskedAbout()
{
#ifdef Q_OS_WIN
    QSKIP("A folder with an open file, such as the journal, cannot be removed there.");
#endif
    stage->MakePhotos(30);
    QVERIFY(stage->Add(30));
    stage->SetOutput(true);
    // The folder vanishes between two pictures.
    int inWork = 0;
    auto watch = std::make_unique<QObject>();
    connect(&stage->Runner(), &JobRunner::Begun, watch.get(), [&inWork] { ++inWork; });
    connect(&stage->Runner(), &JobRunner::ResultKnown, watch.get(), [&] {
        --inWork;
        stage->Runner().Pause();
    });
    stage->Click("start");
    QVERIFY(stage->WaitForState(RunState::Paused));
    QTRY_COMPARE_WITH_TIMEOUT(inWork, 0, WindowStage::patience);
    watch.reset();
    QVERIFY(stage->Runner().CurrentProgress().Done() < 30);
    const QString out = stage->Path(QStringLiteral("out"));
    QVERIFY(QDir(out).removeRecursively());
    QFile file(out);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    stage->Click("pause");
    QVERIFY2(stage->WaitForQuestion(), qPrintable(stage->Text()));
    QCOMPARE(stage->Runner().OpenQuestion()->kind, BatchJob::PolicyKind::Output);
    QVERIFY2(stage->Text("questionText").contains(QStringLiteral("cannot be written")),
             qPrintable(stage->Text("questionText")));
    stage->Click("answer_stop");
    QVERIFY(stage->WaitForEnd());
    QVERIFY(stage->Runner().LastEnd()->written < 30);
    for (int photo = 1; photo <= 30; ++photo) {
        QVERIFY(QFile::exists(stage->Photo(photo)));
    }
    QVERIFY(file.remove());
    QVERIFY(stage->Run());
    QCOMPARE(stage->Runner().LastEnd()->written, 30);
}

void tst_WindowTrouble::picturesThatVanishFail()
{
    QVERIFY(stage->Add(3));
    stage->SetOutput();
    QVERIFY(QFile::remove(stage->Photo(2)));
    QVERIFY(stage->Run());
    QCOMPARE(stage->Runner().LastEnd()->written, 2);
    QVERIFY(!stage->StateOf(2).reason.isEmpty());
    QCOMPARE(stage->Count(), 3);
}

void tst_WindowTrouble::aPresetWithoutItsWatermark()
{
    const QString mark = stage->Path(QStringLiteral("mark.png"));
    QImage image(8, 8, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(mark));
    QVERIFY(stage->Add(3));
    stage->SetOutput();
    stage->Change([&mark](Settings& settings) {
        const QByteArray parameters = QStringLiteral(R"({"file":"%1"})").arg(mark).toUtf8();
        settings.effects.append({QStringLiteral("watermark-image"), parameters, true});
    });
    auto* const presets = qobject_cast<PresetBox*>(stage->Part("preset"));
    presets->Save(QStringLiteral("Marked"), false);
    QVERIFY(QFile::remove(mark));
    presets->ReadAgain();
    const int index = presets->findData(QStringLiteral("Marked"));
    QVERIFY(index > 0);
    QVERIFY(presets->itemData(index, Qt::ToolTipRole).toString().contains(mark));

    stage->Click("start");
    QCOMPARE(stage->Runner().CurrentState(), RunState::Idle);
    QVERIFY2(stage->Text().contains(mark), qPrintable(stage->Text()));
    QCOMPARE(stage->Count(), 3);
    QVERIFY(image.save(mark));
    QVERIFY(stage->Run());
    QCOMPARE(stage->Runner().LastEnd()->written, 3);
}

void tst_WindowTrouble::aFolderThatCannotBeMade()
{
    QVERIFY(stage->Add(3));
    stage->Change([&](Settings& settings) { settings.outputFolder = stage->Photo(1) + QStringLiteral("/below"); });
    stage->Click("start");
    const auto isTold = [&] {
        return stage->Runner().OpenQuestion() || stage->Runner().LastEnd() ||
               stage->Text().contains(QStringLiteral("cannot be started"));
    };
    QVERIFY(QTest::qWaitFor(isTold, WindowStage::patience));
    QVERIFY(!QFile::exists(stage->Result(1)));
    QCOMPARE(stage->Content(stage->Photo(1)).isEmpty(), false);
}

QTEST_MAIN(tst_WindowTrouble)
#include "tst_windowtrouble.moc"
