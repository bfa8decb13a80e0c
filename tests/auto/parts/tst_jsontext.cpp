// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "job/values/JsonText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QtTest>

using namespace BatchJob;

namespace {

QByteArray TextOf(const QString& text)
{
    QByteArray json;
    AppendJsonString(json, text);
    return json;
}

QByteArray TextOf(const QJsonValue& value)
{
    return QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).mid(1).chopped(1);
}

} // namespace

/// JSON that is written without QJsonObject is the text that QJsonObject gives.
class tst_JsonText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void strings_data();
    void strings();
    void randomStrings();
    void objects();
};

void tst_JsonText::strings_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("path") << "/photos/IMG 0001.jpg";
    QTest::newRow("quotes and backslashes") << "\"a\\b\"";
    QTest::newRow("line ends") << "a\nb\r\nc\td";
    QTest::newRow("other controls") << QStringLiteral("\b\f\u0001\u001f\u007f");
    QTest::newRow("NUL") << QString(QChar(0));
    QTest::newRow("two bytes") << QStringLiteral("M\u00fcnchen");
    QTest::newRow("three bytes") << QStringLiteral("\u5199\u771f");
    QTest::newRow("four bytes") << QStringLiteral("\U0001F4F7");
    QTest::newRow("not a character") << QString(QChar(0xFFFE));
}

void tst_JsonText::strings()
{
    QFETCH(QString, text);
    QCOMPARE(TextOf(text), TextOf(QJsonValue(text)));
}

void tst_JsonText::randomStrings()
{
    constexpr int rounds = 5000;
    constexpr quint32 seed = 1;
    const QList<ushort> units{0,   9,    10,   0x1f,  '"',   '\\',   '/',    'a',
                              'z', 0x7f, 0x80, 0x7ff, 0x800, 0xd7ff, 0xe000, 0xffff};
    const QString pair = QStringLiteral("\U0001F4F7");
    QRandomGenerator random(seed);
    for (int round = 0; round < rounds; ++round) {
        QString text;
        for (int i = random.bounded(20); i > 0; --i) {
            const int choice = random.bounded(units.size() + 1);
            text += choice == units.size() ? pair : QString(QChar(units.at(choice)));
        }
        QCOMPARE(TextOf(text), TextOf(QJsonValue(text)));
    }
    // What UTF-8 cannot hold is escaped, and nothing around it is lost.
    const QString lone = QLatin1Char('a') + QString(QChar(0xd83d)) + QLatin1Char('b') + QString(QChar(0xdcf7));
    QCOMPARE(TextOf(lone), QByteArray("\"a\\ud83db\\udcf7\""));
}

void tst_JsonText::objects()
{
    QByteArray json;
    {
        JsonObjectText object(json);
        object.Add("a", QStringLiteral("text"));
        object.Add("b", qint64(9007199254740991));
        object.BeginList("c");
        for (const qint64 number : {-1, 0, 1}) {
            object.NextInList();
            JsonObjectText one(json);
            one.Add("n", number);
        }
        object.EndList();
        object.BeginList("d");
        object.EndList();
    }
    const auto one = [](int number) { return QJsonObject{{QStringLiteral("n"), number}}; };
    const QJsonObject expected{{QStringLiteral("a"), QStringLiteral("text")},
                               {QStringLiteral("b"), qint64(9007199254740991)},
                               {QStringLiteral("c"), QJsonArray{one(-1), one(0), one(1)}},
                               {QStringLiteral("d"), QJsonArray()}};
    QCOMPARE(json, QJsonDocument(expected).toJson(QJsonDocument::Compact));
}

QTEST_GUILESS_MAIN(tst_JsonText)
#include "tst_jsontext.moc"
