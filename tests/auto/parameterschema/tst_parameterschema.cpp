// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "job/values/ParameterSchema.h"

#include <QtTest>

#include <QJsonArray>
#include <QJsonDocument>

using namespace BatchJob;

class tst_ParameterSchema : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesNothingAsDefaults_data();
    void takesNothingAsDefaults();
    void checks_data();
    void checks();
    void refusesWhatIsNoObject_data();
    void refusesWhatIsNoObject();
    void tellsOfMissingAndUnknownNames_data();
    void tellsOfMissingAndUnknownNames();
    void leavesOptionalOnesOut();
    void readsText_data();
    void readsText();
    void refusesText_data();
    void refusesText();
    void readsRelativeFiles();
    void whatTextGivesPassesTheCheck();
    void findsTheNearestWord_data();
    void findsTheNearestWord();
};

namespace {

using Type = ParameterType;

ParameterSchema Parameter(Type type, const QJsonValue& standard = QJsonValue(), double minimum = 0, double maximum = 0,
                          const QStringList& choices = {})
{
    ParameterSchema parameter;
    parameter.name = QStringLiteral("p");
    parameter.type = type;
    parameter.defaultValue = standard;
    parameter.minimum = minimum;
    parameter.maximum = maximum;
    parameter.choices = choices;
    return parameter;
}

// One parameter of each type, by a word for the rows.
ParameterSchema ParameterNamed(const QString& kind)
{
    const QStringList fruit{QStringLiteral("apple"), QStringLiteral("Pear"), QStringLiteral("fig")};
    const QHash<QString, ParameterSchema> parameters{
        {QStringLiteral("number"), Parameter(Type::Number, 1.5, -10, 10)},
        {QStringLiteral("integer"), Parameter(Type::Integer, 3, 1, 9)},
        {QStringLiteral("truth"), Parameter(Type::Truth, true)},
        {QStringLiteral("choice"), Parameter(Type::Choice, QStringLiteral("fig"), 0, 0, fruit)},
        {QStringLiteral("list"), Parameter(Type::ChoiceList, QJsonArray{QStringLiteral("fig")}, 0, 0, fruit)},
        {QStringLiteral("colour"), Parameter(Type::Colour, QStringLiteral("#ffffff"))},
        {QStringLiteral("text"), Parameter(Type::Text, QStringLiteral("words"), 1, 5)},
        {QStringLiteral("file"), Parameter(Type::File)},
        {QStringLiteral("points"), Parameter(Type::Points, QJsonArray{QJsonArray{0, 0}, QJsonArray{1, 1}}, 0, 100)},
    };
    return parameters.value(kind);
}

QByteArray Json(const QJsonValue& value)
{
    const QByteArray wrapped = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return wrapped.mid(1, wrapped.size() - 2);
}

QByteArray PointsJson(int count)
{
    QByteArrayList points;
    for (int i = 0; i < count; ++i) {
        points.append("[" + QByteArray::number(i / 4.0) + ",1]");
    }
    return "[" + points.join(',') + "]";
}

} // namespace

void tst_ParameterSchema::takesNothingAsDefaults_data()
{
    QTest::addColumn<QByteArray>("json");

    QTest::newRow("null") << QByteArray();
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("blanks") << QByteArray(" \n\t ");
    QTest::newRow("empty object") << QByteArray("{}");
    QTest::newRow("spaced empty object") << QByteArray(" { } ");
}

void tst_ParameterSchema::takesNothingAsDefaults()
{
    QFETCH(QByteArray, json);

    const CheckedParameters checked = CheckParameters({ParameterNamed(QStringLiteral("number"))}, json);

    QVERIFY2(checked.IsValid(), qPrintable(checked.error));
    QCOMPARE(checked.values, (QJsonObject{{QStringLiteral("p"), 1.5}}));
}

void tst_ParameterSchema::checks_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("error");

    const auto accepted = [](const char* kind, const QByteArray& value) {
        QTest::addRow("%s %s", kind, value.left(40).constData()) << QString::fromLatin1(kind) << value << QString();
    };
    const auto refused = [](const char* kind, const QByteArray& value, const char* shown, const char* allowed) {
        QTest::addRow("%s %s", kind, value.left(40).constData())
            << QString::fromLatin1(kind) << value
            << QStringLiteral("\"p\" is %1; it must be %2").arg(QString::fromUtf8(shown), QString::fromUtf8(allowed));
    };

    accepted("number", "-10");
    accepted("number", "10");
    accepted("number", "0.125");
    accepted("number", "1e1");
    const char* number = "a number from -10 to 10";
    refused("number", "10.000001", "10.000001", number);
    refused("number", "-11", "-11", number);
    refused("number", "1e300", "1e+300", number);
    refused("number", "\"1\"", "\"1\"", number);
    refused("number", "true", "true", number);
    refused("number", "null", "null", number);
    refused("number", "[1]", "[1]", number);
    refused("number", "{\"a\":1}", "{\"a\":1}", number);

    accepted("integer", "1");
    accepted("integer", "9");
    accepted("integer", "4.0");
    const char* integer = "a whole number from 1 to 9";
    refused("integer", "0", "0", integer);
    refused("integer", "10", "10", integer);
    refused("integer", "2.5", "2.5", integer);
    refused("integer", "\"2\"", "\"2\"", integer);

    accepted("truth", "true");
    accepted("truth", "false");
    refused("truth", "0", "0", "true or false");
    refused("truth", "\"true\"", "\"true\"", "true or false");

    accepted("choice", "\"apple\"");
    const char* choice = "one of apple, Pear, fig";
    refused("choice", "\"Apple\"", "\"Apple\"", choice);
    refused("choice", "\"\"", "\"\"", choice);
    refused("choice", "1", "1", choice);

    accepted("list", "[]");
    accepted("list", "[\"fig\",\"apple\"]");
    const char* list = "a list of apple, Pear, fig";
    refused("list", "[\"fig\",\"fig\"]", "[\"fig\",\"fig\"]", list);
    refused("list", "[\"nut\"]", "[\"nut\"]", list);
    refused("list", "[1]", "[1]", list);
    refused("list", "\"fig\"", "\"fig\"", list);

    accepted("colour", "\"#00FFaa\"");
    accepted("colour", "\"#00ffaa80\"");
    const char* colour = "a colour, #rrggbb or #rrggbbaa";
    refused("colour", "\"#fff\"", "\"#fff\"", colour);
    refused("colour", "\"00ffaa\"", "\"00ffaa\"", colour);
    refused("colour", "\"#00ffag\"", "\"#00ffag\"", colour);
    refused("colour", "\"#00ffaa\\n\"", "\"#00ffaa\\n\"", colour);
    refused("colour", "\"white\"", "\"white\"", colour);
    refused("colour", "16777215", "16777215", colour);

    accepted("text", "\"a\"");
    accepted("text", "\"abcde\"");
    const char* text = "a text of 1 to 5 characters";
    refused("text", "\"\"", "\"\"", text);
    refused("text", "\"abcdef\"", "\"abcdef\"", text);
    refused("text", "5", "5", text);

    accepted("file", "\"/a/b.png\"");
    refused("file", "\"b.png\"", "\"b.png\"", "the absolute path of a file");
    refused("file", "\"\"", "\"\"", "the absolute path of a file");
    refused("file", "7", "7", "the absolute path of a file");

    accepted("points", "[[0,100],[100,0]]");
    accepted("points", PointsJson(256));
    const char* points = "a list of 2 to 256 points [x, y] with ascending x, numbers from 0 to 100";
    refused("points", "[[0,0]]", "[[0,0]]", points);
    refused("points", "[]", "[]", points);
    refused("points", "[[0,0],[0,1]]", "[[0,0],[0,1]]", points);
    refused("points", "[[1,0],[0,1]]", "[[1,0],[0,1]]", points);
    refused("points", "[[0,0],[1,101]]", "[[0,0],[1,101]]", points);
    refused("points", "[[-1,0],[1,1]]", "[[-1,0],[1,1]]", points);
    refused("points", "[[0,0],[1]]", "[[0,0],[1]]", points);
    refused("points", "[[0,0],[1,1,1]]", "[[0,0],[1,1,1]]", points);
    refused("points", "[[0,0],[1,\"1\"]]", "[[0,0],[1,\"1\"]]", points);
    refused("points", "[0,1]", "[0,1]", points);
    const QByteArray tooMany = PointsJson(257);
    refused("points", tooMany, tooMany.left(80) + "...", points);
}

void tst_ParameterSchema::checks()
{
    QFETCH(QString, kind);
    QFETCH(QByteArray, value);
    QFETCH(QString, error);

    const CheckedParameters checked = CheckParameters({ParameterNamed(kind)}, "{\"p\": " + value + "}");

    QCOMPARE(checked.error, error);
    QCOMPARE(checked.IsValid(), error.isEmpty());
    QCOMPARE(checked.values.size(), error.isEmpty() ? 1 : 0);
    if (error.isEmpty()) {
        const QJsonValue expected = QJsonDocument::fromJson("[" + value + "]").array().first();
        QCOMPARE(checked.values.value(QStringLiteral("p")), expected);
    }
}

void tst_ParameterSchema::refusesWhatIsNoObject_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");

    const auto object = QStringLiteral("a JSON object is needed, such as {\"name\": value}");
    QTest::newRow("array") << QByteArray("[1]") << object;
    QTest::newRow("number") << QByteArray("1") << QStringLiteral("not valid JSON at byte 1: illegal value");
    QTest::newRow("cut") << QByteArray("{\"p\":") << QStringLiteral("not valid JSON at byte 5: unterminated object");
    QTest::newRow("two objects") << QByteArray("{}{}")
                                 << QStringLiteral("not valid JSON at byte 2: garbage at the end of the document");
    QTest::newRow("no UTF-8") << QByteArray("{\"\xFF\": 1}")
                              << QStringLiteral("not valid JSON at byte 2: invalid UTF8 string");
}

void tst_ParameterSchema::refusesWhatIsNoObject()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, error);

    const CheckedParameters checked = CheckParameters({ParameterNamed(QStringLiteral("number"))}, json);

    QCOMPARE(checked.error, error);
    QVERIFY(checked.values.isEmpty());
}

void tst_ParameterSchema::tellsOfMissingAndUnknownNames_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");

    QTest::newRow("missing") << QByteArray("{}")
                             << QStringLiteral("\"file\" is missing; it must be the absolute path of a file");
    QTest::newRow("misspelt") << QByteArray("{\"file\": \"/a\", \"opcity\": 3}")
                              << QStringLiteral("\"opcity\" is unknown; did you mean \"opacity\"?");
    QTest::newRow("other case") << QByteArray("{\"file\": \"/a\", \"Opacity\": 3}")
                                << QStringLiteral("\"Opacity\" is unknown; did you mean \"opacity\"?");
    QTest::newRow("far off") << QByteArray("{\"file\": \"/a\", \"xyzzy\": 3}")
                             << QStringLiteral("\"xyzzy\" is unknown; known are file, opacity");
}

void tst_ParameterSchema::tellsOfMissingAndUnknownNames()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, error);

    ParameterSchema file = Parameter(Type::File);
    file.name = QStringLiteral("file");
    ParameterSchema opacity = Parameter(Type::Number, 1, 0, 10);
    opacity.name = QStringLiteral("opacity");

    QCOMPARE(CheckParameters({file, opacity}, json).error, error);
    QCOMPARE(CheckParameters({}, QByteArray("{\"p\":1}")).error,
             QStringLiteral("\"p\" is unknown; none is taken here"));
}

void tst_ParameterSchema::leavesOptionalOnesOut()
{
    const ParameterSchema optional = Parameter(Type::Integer, QJsonValue(QJsonValue::Undefined), 1, 9);

    const CheckedParameters without = CheckParameters({optional}, QByteArray());
    QVERIFY(without.IsValid());
    QVERIFY(without.values.isEmpty());
    QCOMPARE(CheckParameters({optional}, QByteArray("{\"p\":4}")).values.value(QStringLiteral("p")), QJsonValue(4));
}

void tst_ParameterSchema::readsText_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("value");

    const auto row = [](const char* kind, const char* text, const QByteArray& value) {
        QTest::addRow("%s '%s'", kind, text) << QString::fromLatin1(kind) << QString::fromUtf8(text) << value;
    };
    row("number", "1.25", "1.25");
    row("number", "-10", "-10");
    row("number", "+3", "3");
    row("number", " 2e0 ", "2");
    row("integer", "9", "9");
    row("integer", "4.0", "4");
    row("truth", "true", "true");
    row("truth", "Yes", "true");
    row("truth", "ON", "true");
    row("truth", "1", "true");
    row("truth", "false", "false");
    row("truth", "no", "false");
    row("truth", "off", "false");
    row("truth", "0", "false");
    row("choice", "fig", "\"fig\"");
    row("choice", "pear", "\"Pear\"");
    row("choice", " APPLE ", "\"apple\"");
    row("list", "fig+apple", "[\"fig\",\"apple\"]");
    row("list", "fig,pear", "[\"fig\",\"Pear\"]");
    row("list", "fig", "[\"fig\"]");
    row("list", "", "[]");
    row("list", "none", "[]");
    row("colour", "#a0B1c2", "\"#a0B1c2\"");
    row("colour", "a0b1c2", "\"#a0b1c2\"");
    row("colour", "#a0b1c2d3", "\"#a0b1c2d3\"");
    row("colour", "white", "\"#ffffff\"");
    row("colour", " DarkSlateGray ", "\"#2f4f4f\"");
    row("colour", "transparent", "\"#00000000\"");
    row("text", "a, b=", "\"a, b=\"");
    row("text", "\u00fc\u00df\u20ac", "\"\u00fc\u00df\u20ac\"");
    row("text", " x ", "\" x \"");
    const QByteArray absolutePath = QFileInfo(QStringLiteral("/b.png")).absoluteFilePath().toUtf8();
    row("file", "/a/../b.png", '"' + absolutePath + '"');
    row("points", "0:0+100:50", "[[0,0],[100,50]]");
    row("points", "0:10;20.5:30;100:100", "[[0,10],[20.5,30],[100,100]]");
    row("points", " 0:0  1:2 ", "[[0,0],[1,2]]");
}

void tst_ParameterSchema::readsText()
{
    QFETCH(QString, kind);
    QFETCH(QString, text);
    QFETCH(QByteArray, value);

    const ParameterValue read = ParameterFromText(ParameterNamed(kind), text);

    QCOMPARE(read.error, QString());
    QCOMPARE(Json(read.value), value);
}

void tst_ParameterSchema::refusesText_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("end");

    const auto row = [](const char* kind, const char* text, const char* end) {
        QTest::addRow("%s '%s'", kind, text)
            << QString::fromLatin1(kind) << QString::fromUtf8(text) << QString::fromUtf8(end);
    };
    for (const char* text : {"", "ten", "1,5", "1.5px", "11", "-10.5", "nan", "inf", "0x3", "1 2"}) {
        row("number", text, "it must be a number from -10 to 10");
    }
    for (const char* text : {"", "2.5", "10", "two"}) {
        row("integer", text, "it must be a whole number from 1 to 9");
    }
    for (const char* text : {"", "2", "maybe", "truefalse"}) {
        row("truth", text, "it must be true or false");
    }
    row("choice", "", "it must be one of apple, Pear, fig");
    row("choice", "aple", "it must be one of apple, Pear, fig; did you mean apple?");
    row("choice", "xxxxxxxx", "it must be one of apple, Pear, fig");
    for (const char* text : {"fig+", "nut", "fig+fig", "fig apple", "+"}) {
        row("list", text, "it must be apple, Pear, fig, joined with +, or none");
    }
    for (const char* text : {"", "#", "#fff", "##ffffff", "#ffffffg", "0"}) {
        row("colour", text, "it must be a colour: #rrggbb, #rrggbbaa, or a name such as white");
    }
    row("colour", "blakc", "it must be a colour: #rrggbb, #rrggbbaa, or a name such as white; did you mean black?");
    for (const char* text : {"", "abcdef"}) {
        row("text", text, "it must be a text of 1 to 5 characters");
    }
    row("file", "", "it must be the absolute path of a file");
    for (const char* text : {"", "0:0", "0:0+0:1", "0:0+1", "0:0+1:2:3", "0:0+1:x", "a", "0:0+1:101", "0/0 1/1"}) {
        row("points", text, "it must be 2 to 256 points x:y with ascending x, joined with +, numbers from 0 to 100");
    }
}

void tst_ParameterSchema::refusesText()
{
    QFETCH(QString, kind);
    QFETCH(QString, text);
    QFETCH(QString, end);

    const ParameterValue read = ParameterFromText(ParameterNamed(kind), text);

    QCOMPARE(read.error, QStringLiteral("\"p\" is \"%1\"; %2").arg(text, end));
    QVERIFY(!read.IsValid());
    QVERIFY(read.value.isUndefined());
}

void tst_ParameterSchema::readsRelativeFiles()
{
    const ParameterSchema file = ParameterNamed(QStringLiteral("file"));
    const QString here = QDir::currentPath();

    QCOMPARE(ParameterFromText(file, QStringLiteral("a b.png")).value.toString(),
             QDir(here).filePath(QStringLiteral("a b.png")));
    QCOMPARE(ParameterFromText(file, QStringLiteral("x/../y.png")).value.toString(),
             QDir(here).filePath(QStringLiteral("y.png")));
}

void tst_ParameterSchema::whatTextGivesPassesTheCheck()
{
    const QMap<QString, QString> texts{
        {QStringLiteral("number"), QStringLiteral("-3.5")},   {QStringLiteral("integer"), QStringLiteral("7")},
        {QStringLiteral("truth"), QStringLiteral("off")},     {QStringLiteral("choice"), QStringLiteral("PEAR")},
        {QStringLiteral("list"), QStringLiteral("fig+pear")}, {QStringLiteral("colour"), QStringLiteral("102030")},
        {QStringLiteral("text"), QStringLiteral("hello")},    {QStringLiteral("file"), QStringLiteral("here.png")},
        {QStringLiteral("points"), QStringLiteral("1:2 3:4")}};
    for (auto it = texts.begin(); it != texts.end(); ++it) {
        const ParameterSchema parameter = ParameterNamed(it.key());
        const QJsonObject given{{parameter.name, ParameterFromText(parameter, it.value()).value}};
        const CheckedParameters checked = CheckParameters({parameter}, given);
        QCOMPARE(checked.error, QString());
        QCOMPARE(checked.values, given);
    }
}

void tst_ParameterSchema::findsTheNearestWord_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("nearest");

    QTest::newRow("same") << QStringLiteral("blur") << QStringLiteral("blur");
    QTest::newRow("case") << QStringLiteral("BLUR") << QStringLiteral("blur");
    QTest::newRow("one edit") << QStringLiteral("blurr") << QStringLiteral("blur");
    QTest::newRow("replaced") << QStringLiteral("blor") << QStringLiteral("blur");
    QTest::newRow("swapped") << QStringLiteral("sharepn") << QStringLiteral("sharpen");
    QTest::newRow("half the word") << QStringLiteral("blxx") << QStringLiteral("blur");
    QTest::newRow("more than half") << QStringLiteral("bxxx") << QString();
    QTest::newRow("nothing like it") << QStringLiteral("q") << QString();
    QTest::newRow("empty") << QString() << QString();
}

void tst_ParameterSchema::findsTheNearestWord()
{
    QFETCH(QString, word);
    QFETCH(QString, nearest);

    QCOMPARE(NearestWord(word, {QStringLiteral("blur"), QStringLiteral("sharpen"), QStringLiteral("sepia")}), nearest);
    QCOMPARE(NearestWord(word, {}), QString());
}

QTEST_GUILESS_MAIN(tst_ParameterSchema)
#include "tst_parameterschema.moc"
