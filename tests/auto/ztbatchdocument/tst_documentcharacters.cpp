// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTGuardedDom_p.h"
#include "ZTXmlWriter_p.h"

#include <QDomDocument>
#include <QtTest>

#include <limits>

/// What the writer makes of each UTF-16 code unit and of numbers, against the DOM.
class tst_DocumentCharacters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void codeUnits_data();
    void codeUnits();
    void surrogatePairs();
    void unreadableCodeUnits_data();
    void unreadableCodeUnits();
    void numbers_data();
    void numbers();
};

namespace {

constexpr int unitCount = 0x10000;
constexpr int firstUnreadable = 0xFFFE;

const QString rowName = QStringLiteral("row");
const QString valueName = QStringLiteral("value");

/// One element with one attribute for each value: several attributes of one element have no fixed order in the DOM.
QString WrittenByTheWriter(const QStringList& values)
{
    ZTXmlWriter writer(QLatin1String("batch"));
    writer.StartElement(QLatin1String("root"));
    for (const QString& value : values) {
        writer.StartElement(QLatin1String("row"));
        writer.WriteAttribute(QLatin1String("value"), value);
        writer.EndElement();
    }
    writer.EndElement();
    return writer.TakeText();
}

QString WrittenByTheDom(const QStringList& values)
{
    QDomDocument document(QStringLiteral("batch"));
    QDomElement root = document.createElement(QStringLiteral("root"));
    document.appendChild(root);
    for (const QString& value : values) {
        QDomElement row = document.createElement(rowName);
        row.setAttribute(valueName, value);
        root.appendChild(row);
    }
    return document.toString(4);
}

QStringList ValuesIn(const QDomDocument& document)
{
    QStringList values;
    const QDomElement root = document.documentElement();
    for (QDomElement row = root.firstChildElement(); !row.isNull(); row = row.nextSiblingElement()) {
        values.append(row.attribute(valueName));
    }
    return values;
}

QString Hex(const QString& text)
{
    QStringList units;
    for (const QChar unit : text) {
        units.append(QString::number(unit.unicode(), 16));
    }
    return units.join(QLatin1Char(' '));
}

/// The first place where the lists differ, in hexadecimal code units; empty when they are equal.
QString Difference(const QStringList& actual, const QStringList& expected)
{
    for (int i = 0; i < qMax(actual.size(), expected.size()); ++i) {
        if (actual.value(i) != expected.value(i)) {
            return QStringLiteral("line %1: %2 instead of %3").arg(i).arg(Hex(actual.value(i)), Hex(expected.value(i)));
        }
    }
    return {};
}

QString LineDifference(const QString& actual, const QString& expected)
{
    return Difference(actual.split(QLatin1Char('>')), expected.split(QLatin1Char('>')));
}

} // namespace

void tst_DocumentCharacters::codeUnits_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");

    const auto row = [](const char* name, const QString& before, const QString& after) {
        QTest::newRow(name) << before << after;
    };
    row("alone", QString(), QString());
    row("between letters", QStringLiteral("a"), QStringLiteral("b"));
    row("between blanks", QStringLiteral(" "), QStringLiteral(" "));
    row("behind a high surrogate", QChar(0xD83D), QStringLiteral("x"));
    row("before a low surrogate", QStringLiteral("x"), QChar(0xDE00));
    row("behind brackets", QStringLiteral("]]"), QStringLiteral(">"));
    row("between controls", QChar(0x1), QChar(0x1F));
}

void tst_DocumentCharacters::codeUnits()
{
    QFETCH(QString, before);
    QFETCH(QString, after);

    QStringList values;
    for (int unit = 0; unit < firstUnreadable; ++unit) {
        values.append(before + QChar(unit) + after);
    }
    const QString text = WrittenByTheWriter(values);
    QCOMPARE(LineDifference(text, WrittenByTheDom(values)), QString());

    ZTGuardedDom dom;
    QVERIFY(dom.Parse(text));
    QCOMPARE(Difference(ValuesIn(dom.Document()), values), QString());
}

void tst_DocumentCharacters::surrogatePairs()
{
    // Also each low surrogate before each high one.
    QStringList values;
    for (int high = 0xD800; high < 0xDC00; ++high) {
        QString value;
        for (int low = 0xDC00; low < 0xE000; ++low) {
            value += QChar(high);
            value += QChar(low);
        }
        values.append(value);
    }
    const QString text = WrittenByTheWriter(values);
    QCOMPARE(LineDifference(text, WrittenByTheDom(values)), QString());

    ZTGuardedDom dom;
    QVERIFY(dom.Parse(text));
    QCOMPARE(Difference(ValuesIn(dom.Document()), values), QString());
}

void tst_DocumentCharacters::unreadableCodeUnits_data()
{
    QTest::addColumn<int>("unit");
    for (int unit = firstUnreadable; unit < unitCount; ++unit) {
        QTest::addRow("U+%X", unsigned(unit)) << unit;
    }
}

void tst_DocumentCharacters::unreadableCodeUnits()
{
    QFETCH(int, unit);

    const QStringList values{QLatin1Char('a') + QString(QChar(unit)) + QLatin1Char('b')};
    const QString writtenByTheDom = WrittenByTheDom(values);
    QVERIFY(writtenByTheDom.contains(QChar(unit)));
    QVERIFY(!QDomDocument().setContent(writtenByTheDom, false));

    ZTGuardedDom dom;
    QVERIFY(dom.Parse(WrittenByTheWriter(values)));
    QCOMPARE(ValuesIn(dom.Document()), QStringList{QStringLiteral("a\uFFFDb")});
}

void tst_DocumentCharacters::numbers_data()
{
    QTest::addColumn<double>("number");

    using Limits = std::numeric_limits<double>;
    for (const double number : {0.0,
                                -0.0,
                                1.0,
                                -1.0,
                                0.1,
                                1.0 / 3.0,
                                0.75,
                                800.0,
                                1e15,
                                1e16,
                                1e17,
                                1e21,
                                -1e300,
                                1e-4,
                                1e-5,
                                Limits::max(),
                                Limits::lowest(),
                                Limits::min(),
                                Limits::denorm_min(),
                                Limits::infinity(),
                                -Limits::infinity(),
                                Limits::quiet_NaN()}) {
        QTest::addRow("%.17g", number) << number;
    }
}

void tst_DocumentCharacters::numbers()
{
    QFETCH(double, number);

    ZTXmlWriter writer(QLatin1String("batch"));
    writer.StartElement(QLatin1String("root"));
    writer.WriteAttribute(QLatin1String("value"), number);
    writer.EndElement();
    QDomDocument document(QStringLiteral("batch"));
    QDomElement root = document.createElement(QStringLiteral("root"));
    root.setAttribute(valueName, number);
    document.appendChild(root);
    QCOMPARE(writer.TakeText(), document.toString(4));
}

QTEST_GUILESS_MAIN(tst_DocumentCharacters)
#include "tst_documentcharacters.moc"
