// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ControlKeys.h"
#include "PaneStage.h"

#include "job/settings/JobCheck.h"
#include "job/values/JobValues.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSlider>
#include <QToolButton>

using namespace BatchDesktop;
using namespace BatchJob;

/// The pane of the settings with its real widgets, by keys and mouse: headings, steps, names, tab order.
class tst_SettingsPane : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void foldedSectionsSayTheirState_data();
    void foldedSectionsSayTheirState();
    void headingsFoldByKeys();
    void aChoiceIsAStep();
    void aSliderIsOneStep();
    void everythingHasANameAndIsReachedByTab();
    void randomKeysCanBeUndone();
};

namespace {

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
    row("some metadata", "metadata", "Kept are Creator and rights, ICC",
        [](Settings& settings) { settings.formatOptions = R"({"keep":["copyright","icc"]})"; });
    row("no profile", "profile", "The profile of each input", [](Settings&) {});
    row("nameless profile", "profile", "A profile of 3 bytes without a name",
        [](Settings& settings) { settings.profile = "abc"; });
    row("asking", "errors", "You are asked", [](Settings&) {});
    row("partly asking", "errors", "You are asked in 4 of 5 cases",
        [](Settings& settings) { settings.policies[std::size_t(PolicyKind::Naming)] = ZTBatchManager::NamingRename; });
    row("folder", "folder", qUtf8Printable(QDir::toNativeSeparators(QStringLiteral("/results"))), [](Settings&) {});
}

void tst_SettingsPane::foldedSectionsSayTheirState()
{
    QFETCH(const Change, change);
    QFETCH(const QByteArray, section);
    QFETCH(const QString, state);
    PaneStage stage;
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
    PaneStage stage;
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
    PaneStage stage;
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
    PaneStage stage;
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

void tst_SettingsPane::everythingHasANameAndIsReachedByTab()
{
    PaneStage stage;
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
    PaneStage stage;
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
                     problem.contains(QStringLiteral("resolution")) || problem.contains(QStringLiteral("takes 8")) ||
                     problem.contains(QStringLiteral("maxBytes")) || problem.contains(QStringLiteral("minQuality")),
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
