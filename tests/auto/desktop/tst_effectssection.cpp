// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "hosts/desktop/settings/SettingsPane.h"
#include "hosts/desktop/settings/effects/EffectsSection.h"
#include "hosts/desktop/settings/parameters/ParameterField.h"
#include "job/effects/EffectCatalog.h"
#include "job/settings/JobCheck.h"

#include <QImage>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QTemporaryDir>
#include <QtTest>

using namespace BatchDesktop;
using namespace BatchJob;

/// The chain of effects in the pane, with its list, its menu and the editors of the effect that is chosen.
class tst_EffectsSection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyEffectIsAddedAndEdited_data();
    void everyEffectIsAddedAndEdited();
    void theMenuSaysWhatEffectsDo();
    void keysChangeTheChain();
    void theChosenEffectStaysChosen();
    void aSliderOfAnEffectIsOneStep();
    void whatIsMissingIsSaidAndGoesAway();
    void valuesThatContradictAreSaid();
    void anUnknownEffectIsSaid();
};

namespace {

struct Stage
{
    Stage()
        : pane(job, nullptr, {ChosenPath(), ChosenPath(), {}})
        , list(*pane.findChild<QListView*>(QStringLiteral("effects.list")))
        , section(*pane.findChild<SettingsSection*>(QStringLiteral("effects")))
    {
        Settings settings = job.CurrentSettings();
        settings.outputFolder = QStringLiteral("/results");
        job.Change(settings, QStringLiteral("Start"));
        job.History().clear();
        section.SetFolded(false);
        pane.resize(500, 900);
        pane.show();
        pane.activateWindow();
        isReady = QTest::qWaitForWindowActive(&pane);
    }

    void Add(const char* effect)
    {
        const QString name = QStringLiteral("effects.add.") + QLatin1String(effect);
        pane.AddEffectMenu()->findChild<QAction*>(name)->trigger();
    }

    template<typename Control>
    Control* Find(const QString& name)
    {
        return pane.findChild<Control*>(name);
    }

    QString Problem(const char* field)
    {
        auto* const label = Find<ProblemLabel>(QString::fromLatin1(field) + QStringLiteral(".problem"));
        return label ? label->text() : QStringLiteral("no such field");
    }

    QStringList Names() const
    {
        QStringList names;
        for (const Settings::Effect& effect : job.CurrentSettings().effects) {
            names.append(effect.name);
        }
        return names;
    }

    Choosers::ChoosePath ChosenPath()
    {
        return [this](QWidget*, const QString&, const QString&) { return chosenPath; };
    }

    QString chosenPath;
    EditedJob job;
    SettingsPane pane;
    QListView& list;
    SettingsSection& section;
    bool isReady = false;
};

QStringList Words(const char* words)
{
    return QString::fromLatin1(words).split(QLatin1Char(' '));
}

} // namespace

void tst_EffectsSection::everyEffectIsAddedAndEdited_data()
{
    QTest::addColumn<QString>("id");
    for (const EffectSchema& effect : Effects()) {
        QTest::newRow(qPrintable(effect.id)) << effect.id;
    }
}

void tst_EffectsSection::everyEffectIsAddedAndEdited()
{
    QFETCH(const QString, id);
    Stage stage;
    stage.Add(id.toLatin1().constData());
    QCOMPARE(stage.Names(), QStringList(id));
    QCOMPARE(stage.list.currentIndex().row(), 0);
    for (const ParameterSchema& parameter : FindEffect(id)->parameters) {
        const QString name = QStringLiteral("effects.%1.%2").arg(id, parameter.name);
        auto* const label = stage.Find<ProblemLabel>(name + QStringLiteral(".problem"));
        QVERIFY2(label && label->parentWidget()->isVisible(), qPrintable(name));
        auto* const slider = stage.Find<QSlider>(name + QStringLiteral(".slider"));
        if (slider) {
            const int position = slider->value();
            slider->setValue(slider->maximum());
            const CheckedParameters checked =
                CheckParameters({parameter}, stage.job.CurrentSettings().effects.first().parameters);
            QVERIFY2(checked.IsValid(), qPrintable(checked.error));
            QCOMPARE(checked.values.value(parameter.name).toDouble(), parameter.maximum);
            // A default may be the maximum.
            if (stage.job.History().index() > 1) {
                stage.job.History().undo();
            }
            QCOMPARE(slider->value(), position);
        }
    }
}

void tst_EffectsSection::theMenuSaysWhatEffectsDo()
{
    Stage stage;
    const QList<QAction*> actions = stage.pane.AddEffectMenu()->actions();
    QCOMPARE(actions.size(), Effects().size());
    QVERIFY(stage.pane.AddEffectMenu()->toolTipsVisible());
    for (int i = 0; i < actions.size(); ++i) {
        QCOMPARE(actions.at(i)->toolTip(), Effects().at(i).description);
    }
}

void tst_EffectsSection::keysChangeTheChain()
{
    Stage stage;
    QVERIFY(stage.isReady);
    stage.Add("blur");
    stage.Add("sepia");
    stage.Add("invert");
    stage.list.setFocus();
    QTest::keyClick(&stage.list, Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(stage.Names(), Words("blur invert sepia"));
    QTest::keyClick(&stage.list, Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(stage.Names(), Words("invert blur sepia"));
    QTest::keyClick(&stage.list, Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(stage.Names(), Words("invert blur sepia"));
    QTest::keyClick(&stage.list, Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(stage.Names(), Words("blur invert sepia"));
    QTest::keyClick(&stage.list, Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(stage.Names(), Words("blur invert invert sepia"));
    QTest::keyClick(&stage.list, Qt::Key_Space);
    QVERIFY(!stage.job.CurrentSettings().effects.at(2).isEnabled);
    QTest::keyClick(&stage.list, Qt::Key_Delete);
    QCOMPARE(stage.Names(), Words("blur invert sepia"));
    const int count = stage.job.History().count();
    while (stage.job.History().canUndo()) {
        stage.job.History().undo();
    }
    QVERIFY(stage.Names().isEmpty());
    QVERIFY(!stage.list.isVisible());
    QCOMPARE(stage.job.History().count(), count);
}

void tst_EffectsSection::theChosenEffectStaysChosen()
{
    Stage stage;
    stage.Add("blur");
    stage.Add("sepia");
    stage.list.setCurrentIndex(stage.list.model()->index(0, 0));
    const QString sigma = QStringLiteral("effects.blur.") + FindEffect(QStringLiteral("blur"))->parameters.first().name;
    QVERIFY(stage.Find<QWidget>(sigma)->isVisible());
    stage.list.setFocus();
    QTest::keyClick(&stage.list, Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(stage.list.currentIndex().row(), 1);
    stage.job.History().undo();
    QCOMPARE(stage.list.currentIndex().row(), 0);
    QVERIFY(stage.Find<QWidget>(sigma)->isVisible());
}

void tst_EffectsSection::aSliderOfAnEffectIsOneStep()
{
    Stage stage;
    stage.Add("exposure");
    const QString name = FindEffect(QStringLiteral("exposure"))->parameters.first().name;
    auto* const slider = stage.Find<QSlider>(QStringLiteral("effects.exposure.%1.slider").arg(name));
    const int before = slider->value();
    slider->setSliderDown(true);
    for (int step = 1; step < 5; ++step) {
        slider->setSliderPosition(before + step);
    }
    slider->setSliderDown(false);
    QCOMPARE(stage.job.History().count(), 2);
    stage.job.History().undo();
    QCOMPARE(slider->value(), before);
    QCOMPARE(stage.job.CurrentSettings().effects.first().parameters, QByteArray());
}

void tst_EffectsSection::whatIsMissingIsSaidAndGoesAway()
{
    const QTemporaryDir folder;
    const QString logo = folder.filePath(QStringLiteral("logo.png"));
    QVERIFY(QImage(4, 4, QImage::Format_ARGB32).save(logo));
    Stage stage;
    stage.Add("watermark-image");
    QTRY_VERIFY(stage.Problem("effects.watermark-image.file").contains(QStringLiteral("\"file\" is missing")));
    QVERIFY(stage.section.StateText().contains(CheckSettings(stage.job.Document()).refusal.message));
    stage.chosenPath = folder.filePath(QStringLiteral("vanished.png"));
    auto* const choose = stage.Find<QPushButton>(QStringLiteral("effects.watermark-image.file.button"));
    QTest::mouseClick(choose, Qt::LeftButton);
    QTRY_VERIFY(stage.Problem("effects.watermark-image.file").contains(QStringLiteral("does not exist")));
    stage.chosenPath = logo;
    QTest::mouseClick(choose, Qt::LeftButton);
    QTRY_VERIFY(stage.Problem("effects.watermark-image.file").isEmpty());
    QCOMPARE(stage.section.StateText(), QStringLiteral("Watermark with a picture"));
    QVERIFY(CheckSettings(stage.job.Document()).IsAccepted());
    QCOMPARE(stage.Find<QLineEdit>(QStringLiteral("effects.watermark-image.file"))->text(),
             QDir::toNativeSeparators(logo));
}

void tst_EffectsSection::valuesThatContradictAreSaid()
{
    Stage stage;
    stage.Add("levels");
    auto* const black = stage.Find<QSlider>(QStringLiteral("effects.levels.black.slider"));
    black->setValue(black->maximum());
    QTRY_VERIFY(stage.Problem("effects.levels.black").contains(QStringLiteral("black must be less than white")));
    stage.list.setFocus();
    QTest::keyClick(&stage.list, Qt::Key_Space);
    QTRY_VERIFY(stage.Problem("effects.levels.black").isEmpty());
}

void tst_EffectsSection::anUnknownEffectIsSaid()
{
    Stage stage;
    Settings settings = stage.job.CurrentSettings();
    settings.effects = {{QStringLiteral("sparkle"), {}, true}};
    stage.job.Change(settings, QStringLiteral("Test"));
    QTRY_VERIFY(stage.section.StateText().contains(QStringLiteral("The effect \"sparkle\" does not exist")));
    stage.list.setFocus();
    QTest::keyClick(&stage.list, Qt::Key_Delete);
    QTRY_COMPARE(stage.section.StateText(), QStringLiteral("No effects"));
}

QTEST_MAIN(tst_EffectsSection)
#include "tst_effectssection.moc"
