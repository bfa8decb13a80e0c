#include "ControlKeys.h"

#include "hosts/desktop/job/EditedJob.h"
#include "hosts/desktop/settings/SettingsPane.h"
#include "hosts/desktop/settings/effects/EffectsSection.h"
#include "hosts/desktop/settings/parameters/ParameterField.h"
#include "job/effects/EffectCatalog.h"
#include "job/formats/FormatCatalog.h"
#include "job/formats/FormatOptions.h"
#include "job/settings/JobCheck.h"
#include "job/values/JobValues.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QImage>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QSlider>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

using namespace BatchDesktop;
using namespace BatchJob;

using Output = ZTBatchOutputSettings;

/// The pane of the settings with its real widgets, by keys and mouse.
class tst_SettingsPane : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void foldedSectionsSayTheirState_data();
    void foldedSectionsSayTheirState();
    void headingsFoldByKeys();
    void aChoiceIsAStep();
    void aSliderIsOneStep();
    void problemsAreSaidBesideTheirField_data();
    void problemsAreSaidBesideTheirField();
    void eachFormatShowsItsOptions_data();
    void eachFormatShowsItsOptions();
    void anotherFormatDropsWhatItDoesNotTake();
    void depthsAreThoseOfTheFormat();
    void namesHaveALiveExample();
    void profilesAreReadAndRefused();
    void everythingHasANameAndIsReachedByTab();
    void randomKeysCanBeUndone();
};

namespace {

struct Stage
{
    Stage()
        : pane(job, nullptr, FakeChoosers())
    {
        Settings settings = job.CurrentSettings();
        settings.outputFolder = QStringLiteral("/results");
        job.Change(settings, QStringLiteral("Start"));
        job.History().clear();
        pane.resize(500, 900);
        pane.show();
        pane.activateWindow();
        isReady = QTest::qWaitForWindowActive(&pane);
    }

    template<typename Control>
    Control& The(const char* name)
    {
        auto* const found = pane.findChild<Control*>(QString::fromLatin1(name));
        if (!found) {
            qFatal("No %s", name);
        }
        return *found;
    }

    SettingsSection& Section(const char* id) { return The<SettingsSection>(id); }

    template<typename Function>
    void Set(Function change)
    {
        Settings settings = job.CurrentSettings();
        change(settings);
        job.Change(settings, QStringLiteral("Test"));
    }

    void Unfold()
    {
        for (SettingsSection* const section : pane.Sections()) {
            section->SetFolded(false);
        }
    }

    Choosers FakeChoosers()
    {
        const auto path = [this](QWidget*, const QString&, const QString&) { return chosenPath; };
        return {path, path,
                [](QWidget*, const QString&, const QColor&, const std::function<void(const QColor&)>& chosen) {
                    chosen(QColor(1, 2, 3));
                }};
    }

    QString chosenPath;
    EditedJob job;
    SettingsPane pane;
    bool isReady = false;
};

using Change = std::function<void(Settings&)>;

} // namespace

Q_DECLARE_METATYPE(Change)

void tst_SettingsPane::foldedSectionsSayTheirState_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QByteArray>("section");
    QTest::addColumn<QString>("state");
    const auto row = [](const char* name, const char* section, const char* state, const Change& change) {
        QTest::newRow(name) << change << QByteArray(section) << QString::fromUtf8(state);
    };
    row("no scaling", "size", "The size stays", [](Settings&) {});
    row("smaller", "size", "Long side 1600 px, only smaller", [](Settings& settings) {
        settings.imageSize.restriction = int(SizeRestriction::ReduceOnly);
        settings.imageSize.size = 1600;
    });
    row("on paper", "size", "Width 10.5 cm at 300 dpi", [](Settings& settings) {
        settings.imageSize = {int(SizeRestriction::Fit), int(SizeUnit::Centimetres), int(SizeSide::Width), 10.5, 300};
    });
    row("no crop", "crop", "No crop", [](Settings&) {});
    row("crop", "crop", "Ratio 3 : 2, turned with the picture", [](Settings& settings) {
        settings.crop = {Qt::AlignCenter, QSize(3, 2), int(CropType::TurningRatio)};
    });
    row("no effects", "effects", "No effects", [](Settings&) {});
    row("effects", "effects", "White balance, Blur", [](Settings& settings) {
        settings.effects = {{QStringLiteral("white-balance"), {}, true},
                            {QStringLiteral("sepia"), {}, false},
                            {QStringLiteral("blur"), {}, true}};
    });
    row("effects switched off", "effects", "All effects are switched off", [](Settings& settings) {
        settings.effects = {{QStringLiteral("sepia"), {}, false}};
    });
    row("no frame", "frame", "No frame", [](Settings&) {});
    row("frame", "frame", "Margins 1, 2, 3, 4 px with a shadow", [](Settings& settings) {
        settings.framing.state = true;
        settings.framing.margins = QMargins(1, 2, 3, 4);
        settings.framing.shadowEnabled = true;
    });
    row("names", "names", "IMG_0412.jpg", [](Settings&) {});
    row("format of originals", "format", "The format of each input", [](Settings&) {});
    row("JPEG", "format", "JPEG, quality 85", [](Settings& settings) { settings.format = QStringLiteral("JPEG"); });
    row("PNG", "format", "PNG", [](Settings& settings) { settings.format = QStringLiteral("PNG"); });
    row("all metadata", "metadata", "All metadata is kept", [](Settings&) {});
    row("no metadata", "metadata", "No metadata is kept",
        [](Settings& settings) { settings.formatOptions = R"({"keep":[]})"; });
    row("some metadata", "metadata", "Kept are Copyright, ICC",
        [](Settings& settings) { settings.formatOptions = R"({"keep":["copyright","icc"]})"; });
    row("no profile", "profile", "The profile of each input", [](Settings&) {});
    row("nameless profile", "profile", "A profile of 3 bytes without a name",
        [](Settings& settings) { settings.profile = "abc"; });
    row("asking", "errors", "You are asked", [](Settings&) {});
    row("partly asking", "errors", "You are asked in 4 of 5 cases",
        [](Settings& settings) { settings.policies[std::size_t(PolicyKind::Naming)] = ZTBatchManager::NamingRename; });
    row("folder", "folder", "/results", [](Settings&) {});
}

void tst_SettingsPane::foldedSectionsSayTheirState()
{
    QFETCH(const Change, change);
    QFETCH(const QByteArray, section);
    QFETCH(const QString, state);
    Stage stage;
    const QString before = stage.Section(section.constData()).StateText();
    stage.Set(change);
    QVERIFY(stage.Section(section.constData()).IsFolded());
    QCOMPARE(stage.Section(section.constData()).StateText(), state);
    if (stage.job.History().canUndo()) {
        QVERIFY(before != state);
        stage.job.History().undo();
        QCOMPARE(stage.Section(section.constData()).StateText(), before);
    }
}

void tst_SettingsPane::headingsFoldByKeys()
{
    Stage stage;
    auto& heading = stage.The<QToolButton>("crop.heading");
    auto& type = stage.The<QComboBox>("crop.type");
    QVERIFY(!type.isVisible());
    QTest::keyClick(&heading, Qt::Key_Space);
    QVERIFY(type.isVisible());
    QTest::keyClick(&heading, Qt::Key_Space);
    QVERIFY(!type.isVisible());
}

void tst_SettingsPane::aChoiceIsAStep()
{
    Stage stage;
    stage.Unfold();
    auto& type = stage.The<QComboBox>("crop.type");
    auto& width = stage.The<QDoubleSpinBox>("crop.width");
    QVERIFY(!width.isVisible());
    QTest::keyClick(&type, Qt::Key_Down);
    QCOMPARE(stage.job.CurrentSettings().crop.type, int(CropType::Ratio));
    QVERIFY(width.isVisible());
    QCOMPARE(stage.job.History().undoText(), QStringLiteral("Crop: Kind of crop"));
    width.selectAll();
    QTest::keyClicks(&width, QStringLiteral("1200"));
    QCOMPARE(stage.job.History().count(), 1);
    QTest::keyClick(&width, Qt::Key_Enter);
    QCOMPARE(stage.job.CurrentSettings().crop.size.width(), 1200);
    QCOMPARE(stage.job.History().count(), 2);
    stage.job.History().undo();
    QCOMPARE(width.value(), 800.0);
    stage.job.History().undo();
    QCOMPARE(type.currentIndex(), 0);
    QVERIFY(!width.isVisible());
    QCOMPARE(stage.job.History().count(), 2);
}

void tst_SettingsPane::aSliderIsOneStep()
{
    Stage stage;
    QVERIFY(stage.isReady);
    stage.Unfold();
    stage.Set([](Settings& settings) { settings.format = QStringLiteral("JPEG"); });
    const int before = stage.job.History().count();
    auto& slider = stage.The<QSlider>("format.quality.slider");
    slider.setSliderDown(true);
    for (const int quality : {80, 70, 60}) {
        slider.setSliderPosition(quality);
    }
    slider.setSliderDown(false);
    QCOMPARE(stage.job.CurrentSettings().formatOptions, QByteArray(R"({"quality":60})"));
    QCOMPARE(stage.job.History().count(), before + 1);
    slider.setSliderDown(true);
    slider.setSliderPosition(50);
    slider.setSliderDown(false);
    QCOMPARE(stage.job.History().count(), before + 2);
    stage.job.History().undo();
    QCOMPARE(slider.value(), 60);
    QCOMPARE(stage.The<QDoubleSpinBox>("format.quality").value(), 60.0);
    stage.job.History().undo();
    QCOMPARE(slider.value(), 85);
    QCOMPARE(stage.job.CurrentSettings().formatOptions, QByteArray());
}

void tst_SettingsPane::problemsAreSaidBesideTheirField_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QByteArray>("section");
    QTest::addColumn<QByteArray>("field");
    const auto row = [](const char* section, const char* field, const Change& change) {
        QTest::newRow(field) << change << QByteArray(section) << QByteArray(field);
    };
    const auto scaled = [](Settings& settings) { settings.imageSize.restriction = int(SizeRestriction::Fit); };
    row("size", "size.length", [scaled](Settings& settings) {
        scaled(settings);
        settings.imageSize.size = 2'000'000;
    });
    row("size", "size.side", [scaled](Settings& settings) {
        scaled(settings);
        settings.imageSize.side = 9;
    });
    row("size", "size.resolution", [scaled](Settings& settings) {
        scaled(settings);
        settings.imageSize.unit = int(SizeUnit::Inches);
        settings.imageSize.resolution = 0;
    });
    row("crop", "crop.height", [](Settings& settings) {
        settings.crop = {Qt::AlignCenter, QSize(10, 0), int(CropType::Exact)};
    });
    row("frame", "frame.image", [](Settings& settings) {
        settings.framing.state = true;
        settings.framing.backgroundType = int(BackgroundType::Image);
        settings.framing.backgroundImage = QStringLiteral("/no/such.png");
    });
    row("frame", "frame.opacity", [](Settings& settings) {
        settings.framing.state = true;
        settings.framing.opacity = 1.5;
    });
    row("names", "names.suffixDigits", [](Settings& settings) {
        settings.nameParts[Output::PartSuffix] = {Output::TemplateNumber, {}, 1, 65};
    });
    row("format", "format.quality", [](Settings& settings) {
        settings.format = QStringLiteral("JPEG");
        settings.formatOptions = R"({"quality":101})";
    });
    row("metadata", "metadata.keep", [](Settings& settings) {
        settings.format = QStringLiteral("JPEG");
        settings.formatOptions = R"({"keep":["all"]})";
    });
    row("folder", "folder.path", [](Settings& settings) { settings.outputFolder = QStringLiteral("results"); });
}

void tst_SettingsPane::problemsAreSaidBesideTheirField()
{
    QFETCH(const Change, change);
    QFETCH(const QByteArray, section);
    QFETCH(const QByteArray, field);
    Stage stage;
    stage.Unfold();
    stage.Set(change);
    const QString problem = CheckSettings(stage.job.Document()).refusal.message;
    QVERIFY(!problem.isEmpty());
    auto& label = stage.The<ProblemLabel>((field + ".problem").constData());
    QVERIFY(label.isVisible());
    const QString said = label.text().mid(2); // behind the sign
    QVERIFY2(problem.endsWith(said), qPrintable(said + QLatin1Char('\n') + problem));
    QVERIFY(stage.Section(section.constData()).StateText().endsWith(said));
    const auto labels = stage.pane.findChildren<ProblemLabel*>();
    for (ProblemLabel* const other : labels) {
        QVERIFY(other == &label || other->text().isEmpty());
    }
    stage.job.History().undo();
    QVERIFY(stage.The<ProblemLabel>((field + ".problem").constData()).text().isEmpty());
}

void tst_SettingsPane::eachFormatShowsItsOptions_data()
{
    QTest::addColumn<QString>("format");
    QTest::newRow("Original") << Output::GetOriginalFormat();
    for (const FormatSchema& format : Formats()) {
        QTest::newRow(qPrintable(format.name)) << format.name;
    }
}

void tst_SettingsPane::eachFormatShowsItsOptions()
{
    QFETCH(const QString, format);
    Stage stage;
    stage.Unfold();
    stage.Set([&format](Settings& settings) { settings.format = format; });
    QSet<QString> expected{QStringLiteral("format.format")};
    for (const ParameterSchema& option : OptionsTakenBy(format)) {
        const bool isMetadata = option.name.startsWith(QStringLiteral("keep"));
        expected.insert((isMetadata ? QStringLiteral("metadata.") : QStringLiteral("format.")) + option.name);
    }
    QSet<QString> shown;
    for (const char* const section : {"format", "metadata"}) {
        const auto labels = stage.Section(section).findChildren<ProblemLabel*>();
        for (const ProblemLabel* const label : labels) {
            if (label->parentWidget()->isVisible() && !label->objectName().isEmpty()) {
                shown.insert(label->objectName().chopped(int(qstrlen(".problem"))));
            }
        }
    }
    QCOMPARE(shown, expected);
    QVERIFY(CheckSettings(stage.job.Document()).IsAccepted());
}

void tst_SettingsPane::anotherFormatDropsWhatItDoesNotTake()
{
    Stage stage;
    stage.Unfold();
    auto& formats = stage.The<QComboBox>("format.format");
    stage.Set([](Settings& settings) {
        settings.format = QStringLiteral("JPEG");
        settings.formatOptions = R"({"background":"#102030","chromaSubsampling":"4:4:4","keep":["icc"],"quality":70})";
    });
    for (int i = 0; i < formats.count() - 1; ++i) {
        QTest::keyClick(&formats, Qt::Key_Down);
        QVERIFY2(CheckSettings(stage.job.Document()).IsAccepted(), qPrintable(formats.currentText()));
        const QJsonObject options = QJsonDocument::fromJson(stage.job.CurrentSettings().formatOptions).object();
        QCOMPARE(options.value(QStringLiteral("keep")).toArray().size(), 1);
    }
    while (stage.job.History().count() > 0 && stage.job.History().index() > 1) {
        stage.job.History().undo();
    }
    QVERIFY(stage.job.CurrentSettings().formatOptions.contains("4:4:4"));
}

void tst_SettingsPane::depthsAreThoseOfTheFormat()
{
    Stage stage;
    stage.Unfold();
    const auto texts = [&stage] {
        QStringList shown;
        const auto& box = stage.The<QComboBox>("format.bitDepth");
        for (int i = 0; i < box.count(); ++i) {
            shown.append(box.itemText(i));
        }
        return shown.join(QLatin1Char('|'));
    };
    stage.Set([](Settings& settings) { settings.format = QStringLiteral("PNG"); });
    QCOMPARE(texts(), QStringLiteral("As the format has it|8|16"));
    QTest::keyClick(&stage.The<QComboBox>("format.bitDepth"), Qt::Key_End);
    QCOMPARE(stage.job.CurrentSettings().formatOptions, QByteArray(R"({"bitDepth":16})"));
    QTest::keyClick(&stage.The<QComboBox>("format.bitDepth"), Qt::Key_Home);
    QCOMPARE(stage.job.CurrentSettings().formatOptions, QByteArray());
    stage.Set([](Settings& settings) {
        settings.format = QStringLiteral("TIFF");
        settings.formatOptions = R"({"compression":"jpeg"})";
    });
    QCOMPARE(texts(), QStringLiteral("As the format has it|8"));
}

void tst_SettingsPane::namesHaveALiveExample()
{
    Stage stage;
    stage.Unfold();
    auto& example = stage.The<QLabel>("names.example");
    stage.pane.SetExample(QStringLiteral("/in/DSC 7.JPEG"), 41);
    QCOMPARE(example.text(), QStringLiteral("Example: DSC 7.jpg"));
    stage.Set([](Settings& settings) {
        settings.format = QStringLiteral("PNG");
        settings.nameParts[Output::PartSuffix] = {Output::TemplateNumber, {}, 1, 4};
    });
    QTest::keyClicks(&stage.The<QLineEdit>("names.suffixSeparator"), QStringLiteral("-"));
    QCOMPARE(example.text(), QStringLiteral("Example: DSC 7-0042.png"));
    stage.Set([](Settings& settings) { settings.nameParts[Output::PartPrefix].kind = Output::TemplateCaptureDate; });
    QCOMPARE(example.text(), QStringLiteral("Example, as if it had been taken on 2024-07-31 at 14:05:09: "
                                            "20240731DSC 7-0042.png"));
    stage.pane.SetExample(QStringLiteral("/in/DSC 7.JPEG"), 41, QDateTime(QDate(2021, 2, 3), QTime(4, 5, 6)));
    QCOMPARE(example.text(), QStringLiteral("Example: 20210203DSC 7-0042.png"));
    QCOMPARE(stage.Section("names").StateText(), QStringLiteral("20210203DSC 7-0042.png"));
}

void tst_SettingsPane::profilesAreReadAndRefused()
{
    const QTemporaryDir folder;
    const auto write = [&folder](const char* name, const QByteArray& bytes) {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName() : QString();
    };
    QByteArray profile(200, '\0');
    profile.replace(36, 4, "acsp");
    profile.replace(128, 20,
                    QByteArray::fromHex("00000001"
                                        "64657363"
                                        "00000094"
                                        "00000020"
                                        "64657363"));
    profile.replace(148, 4, "desc");
    profile.replace(156, 4, QByteArray::fromHex("0000000A"));
    profile.replace(160, 10, QByteArray("Wide RGB!\0", 10));

    Stage stage;
    stage.Unfold();
    auto& problem = stage.The<ProblemLabel>("profile.problem");
    stage.chosenPath = write("no.icc", "no profile");
    QTest::mouseClick(&stage.The<QPushButton>("profile.choose"), Qt::LeftButton);
    QVERIFY(problem.text().contains(QStringLiteral("is not an ICC profile")));
    QCOMPARE(stage.job.History().count(), 0);
    stage.chosenPath = write("wide.icc", profile);
    QTest::mouseClick(&stage.The<QPushButton>("profile.choose"), Qt::LeftButton);
    QVERIFY(problem.text().isEmpty());
    QCOMPARE(stage.job.CurrentSettings().profile, profile);
    QCOMPARE(stage.Section("profile").StateText(), QStringLiteral("Wide RGB!"));
    QTest::mouseClick(&stage.The<QPushButton>("profile.remove"), Qt::LeftButton);
    QVERIFY(stage.job.CurrentSettings().profile.isEmpty());
    stage.job.History().undo();
    QCOMPARE(stage.job.CurrentSettings().profile, profile);
}

void tst_SettingsPane::everythingHasANameAndIsReachedByTab()
{
    Stage stage;
    QVERIFY(stage.isReady);
    stage.Unfold();
    stage.Set([](Settings& settings) {
        settings.framing.state = true;
        settings.framing.shadowEnabled = true;
        settings.crop.type = int(CropType::Exact);
        settings.format = QStringLiteral("TIFF");
        settings.effects = {{QStringLiteral("curve"), {}, true}, {QStringLiteral("watermark-text"), {}, true}};
    });
    QSet<QWidget*> reached;
    QStringList order;
    QWidget* widget = &stage.The<QToolButton>("size.heading");
    widget->setFocus();
    while (!reached.contains(widget)) {
        reached.insert(widget);
        QTest::keyClick(widget, Qt::Key_Tab);
        order.append(widget->objectName().section(QLatin1Char('.'), 0, 0));
        widget = QApplication::focusWidget();
        QVERIFY(widget);
    }
    const auto widgets = stage.pane.findChildren<QWidget*>();
    for (QWidget* const each : widgets) {
        const bool isOwn = !each->objectName().startsWith(QStringLiteral("qt_"));
        if (isOwn && each->isVisible() && each->isEnabled() && (each->focusPolicy() & Qt::TabFocus) &&
            !each->focusProxy()) {
            const QByteArray what = each->metaObject()->className() + (' ' + each->objectName().toUtf8());
            QVERIFY2(!each->accessibleName().isEmpty() && !each->objectName().isEmpty(), what.constData());
            QVERIFY2(reached.contains(each), what.constData());
        }
    }
    QVERIFY(reached.size() > 60);
    order.removeDuplicates();
    QStringList sections;
    for (const SettingsSection* const section : stage.pane.Sections()) {
        sections.append(section->objectName());
    }
    QCOMPARE(order, sections);
}

void tst_SettingsPane::randomKeysCanBeUndone()
{
    QRandomGenerator random(20226);
    Stage stage;
    QVERIFY(stage.isReady);
    stage.Unfold();
    stage.Set([](Settings& settings) {
        settings.framing.state = true;
        settings.effects = {{QStringLiteral("curve"), {}, true}, {QStringLiteral("levels"), {}, true}};
    });
    stage.job.History().clear();
    const Settings before = stage.job.CurrentSettings();
    for (int i = 0; i < 400; ++i) {
        QVector<QWidget*> controls;
        const auto widgets = stage.pane.findChildren<QWidget*>();
        for (QWidget* const widget : widgets) {
            if (ControlKeys::IsControl(*widget) && widget->isVisible() && widget->isEnabled() &&
                !widget->objectName().startsWith(QStringLiteral("qt_"))) {
                controls.append(widget);
            }
        }
        ControlKeys::PressSome(*controls.at(random.bounded(controls.size())), random);
        QVERIFY(Settings::Of(stage.job.Document(), stage.job.CurrentSettings().policies) ==
                stage.job.CurrentSettings());
        const QString problem = CheckSettings(stage.job.Document()).refusal.message;
        // What one value allows, another may forbid; a value by itself cannot be wrong.
        QVERIFY2(problem.isEmpty() || problem.contains(QStringLiteral("black")) ||
                     problem.contains(QStringLiteral("background's image")) ||
                     problem.contains(QStringLiteral("resolution")) || problem.contains(QStringLiteral("takes 8")),
                 qPrintable(problem));
    }
    const Settings after = stage.job.CurrentSettings();
    const int count = stage.job.History().count();
    QVERIFY(count > 50);
    while (stage.job.History().canUndo()) {
        stage.job.History().undo();
    }
    QVERIFY(stage.job.CurrentSettings() == before);
    QCOMPARE(stage.job.History().count(), count);
    while (stage.job.History().canRedo()) {
        stage.job.History().redo();
    }
    QVERIFY(stage.job.CurrentSettings() == after);
    QCOMPARE(stage.job.History().count(), count);
}

QTEST_MAIN(tst_SettingsPane)
#include "tst_settingspane.moc"
