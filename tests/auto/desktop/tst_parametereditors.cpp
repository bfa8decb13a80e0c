// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ControlKeys.h"

#include "hosts/desktop/settings/parameters/Choosers.h"
#include "hosts/desktop/settings/parameters/NumberBox.h"
#include "hosts/desktop/settings/parameters/ParameterField.h"
#include "hosts/desktop/settings/parameters/ShownNames.h"
#include "hosts/desktop/settings/parameters/SliderScale.h"
#include "job/effects/EffectCatalog.h"
#include "job/formats/FormatCatalog.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QToolButton>
#include <QtTest>

using namespace BatchDesktop;
using namespace BatchJob;

/// The editors of parameters, each by its type, for all parameters of the catalogues.
class tst_ParameterEditors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void slidersReachTheWholeRange_data();
    void slidersReachTheWholeRange();
    void everyParameterIsEdited_data();
    void everyParameterIsEdited();
    void valuesOutsideCannotBeEntered();
    void aValueOutsideIsShownAsItIs();
    void numbersHaveAPointAndNoGroups();
    void theWheelChangesOnlyWhatHasTheFocus();
    void coloursAreTypedByNumberOrName();
    void coloursAreChosen();
    void filesAreTypedWhole();
    void filesAreChosen();
    void textsHaveLines();
    void parametersWithoutDefaultAreSetFirst();
    void namesAreInWords_data();
    void namesAreInWords();
    void namesWithoutWordsOfTheirOwn();
};

namespace {

struct CatalogueEntry
{
    QString id;
    ParameterSchema schema;
};

QVector<CatalogueEntry> AllParameters()
{
    QVector<CatalogueEntry> all;
    for (const EffectSchema& effect : Effects()) {
        for (const ParameterSchema& parameter : effect.parameters) {
            all.append({effect.id, parameter});
        }
    }
    for (const FormatSchema& format : Formats()) {
        for (const ParameterSchema& option : format.options) {
            all.append({format.name, option});
        }
    }
    return all;
}

void AddRows(bool (*isWanted)(const ParameterSchema& schema))
{
    QTest::addColumn<int>("entry");
    const QVector<CatalogueEntry> all = AllParameters();
    for (int i = 0; i < all.size(); ++i) {
        if (isWanted(all.at(i).schema)) {
            QTest::newRow(qPrintable(all.at(i).id + QLatin1Char('.') + all.at(i).schema.name)) << i;
        }
    }
}

ParameterSchema Schema(ParameterType type, double minimum = 0, double maximum = 100)
{
    ParameterSchema schema;
    schema.name = QStringLiteral("value");
    schema.type = type;
    schema.defaultValue = QJsonValue();
    schema.minimum = minimum;
    schema.maximum = maximum;
    return schema;
}

/// A field on the screen, and what its editor has said.
struct Stage
{
    explicit Stage(const ParameterSchema& schema, const Choosers& wanted = {})
        : choosers(wanted)
        , field(RowOf(schema, QStringLiteral("test")), choosers, nullptr)
        , edited(field.Editor(), &ParameterEditor::Edited)
    {
        field.show();
        field.activateWindow();
        ready = QTest::qWaitForWindowActive(&field);
    }

    template<typename Control>
    Control& The()
    {
        return *field.findChild<Control*>();
    }

    QJsonValue Last() const { return edited.last().at(0).toJsonValue(); }
    QString Problem() { return field.findChild<ProblemLabel*>()->text(); }

    Choosers choosers;
    ParameterField field;
    QSignalSpy edited;
    bool ready = false;
};

} // namespace

void tst_ParameterEditors::slidersReachTheWholeRange_data()
{
    AddRows([](const ParameterSchema& schema) {
        return schema.type == ParameterType::Number || schema.type == ParameterType::Integer;
    });
}

void tst_ParameterEditors::slidersReachTheWholeRange()
{
    QFETCH(const int, entry);
    const ParameterSchema schema = AllParameters().at(entry).schema;
    const bool isInteger = schema.type == ParameterType::Integer;
    const SliderScale scale(schema.minimum, schema.maximum, isInteger);
    QCOMPARE(scale.ValueAt(scale.Minimum()), schema.minimum);
    QCOMPARE(scale.ValueAt(scale.Maximum()), schema.maximum);
    double before = schema.minimum;
    for (int position = scale.Minimum(); position <= scale.Maximum(); ++position) {
        const double value = scale.ValueAt(position);
        QVERIFY(value >= before && value <= schema.maximum);
        QVERIFY(!isInteger || value == std::trunc(value));
        QCOMPARE(scale.ValueAt(scale.PositionOf(value)), value);
        before = value;
    }
    if (schema.defaultValue.isDouble()) {
        QCOMPARE(scale.ValueAt(scale.PositionOf(schema.defaultValue.toDouble())), schema.defaultValue.toDouble());
    }
}

void tst_ParameterEditors::everyParameterIsEdited_data()
{
    AddRows([](const ParameterSchema&) { return true; });
}

void tst_ParameterEditors::everyParameterIsEdited()
{
    QFETCH(const int, entry);
    ParameterSchema schema = AllParameters().at(entry).schema;
    Stage stage(schema);
    QVERIFY(stage.ready);
    stage.field.Editor()->SetValue(schema.defaultValue);
    QCOMPARE(stage.edited.size(), 0);

    QRandomGenerator random(20225);
    int controls = 0;
    const auto children = stage.field.findChildren<QWidget*>();
    for (QWidget* const control : children) {
        if (!ControlKeys::IsControl(*control) || control->objectName().startsWith(QStringLiteral("qt_"))) {
            continue;
        }
        ++controls;
        QVERIFY(!control->accessibleName().isEmpty());
        QVERIFY(control->objectName().startsWith(QStringLiteral("test.") + schema.name));
        for (int i = 0; i < 12 && control->isVisible(); ++i) {
            ControlKeys::PressSome(*control, random);
        }
    }
    QVERIFY(controls > 0);
    QVERIFY(!stage.edited.isEmpty());
    for (const QList<QVariant>& arguments : qAsConst(stage.edited)) {
        const QJsonValue value = arguments.at(0).toJsonValue();
        if (!value.isUndefined()) {
            const CheckedParameters checked = CheckParameters({schema}, QJsonObject{{schema.name, value}});
            QVERIFY2(checked.IsValid(), qPrintable(checked.error));
        }
    }
}

void tst_ParameterEditors::valuesOutsideCannotBeEntered()
{
    Stage stage(Schema(ParameterType::Integer, 1, 100));
    auto& box = stage.The<NumberBox>();
    stage.field.Editor()->SetValue(50);
    box.setFocus();
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("250"));
    QTest::keyClick(&box, Qt::Key_Enter);
    QVERIFY(box.value() <= 100);
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("-3x7.5"));
    QTest::keyClick(&box, Qt::Key_Enter);
    QVERIFY(box.value() >= 1);
    for (const QList<QVariant>& arguments : qAsConst(stage.edited)) {
        const double value = arguments.at(0).toJsonValue().toDouble();
        QVERIFY(value >= 1 && value <= 100 && value == std::trunc(value));
    }
}

void tst_ParameterEditors::aValueOutsideIsShownAsItIs()
{
    Stage stage(Schema(ParameterType::Integer, 1, 100));
    stage.field.Editor()->SetValue(250);
    QCOMPARE(stage.The<NumberBox>().value(), 250.0);
    QCOMPARE(stage.edited.size(), 0);
}

void tst_ParameterEditors::numbersHaveAPointAndNoGroups()
{
    ParameterSchema schema = Schema(ParameterType::Number, 0, 100'000);
    schema.unit = QStringLiteral("pixels");
    Stage stage(schema);
    stage.field.Editor()->SetValue(12345.5);
    QCOMPARE(stage.The<NumberBox>().text(), QStringLiteral("12345.5 px"));
    stage.field.Editor()->SetValue(1600);
    QCOMPARE(stage.The<NumberBox>().text(), QStringLiteral("1600 px"));
}

void tst_ParameterEditors::theWheelChangesOnlyWhatHasTheFocus()
{
    Stage stage(Schema(ParameterType::Integer));
    QVERIFY(stage.ready);
    auto& slider = stage.The<QSlider>();
    stage.field.Editor()->SetValue(50);
    stage.The<NumberBox>().setFocus();
    const auto turn = [&slider] {
        QWheelEvent event(QPointF(2, 2), slider.mapToGlobal(QPoint(2, 2)), QPoint(), QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&slider, &event);
    };
    turn();
    QCOMPARE(stage.edited.size(), 0);
    slider.setFocus();
    turn();
    QCOMPARE(stage.edited.size(), 1);
}

void tst_ParameterEditors::coloursAreTypedByNumberOrName()
{
    Stage stage(Schema(ParameterType::Colour));
    auto& field = stage.The<QLineEdit>();
    stage.field.Editor()->SetValue(QStringLiteral("#102030"));
    QCOMPARE(field.text(), QStringLiteral("#102030"));
    field.selectAll();
    QTest::keyClicks(&field, QStringLiteral("#12"));
    QCOMPARE(stage.edited.size(), 0);
    QVERIFY(stage.Problem().contains(QStringLiteral("a colour: #rrggbb")));
    field.selectAll();
    QTest::keyClicks(&field, QStringLiteral("white"));
    QCOMPARE(stage.Last(), QJsonValue(QStringLiteral("#ffffff")));
    QVERIFY(stage.Problem().isEmpty());
    stage.field.Editor()->SetValue(stage.Last());
    QCOMPARE(field.text(), QStringLiteral("white"));
    field.selectAll();
    QTest::keyClicks(&field, QStringLiteral("whi?"));
    QVERIFY(!stage.Problem().isEmpty());
    stage.field.Editor()->SetValue(QStringLiteral("#000000"));
    QCOMPARE(field.text(), QStringLiteral("#000000"));
    QVERIFY(stage.Problem().isEmpty());
}

void tst_ParameterEditors::coloursAreChosen()
{
    QColor offered;
    Choosers choosers;
    choosers.colour = [&offered](QWidget*, const QString&, const QColor& current,
                                 const std::function<void(const QColor&)>& chosen) {
        offered = current;
        chosen(QColor(1, 2, 3, 4));
    };
    Stage stage(Schema(ParameterType::Colour), choosers);
    stage.field.Editor()->SetValue(QStringLiteral("#0a0b0c80"));
    QTest::mouseClick(&stage.The<QToolButton>(), Qt::LeftButton);
    QCOMPARE(offered, QColor(10, 11, 12, 128));
    QCOMPARE(stage.Last(), QJsonValue(QStringLiteral("#01020304")));
}

void tst_ParameterEditors::filesAreTypedWhole()
{
    Stage stage(Schema(ParameterType::File));
    auto& field = stage.The<QLineEdit>();
    QTest::keyClicks(&field, QStringLiteral("logo.png"));
    QTest::keyClick(&field, Qt::Key_Enter);
    QCOMPARE(stage.edited.size(), 0);
    QVERIFY(stage.Problem().contains(QStringLiteral("logo.png")));
    field.selectAll();
    const QString path = QDir::temp().filePath(QStringLiteral("logo.png"));
    QTest::keyClicks(&field, path);
    QCOMPARE(stage.edited.size(), 0);
    QTest::keyClick(&field, Qt::Key_Enter);
    QCOMPARE(stage.edited.size(), 1);
    QCOMPARE(stage.Last(), QJsonValue(path));
    QVERIFY(stage.Problem().isEmpty());
}

void tst_ParameterEditors::filesAreChosen()
{
    QString chosen;
    Choosers choosers;
    choosers.file = [&chosen](QWidget*, const QString&, const QString&) { return chosen; };
    Stage stage(Schema(ParameterType::File), choosers);
    QTest::mouseClick(&stage.The<QPushButton>(), Qt::LeftButton);
    QCOMPARE(stage.edited.size(), 0);
    chosen = QDir::temp().filePath(QStringLiteral("table.cube"));
    QTest::mouseClick(&stage.The<QPushButton>(), Qt::LeftButton);
    QCOMPARE(stage.Last(), QJsonValue(chosen));
}

void tst_ParameterEditors::textsHaveLines()
{
    ParameterSchema schema = Schema(ParameterType::Text, 1, 1000);
    Stage stage(schema);
    auto& lines = stage.The<QPlainTextEdit>();
    QTest::keyClicks(&lines, QStringLiteral("a"));
    QTest::keyClick(&lines, Qt::Key_Return);
    QTest::keyClicks(&lines, QStringLiteral("b"));
    QCOMPARE(stage.Last(), QJsonValue(QStringLiteral("a\nb")));
    const int count = stage.edited.size();
    lines.selectAll();
    QTest::keyClick(&lines, Qt::Key_Delete);
    QCOMPARE(stage.edited.size(), count);
    QVERIFY(stage.Problem().contains(QStringLiteral("a text of 1 to 1000 characters")));
    schema.maximum = 10;
    Stage shortStage(schema);
    QTest::keyClicks(&shortStage.The<QLineEdit>(), QStringLiteral("more than ten characters"));
    QCOMPARE(shortStage.Last(), QJsonValue(QStringLiteral("more than ")));
}

void tst_ParameterEditors::parametersWithoutDefaultAreSetFirst()
{
    ParameterRow row = RowOf(Schema(ParameterType::Integer, 1, 100), QStringLiteral("test"));
    row.schema.defaultValue = QJsonValue(QJsonValue::Undefined);
    row.firstValue = 85;
    const Choosers choosers;
    ParameterField field(row, choosers, nullptr);
    field.show();
    QSignalSpy edited(field.Editor(), &ParameterEditor::Edited);
    field.Editor()->SetValue(QJsonValue(QJsonValue::Undefined));
    auto* const box = field.findChild<QCheckBox*>();
    auto* const number = field.findChild<NumberBox*>();
    QVERIFY(!box->isChecked());
    QVERIFY(!number->isVisible());
    QTest::keyClick(box, Qt::Key_Space);
    QCOMPARE(edited.last().at(0).toJsonValue(), QJsonValue(85));
    field.Editor()->SetValue(85);
    QVERIFY(number->isVisible());
    QTest::keyClick(box, Qt::Key_Space);
    QVERIFY(edited.last().at(0).toJsonValue().isUndefined());
}

// What the catalogues name is shown in the user's language.
void tst_ParameterEditors::namesAreInWords_data()
{
    QTest::addColumn<QString>("name");
    QSet<QString> names;
    for (const EffectSchema& effect : Effects()) {
        names.insert(effect.id);
    }
    for (const CatalogueEntry& entry : AllParameters()) {
        names.insert(entry.schema.name);
        for (const QString& choice : entry.schema.choices) {
            names.insert(choice);
        }
    }
    for (const QString& name : qAsConst(names)) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void tst_ParameterEditors::namesAreInWords()
{
    QFETCH(QString, name);
    const bool isNumbersOnly = !name.contains(QRegularExpression(QStringLiteral("[a-z]")));
    QVERIFY2(isNumbersOnly || HasShownName(name), "ShownNames.cpp has no words for it");
}

void tst_ParameterEditors::namesWithoutWordsOfTheirOwn()
{
    QCOMPARE(ShownName(QStringLiteral("brandNew-effect")), QStringLiteral("Brand new effect"));
    QCOMPARE(ShownName(QStringLiteral("4:2:0")), QStringLiteral("4:2:0"));
    QCOMPARE(ShownName(QStringLiteral("icc")), QStringLiteral("ICC"));
}

QTEST_MAIN(tst_ParameterEditors)
#include "tst_parametereditors.moc"
