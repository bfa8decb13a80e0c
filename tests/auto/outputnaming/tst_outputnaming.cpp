// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "job/settings/NamePart.h"
#include "job/settings/OutputNaming.h"
#include "job/values/JobValues.h"

#include <QtTest>

using namespace BatchJob;
using Settings = ZTBatchOutputSettings;

class tst_OutputNaming : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void templates_data();
    void templates();
    void separators_data();
    void separators();
    void captureTimes();
    void tokens_data();
    void tokens();
    void tokensOfOneFile();
    void tokensAreCustomTextsThatSaySo_data();
    void tokensAreCustomTextsThatSaySo();
    void tokenNeeds_data();
    void tokenNeeds();
    void numbers_data();
    void numbers();
    void cleanNames_data();
    void cleanNames();
    void lengthLimit_data();
    void lengthLimit();
    void keys_data();
    void keys();
};

namespace {

const QDateTime noon(QDate(2024, 2, 29), QTime(12, 5, 59));

/// Only the middle, made from `kind`.
OutputNaming Middle(Settings::NamingTemplate kind, const QString& text = {}, int start = 1, int digits = 1)
{
    Settings settings(nullptr);
    SetNamePart(settings, Settings::PartMiddle, {kind, text, start, digits});
    settings.SetNamingTemplate(Settings::PartSuffix, Settings::TemplateNothing);
    return OutputNaming(settings);
}

} // namespace

void tst_OutputNaming::templates_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("digits");
    QTest::addColumn<QString>("input");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("stem");

    const QString input = QStringLiteral("/in/a.b.jpg");
    const auto row = [&](const char* name, int kind, const QString& inputPath, const QString& stem) {
        QTest::newRow(name) << kind << QString() << 1 << 1 << inputPath << 0 << stem;
    };
    row("original name", Settings::TemplateOriginalName, input, QStringLiteral("a.b"));
    row("original name without extension", Settings::TemplateOriginalName, QStringLiteral("/in/a"),
        QStringLiteral("a"));
    row("original name, dot in the folder", Settings::TemplateOriginalName, QStringLiteral("/i.n/a"),
        QStringLiteral("a"));
    row("only an extension", Settings::TemplateOriginalName, QStringLiteral("/in/.jpg"), QStringLiteral("_"));
    row("date", Settings::TemplateCaptureDate, input, QStringLiteral("20240229"));
    row("time", Settings::TemplateCaptureTime, input, QStringLiteral("120559"));
    row("nothing falls back", Settings::TemplateNothing, input, QStringLiteral("a.b"));
    row("empty text falls back", Settings::TemplateCustomText, input, QStringLiteral("a.b"));
    QTest::newRow("text") << int(Settings::TemplateCustomText) << QStringLiteral("Sea") << 1 << 1 << input << 7
                          << QStringLiteral("Sea");
    QTest::newRow("number") << int(Settings::TemplateNumber) << QString() << 1 << 3 << input << 8
                            << QStringLiteral("009");
    QTest::newRow("long number") << int(Settings::TemplateNumber) << QString() << 98 << 2 << input << 2
                                 << QStringLiteral("100");
    QTest::newRow("largest number") << int(Settings::TemplateNumber) << QString() << std::numeric_limits<int>::max()
                                    << 1 << input << 1 << QStringLiteral("2147483648");
}

void tst_OutputNaming::templates()
{
    QFETCH(int, kind);
    QFETCH(QString, text);
    QFETCH(int, start);
    QFETCH(int, digits);
    QFETCH(QString, input);
    QFETCH(int, position);
    const OutputNaming naming = Middle(Settings::NamingTemplate(kind), text, start, digits);
    QTEST(naming.Stem(input, position, noon), "stem");
}

void tst_OutputNaming::separators_data()
{
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("middle");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("stem");
    const QString none;
    const QString a = QStringLiteral("a");
    const QString b = QStringLiteral("b");
    const QString c = QStringLiteral("c");
    QTest::newRow("all") << a << b << c << QStringLiteral("a-b+c");
    QTest::newRow("no prefix") << none << b << c << QStringLiteral("b+c");
    QTest::newRow("no suffix") << a << b << none << QStringLiteral("a-b");
    QTest::newRow("no middle") << a << none << c << QStringLiteral("ac");
    QTest::newRow("only the prefix") << a << none << none << a;
    QTest::newRow("only the suffix") << none << none << c << c;
    QTest::newRow("nothing") << none << none << none << QStringLiteral("photo");
}

void tst_OutputNaming::separators()
{
    QFETCH(QString, prefix);
    QFETCH(QString, middle);
    QFETCH(QString, suffix);
    Settings settings(nullptr);
    for (const auto part : {Settings::PartPrefix, Settings::PartMiddle, Settings::PartSuffix}) {
        settings.SetNamingTemplate(part, Settings::TemplateCustomText);
    }
    settings.SetCustomTemplate(Settings::PartPrefix, prefix);
    settings.SetCustomTemplate(Settings::PartMiddle, middle);
    settings.SetCustomTemplate(Settings::PartSuffix, suffix);
    settings.SetPrefixSeparator(QStringLiteral("-"));
    settings.SetSuffixSeparator(QStringLiteral("+"));
    QTEST(OutputNaming(settings).Stem(QStringLiteral("/in/photo.jpg"), 0, {}), "stem");
}

void tst_OutputNaming::captureTimes()
{
    QVERIFY(Middle(Settings::TemplateCaptureDate).NeedsCaptureTime());
    QVERIFY(Middle(Settings::TemplateCaptureTime).NeedsCaptureTime());
    QVERIFY(!Middle(Settings::TemplateNumber).NeedsCaptureTime());
    QCOMPARE(Middle(Settings::TemplateCaptureDate).Stem(QStringLiteral("/in/a.jpg"), 0, {}),
             QStringLiteral("00000000"));
    QCOMPARE(Middle(Settings::TemplateCaptureTime).Stem(QStringLiteral("/in/a.jpg"), 0, {}), QStringLiteral("000000"));
}

void tst_OutputNaming::tokens_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("stem");
    const auto row = [](const char* text, const char* stem) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(stem);
    };
    row("{date:YYYY-MM-DD}_{number:4}", "2024-02-29_0012");
    row("{date:YYYY/MM}", "2024_02");
    row("{time:HH:MM}", "12_05");
    row("{name}", "a.b");
    row("{folder} {name}", "in a.b");
    row("{title}", "a.b");
    row(" {title} ", "a.b");
    row("{title} {camera}", "EOS");
    row("{shutter}s", "1_250s");
    row("{lens}", ".._.._etc_passwd");
    row("{iso}", "__");
    row("{creator}", "_");
    row("{{name}}", "{name}");
    row("{width}x{height}", "300x200");
    row("{aperture}", "2.8");
}

// Whatever a picture says, its name is one name.
void tst_OutputNaming::tokens()
{
    QFETCH(QString, text);
    PictureTexts texts;
    texts.camera = QStringLiteral("EOS");
    texts.lens = QStringLiteral("../../etc/passwd");
    texts.aperture = QStringLiteral("2.8");
    texts.shutter = QStringLiteral("1/250");
    texts.iso = QStringLiteral("..");
    texts.creator = QStringLiteral("NUL");
    const OutputNaming naming = Middle(TemplateTokens, text, 5);
    QTEST(naming.Stem(QStringLiteral("/photos/in/a.b.jpg"), 7, {noon, QSize(300, 200), texts}), "stem");
}

void tst_OutputNaming::tokensOfOneFile()
{
    const OutputNaming naming = Middle(TemplateTokens, QStringLiteral("{date}{camera}{name}"));
    QCOMPARE(naming.Stem(QStringLiteral("/a.jpg"), 0, {}), QStringLiteral("a"));
    const OutputNaming literal = Middle(Settings::TemplateCustomText, QStringLiteral("{date}{{x"));
    QCOMPARE(literal.Stem(QStringLiteral("/a.jpg"), 0, noon), QStringLiteral("{date}{{x"));
    QVERIFY(!literal.NeedsPicture());
}

void tst_OutputNaming::tokensAreCustomTextsThatSaySo_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<bool>("hasTokens");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("start");
    const auto row = [](const char* stored, bool hasTokens, const char* text, int start) {
        QTest::newRow(stored) << QString::fromLatin1(stored) << hasTokens << QString::fromLatin1(text) << start;
    };
    row("{tokens}{name}", true, "{name}", 1);
    row("{tokens:120}{name}", true, "{name}", 120);
    row("{tokens:0}", true, "", 0);
    row("{tokens}{tokens}", true, "{tokens}", 1);
    row("{tokens:}{name}", false, "{tokens:}{name}", 7);
    row("{tokens:1234567890}{name}", false, "{tokens:1234567890}{name}", 7);
    row("{tokens:-1}{name}", false, "{tokens:-1}{name}", 7);
    row(" {tokens}{name}", false, " {tokens}{name}", 7);
    row("{Tokens}{name}", false, "{Tokens}{name}", 7);
    row("{name}", false, "{name}", 7);
}

void tst_OutputNaming::tokensAreCustomTextsThatSaySo()
{
    QFETCH(QString, stored);
    QFETCH(bool, hasTokens);
    Settings settings(nullptr);
    settings.SetNamingTemplate(Settings::PartMiddle, Settings::TemplateCustomText);
    settings.SetCustomTemplate(Settings::PartMiddle, stored);
    settings.SetStartNumber(Settings::PartMiddle, 7);
    const NamePart found = NamePartOf(settings, Settings::PartMiddle);
    QCOMPARE(int(found.kind), int(hasTokens ? TemplateTokens : Settings::TemplateCustomText));
    QTEST(found.text, "text");
    QTEST(found.startNumber, "start");
    SetNamePart(settings, Settings::PartMiddle, found);
    QVERIFY(NamePartOf(settings, Settings::PartMiddle) == found);
    QCOMPARE(settings.GetCustomTemplate(Settings::PartMiddle), stored);

    // As a text of its own it becomes part of names as it stands.
    const OutputNaming literal = Middle(Settings::TemplateCustomText, stored);
    const OutputNaming plain =
        Middle(Settings::TemplateCustomText, QString(stored).replace(QLatin1Char('{'), QLatin1Char('(')));
    const QString stem = literal.Stem(QStringLiteral("/a.jpg"), 0, {});
    QCOMPARE(QString(stem).replace(QLatin1Char('{'), QLatin1Char('(')), plain.Stem(QStringLiteral("/a.jpg"), 0, {}));
}

void tst_OutputNaming::tokenNeeds_data()
{
    QTest::addColumn<bool>("picture");
    QTest::addColumn<bool>("texts");
    QTest::newRow("{name}{number}{folder}") << false << false;
    QTest::newRow("{date}") << true << false;
    QTest::newRow("{time:HH}") << true << false;
    QTest::newRow("{width}") << true << true;
    QTest::newRow("{date}{title}") << true << true;
}

void tst_OutputNaming::tokenNeeds()
{
    const OutputNaming naming = Middle(TemplateTokens, QString::fromLatin1(QTest::currentDataTag()));
    QTEST(naming.NeedsPicture(), "picture");
    QTEST(naming.NeedsPictureTexts(), "texts");
}

void tst_OutputNaming::numbers_data()
{
    QTest::addColumn<int>("prefix");
    QTest::addColumn<int>("middle");
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("number");
    const int number = Settings::TemplateNumber;
    const int nothing = Settings::TemplateNothing;
    const int tokens = TemplateTokens;
    const QString with = QStringLiteral("{number:3}");
    const QString without = QStringLiteral("{name}");
    QTest::newRow("no number") << nothing << nothing << with << qint64(4);
    QTest::newRow("a number") << nothing << number << with << qint64(203);
    QTest::newRow("two numbers") << number << number << with << qint64(103);
    QTest::newRow("a token") << nothing << tokens << with << qint64(203);
    QTest::newRow("tokens without a number") << nothing << tokens << without << qint64(4);
    QTest::newRow("tokens before a number") << tokens << number << without << qint64(203);
    QTest::newRow("a token before a number") << tokens << number << with << qint64(103);
}

void tst_OutputNaming::numbers()
{
    QFETCH(int, prefix);
    QFETCH(int, middle);
    QFETCH(QString, text);
    Settings settings(nullptr);
    SetNamePart(settings, Settings::PartPrefix, {Settings::NamingTemplate(prefix), text, 100});
    SetNamePart(settings, Settings::PartMiddle, {Settings::NamingTemplate(middle), text, 200});
    settings.SetNamingTemplate(Settings::PartSuffix, Settings::TemplateNothing);
    QTEST(OutputNaming(settings).NumberOf(3), "number");
}

void tst_OutputNaming::cleanNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("clean");
    const auto row = [](const char* title, const QString& name, const QString& clean) {
        QTest::newRow(title) << name << clean;
    };
    row("plain", QStringLiteral("Sea 1"), QStringLiteral("Sea 1"));
    row("umlauts and emoji", QStringLiteral(u"K\u00FCste \U0001F30A"), QStringLiteral(u"K\u00FCste \U0001F30A"));
    row("way out", QStringLiteral("../x"), QStringLiteral(".._x"));
    row("way out on Windows", QStringLiteral("..\\x"), QStringLiteral(".._x"));
    row("absolute", QStringLiteral("/etc/passwd"), QStringLiteral("_etc_passwd"));
    row("drive", QStringLiteral("C:x"), QStringLiteral("C_x"));
    row("this folder", QStringLiteral("."), QStringLiteral("_"));
    row("folder above", QStringLiteral(".."), QStringLiteral("__"));
    row("empty", QString(), QStringLiteral("_"));
    row("leading dash", QStringLiteral("-rf"), QStringLiteral("-rf"));
    row("leading dot", QStringLiteral(".hidden"), QStringLiteral(".hidden"));
    row("all that is refused", QStringLiteral("a<>:\"/\\|?*b"), QStringLiteral("a_________b"));
    row("line breaks", QStringLiteral(u"a\nb\rc\u2028d\u2029e\u0085f"), QStringLiteral("a_b_c_d_e_f"));
    row("control characters", QStringLiteral(u"a\u0001\u001b\u007fb"), QStringLiteral("a___b"));
    row("null character", QString(QStringLiteral("a") + QChar(0) + QStringLiteral("b")), QStringLiteral("a_b"));
    row("trailing dots and spaces", QStringLiteral("a. ."), QStringLiteral("a___"));
    row("only a space", QStringLiteral(" "), QStringLiteral("_"));
    row("first half of a pair", QString(QStringLiteral("a") + QChar(0xD83C)), QStringLiteral("a_"));
    row("second half of a pair", QString(QChar(0xDF0A) + QStringLiteral("a")), QStringLiteral("_a"));
    row("halves in the wrong order", QString(QChar(0xDF0A)) + QChar(0xD83C), QStringLiteral("__"));
    row("device", QStringLiteral("CON"), QStringLiteral("_"));
    row("device in lower case", QStringLiteral("lpt1"), QStringLiteral("_"));
    row("device with a dot", QStringLiteral("Nul.tar"), QStringLiteral("_.tar"));
    row("device with a space", QStringLiteral("aux .a"), QStringLiteral("_.a"));
    row("device with a superscript", QStringLiteral(u"COM\u00B9"), QStringLiteral("_"));
    row("console", QStringLiteral("conin$"), QStringLiteral("_"));
    row("no device", QStringLiteral("CONTENT"), QStringLiteral("CONTENT"));
    row("no device either", QStringLiteral("COM0"), QStringLiteral("COM0"));
}

void tst_OutputNaming::cleanNames()
{
    QFETCH(QString, name);
    QTEST(CleanName(name), "clean");
}

void tst_OutputNaming::lengthLimit_data()
{
    QTest::addColumn<QString>("stem");
    QTest::addColumn<QString>("addition");
    QTest::addColumn<QString>("name");
    const QString limit(251, QLatin1Char('a'));
    const QString ending = QStringLiteral(".jpg");
    QTest::newRow("at the limit") << limit << QString() << limit + ending;
    QTest::newRow("one more") << limit + QLatin1Char('a') << QString() << limit + ending;
    QTest::newRow("addition stays") << limit << QStringLiteral(" (10)")
                                    << QString(246, QLatin1Char('a')) + QStringLiteral(" (10)") + ending;
    // Two bytes each: 125 of them are 250 bytes, half a character more would fit.
    QTest::newRow("characters of two bytes")
        << QString(200, QChar(0xFC)) << QString() << QString(125, QChar(0xFC)) + ending;
    const QString wave = QStringLiteral(u"\U0001F30A");
    QTest::newRow("surrogate pairs") << wave.repeated(100) << QString() << wave.repeated(62) + ending;
    // A letter of one byte with an accent of two: the pair is one character for its reader.
    const QString accented = QStringLiteral(u"e\u0301");
    QTest::newRow("combining characters") << accented.repeated(100) << QString() << accented.repeated(83) + ending;
    QTest::newRow("a dot at the cut") << QString(250, QLatin1Char('a')) + QStringLiteral(".aaaaaa") << QString()
                                      << QString(250, QLatin1Char('a')) + QStringLiteral("_.jpg");
}

void tst_OutputNaming::lengthLimit()
{
    QFETCH(QString, stem);
    QFETCH(QString, addition);
    QTEST(FileName(stem, addition, QStringLiteral("jpg")), "name");
    QVERIFY(FileName(stem, addition, QStringLiteral("jpg")).toUtf8().size() <= longestName);
    QVERIFY(FolderName(stem + addition).toUtf8().size() <= longestName);
}

void tst_OutputNaming::keys_data()
{
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("other");
    QTest::addColumn<bool>("areSame");
    QTest::newRow("equal") << QStringLiteral("a.jpg") << QStringLiteral("a.jpg") << true;
    QTest::newRow("different") << QStringLiteral("a.jpg") << QStringLiteral("b.jpg") << false;
    QTest::newRow("letter case") << QStringLiteral("A.JPG") << QStringLiteral("a.jpg") << true;
    QTest::newRow("case beyond ASCII") << QStringLiteral(u"\u00C4.jpg") << QStringLiteral(u"\u00E4.jpg") << true;
    QTest::newRow("composition") << QStringLiteral(u"\u00E4") << QStringLiteral(u"a\u0308") << true;
    QTest::newRow("composition and case") << QStringLiteral(u"\u00C4") << QStringLiteral(u"a\u0308") << true;
    QTest::newRow("full folding") << QStringLiteral(u"STRASSE") << QStringLiteral(u"stra\u00DFe") << true;
    QTest::newRow("final sigma") << QStringLiteral(u"\u03A3") << QStringLiteral(u"\u03C2") << true;
    QTest::newRow("kelvin sign") << QStringLiteral(u"\u212A") << QStringLiteral("k") << true;
    QTest::newRow("letters beyond 16 bits") << QStringLiteral(u"\U00010400") << QStringLiteral(u"\U00010428") << true;
    QTest::newRow("ligature") << QStringLiteral(u"\uFB01") << QStringLiteral("FI") << true;
    QTest::newRow("capital sharp s") << QStringLiteral(u"\u1E9E") << QStringLiteral("ss") << true;
    QTest::newRow("letter without dot counts") << QStringLiteral(u"\u0131") << QStringLiteral("i") << false;
    QTest::newRow("accent counts") << QStringLiteral(u"\u00E9") << QStringLiteral("e") << false;
}

void tst_OutputNaming::keys()
{
    QFETCH(QString, one);
    QFETCH(QString, other);
    QTEST(NameKey(one) == NameKey(other), "areSame");
}

QTEST_APPLESS_MAIN(tst_OutputNaming)
#include "tst_outputnaming.moc"
