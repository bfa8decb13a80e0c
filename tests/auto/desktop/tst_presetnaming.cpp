// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DeskStage.h"

#include "hosts/common/Presets.h"

#include <QAccessible>

using namespace BatchDesktop;

/// Presets that are saved, renamed, deleted and broken.
class tst_PresetNaming : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void presetsAreNamedInALine();
    void existingOnesAreReplacedKnowingly();
    void badNamesAreSaidBesideTheField_data();
    void badNamesAreSaidBesideTheField();
    void escapeSavesNothing();
    void presetsAreRenamed();
    void onlyTheLetterCaseMayChange();
    void deletedPresetsCanBeBroughtBack();
    void thoseThatComeAlongStay();
    void presetsWithMissingFilesAreExplained();
    void brokenPresetsChangeNothing();
    void presetsAreExportedAndImported();
    void everyWidgetHasAName();

private:
    QString File(const char* name) const { return stage->Path("settings/presets/") + QString::fromLatin1(name); }
    void Save(const QString& name);
    void Type(const QString& name);
    QString Tip(const QString& name) const;

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<DeskStage> stage;
};

void tst_PresetNaming::init()
{
    folder = std::make_unique<QTemporaryDir>();
    stage = std::make_unique<DeskStage>(folder->path());
    QVERIFY(stage->isReady);
}

void tst_PresetNaming::cleanup()
{
    stage.reset();
}

void tst_PresetNaming::Type(const QString& name)
{
    auto& field = stage->The<QLineEdit>("presetName");
    QVERIFY(field.isVisible());
    QTRY_VERIFY(field.hasFocus());
    field.selectAll();
    QTest::keyClicks(&field, name);
}

void tst_PresetNaming::Save(const QString& name)
{
    stage->Action("savePreset").trigger();
    Type(name);
    QTest::keyClick(&stage->The<QLineEdit>("presetName"), Qt::Key_Return);
}

QString tst_PresetNaming::Tip(const QString& name) const
{
    return stage->presets->itemData(stage->presets->findData(name), Qt::ToolTipRole).toString();
}

void tst_PresetNaming::presetsAreNamedInALine()
{
    stage->SetLength(640);
    stage->presets->setFocus();
    Save(QStringLiteral("Small"));
    QVERIFY(stage->presets->hasFocus());
    QVERIFY(QFile::exists(File("Small.xml")));
    QVERIFY(stage->desk->Naming().isHidden());
    QCOMPARE(stage->presets->Active(), QStringLiteral("Small"));
    QCOMPARE(stage->presets->currentText(), QStringLiteral("Small"));
    stage->SetLength(641);
    QVERIFY(stage->presets->currentText() != QStringLiteral("Small"));
    stage->presets->Choose(QStringLiteral("Small"));
    QCOMPARE(stage->Length(), 640.0);
}

void tst_PresetNaming::existingOnesAreReplacedKnowingly()
{
    stage->SetLength(640);
    Save(QStringLiteral("Small"));
    stage->SetLength(320);
    stage->Action("savePreset").trigger();
    auto& button = stage->The<QPushButton>("presetNameAccept");
    QCOMPARE(button.text(), QStringLiteral("Replace"));
    QVERIFY(!stage->The<QLabel>("presetNameProblem").text().isEmpty());
    Type(QStringLiteral("small")); // It means the same file on some systems.
    QCOMPARE(button.text(), QStringLiteral("Replace"));
    Type(QStringLiteral("Smaller"));
    QCOMPARE(button.text(), QStringLiteral("Save"));
    QVERIFY(!stage->The<QLabel>("presetNameProblem").isVisible());
    Type(QStringLiteral("Small"));
    QTest::mouseClick(&button, Qt::LeftButton);
    stage->SetLength(1);
    stage->presets->Choose(QStringLiteral("Small"));
    QCOMPARE(stage->Length(), 320.0);
}

void tst_PresetNaming::badNamesAreSaidBesideTheField_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("path") << QStringLiteral("a/b");
    QTest::newRow("hidden") << QStringLiteral(".small");
    QTest::newRow("extension") << QStringLiteral("small.xml");
}

void tst_PresetNaming::badNamesAreSaidBesideTheField()
{
    QFETCH(QString, name);
    Save(name);
    auto& problem = stage->The<QLabel>("presetNameProblem");
    QVERIFY(problem.isVisible());
    QVERIFY(problem.text().contains(name) || problem.text().contains(QStringLiteral("small")));
    QVERIFY(stage->The<QLineEdit>("presetName").isVisible());
    QVERIFY(QDir(stage->Path("settings/presets")).entryList(QDir::Files).isEmpty());
    QCOMPARE(stage->presets->Active(), QString());
}

void tst_PresetNaming::escapeSavesNothing()
{
    stage->Action("savePreset").trigger();
    Type(QStringLiteral("Small"));
    QTest::keyClick(&stage->The<QLineEdit>("presetName"), Qt::Key_Escape);
    QVERIFY(stage->desk->Naming().isHidden());
    QVERIFY(!QFile::exists(File("Small.xml")));
}

void tst_PresetNaming::presetsAreRenamed()
{
    stage->SetLength(640);
    Save(QStringLiteral("Small"));
    stage->SetLength(641);
    stage->Action("renamePreset").trigger();
    Type(QStringLiteral("Tiny"));
    QTest::keyClick(&stage->The<QLineEdit>("presetName"), Qt::Key_Return);
    QVERIFY(!QFile::exists(File("Small.xml")));
    QVERIFY(QFile::exists(File("Tiny.xml")));
    QCOMPARE(stage->presets->Active(), QStringLiteral("Tiny"));
    QVERIFY(stage->presets->IsChanged()); // It still holds the first length.
    stage->presets->Choose(QStringLiteral("Tiny"));
    QCOMPARE(stage->Length(), 640.0);
}

void tst_PresetNaming::onlyTheLetterCaseMayChange()
{
    Save(QStringLiteral("small"));
    stage->Action("renamePreset").trigger();
    Type(QStringLiteral("Small"));
    QCOMPARE(stage->The<QPushButton>("presetNameAccept").text(), QStringLiteral("Rename"));
    QTest::keyClick(&stage->The<QLineEdit>("presetName"), Qt::Key_Return);
    const QStringList files = QDir(stage->Path("settings/presets")).entryList(QDir::Files);
    QCOMPARE(files.size(), 1);
#ifdef Q_OS_WIN
    QCOMPARE(files.first().toLower(), QStringLiteral("small.xml")); // Wine does not change the case of a name.
#else
    QCOMPARE(files.first(), QStringLiteral("Small.xml"));
#endif
    QCOMPARE(stage->presets->Active(), QStringLiteral("Small"));
}

void tst_PresetNaming::deletedPresetsCanBeBroughtBack()
{
    stage->SetLength(640);
    Save(QStringLiteral("Small"));
    stage->Action("removePreset").trigger();
    QVERIFY(!QFile::exists(File("Small.xml")));
    QCOMPARE(stage->presets->Active(), QString());
    QCOMPARE(stage->Length(), 640.0);
    QVERIFY(stage->Notice().contains(QStringLiteral("Small")));
    QVERIFY(!stage->Action("removePreset").isEnabled());
    QTest::mouseClick(&stage->The<QToolButton>("noticeAction"), Qt::LeftButton);
    QVERIFY(QFile::exists(File("Small.xml")));
    QCOMPARE(stage->presets->Active(), QStringLiteral("Small"));
    QVERIFY(!stage->presets->IsChanged());
    QCOMPARE(stage->Notice(), QString());
}

void tst_PresetNaming::thoseThatComeAlongStay()
{
    QVERIFY(stage->presets->findData(QStringLiteral("web")) > 0);
    stage->presets->Choose(QStringLiteral("web"));
    QCOMPARE(stage->presets->Active(), QStringLiteral("web"));
    QVERIFY(!stage->Action("removePreset").isEnabled());
    QVERIFY(!stage->Action("renamePreset").isEnabled());
    Save(QStringLiteral("web")); // One of the user takes its place.
    QVERIFY(QFile::exists(File("web.xml")));
    QVERIFY(stage->Action("removePreset").isEnabled());
    stage->Action("removePreset").trigger();
    QVERIFY(stage->presets->findData(QStringLiteral("web")) > 0);
}

void tst_PresetNaming::presetsWithMissingFilesAreExplained()
{
    const QString logo = stage->Path("logo.png");
    QVERIFY(QImage(8, 8, QImage::Format_RGB32).save(logo));
    Settings settings = stage->job.CurrentSettings();
    settings.effects = {{QStringLiteral("watermark-image"),
                         QJsonDocument(QJsonObject{{QStringLiteral("file"), logo}}).toJson(QJsonDocument::Compact)}};
    stage->job.Change(settings, QStringLiteral("Effects"));
    Save(QStringLiteral("Logo"));
    QVERIFY(!Tip(QStringLiteral("Logo")).contains(logo));
    QVERIFY(QFile::remove(logo));
    stage->presets->ReadAgain();
    QVERIFY2(Tip(QStringLiteral("Logo")).contains(logo), qPrintable(Tip(QStringLiteral("Logo"))));
    stage->job.History().undo();
    stage->SetLength(55);
    stage->presets->Choose(QStringLiteral("Logo"));
    QVERIFY2(stage->Notice().contains(logo), qPrintable(stage->Notice()));
    QCOMPARE(stage->presets->Active(), QStringLiteral("Logo"));
    stage->job.History().undo();
    QCOMPARE(stage->Length(), 55.0);
}

void tst_PresetNaming::brokenPresetsChangeNothing()
{
    DeskStage::Write(File("Broken.xml"), "<root>");
    stage->presets->ReadAgain();
    QVERIFY(Tip(QStringLiteral("Broken")).contains(QStringLiteral("Broken.xml")));
    stage->SetLength(55);
    const Settings before = stage->job.CurrentSettings();
    stage->presets->Choose(QStringLiteral("Broken"));
    QVERIFY(stage->Notice().contains(QStringLiteral("Broken")));
    QVERIFY(stage->job.CurrentSettings() == before);
    QCOMPARE(stage->presets->Active(), QString());
    QCOMPARE(stage->presets->currentIndex(), 0);
}

void tst_PresetNaming::presetsAreExportedAndImported()
{
    const QString path = stage->Path("mine.vbatch.xml");
    const auto choose = [path](QWidget*, const QString&, const QString&) { return path; };
    stage->desk->Keeper().dialogs.openFile = choose;
    stage->desk->Keeper().dialogs.saveFile = choose;
    stage->AddInputs({QStringLiteral("a.jpg")});
    stage->SetLength(640);
    stage->Action("exportPreset").trigger();
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(!file.readAll().contains("a.jpg"));
    stage->SetLength(1);
    stage->Action("importPreset").trigger();
    QCOMPARE(stage->Length(), 640.0);
    QCOMPARE(stage->The<QLineEdit>("presetName").text(), QStringLiteral("mine"));
    QTest::keyClick(&stage->The<QLineEdit>("presetName"), Qt::Key_Return);
    QVERIFY(QFile::exists(File("mine.xml")));
    QCOMPARE(stage->Inputs(), QStringList{QStringLiteral("a.jpg")});
}

void tst_PresetNaming::everyWidgetHasAName()
{
    stage->Action("savePreset").trigger();
    stage->desk->Tell(QStringLiteral("Something"));
    const auto widgets = stage->window.findChildren<QWidget*>();
    int count = 0;
    for (QWidget* const widget : widgets) {
        if (widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus) != 0) {
            ++count;
            QVERIFY2(!widget->objectName().isEmpty(), widget->metaObject()->className());
            QVERIFY2(!QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).isEmpty(),
                     qPrintable(widget->objectName()));
        }
    }
    QVERIFY(count >= 5);
}

QTEST_MAIN(tst_PresetNaming)
#include "tst_presetnaming.moc"
