// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "job/tokens/TokenText.h"

#include <QtTest>

using namespace BatchJob;

/// The grammar of texts with tokens, what each token becomes, and the page that lists them.
class tst_Tokens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data();
    void texts();
    void nothingIsKnown_data();
    void nothingIsKnown();
    void refusals_data();
    void refusals();
    void needs_data();
    void needs();
    void uses();
    void files_data();
    void files();
    void cleanTexts_data();
    void cleanTexts();
    void pageListsTheTable();
};

namespace {

TokenValues Values()
{
    TokenValues values = ValuesOfFile(QStringLiteral("/photos/2024 Alps/IMG.0412.jpg"), 7);
    values.captured = QDateTime(QDate(2024, 2, 9), QTime(4, 5, 6));
    values.size = QSize(6000, 4000);
    values.texts = {QStringLiteral("EOS 5D"), QStringLiteral("50mm"), QStringLiteral("50"),      QStringLiteral("2.8"),
                    QStringLiteral("1/250"),  QStringLiteral("400"),  QStringLiteral("Sunrise"), QStringLiteral("Ana")};
    return values;
}

} // namespace

void tst_Tokens::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("filled");
    const auto row = [](const char* text, const char* filled) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(filled);
    };
    QTest::newRow("empty") << QString() << QString();
    row("plain", "plain");
    row("{name}", "IMG.0412");
    row("{folder}/{name}", "2024 Alps/IMG.0412");
    row("{number}", "7");
    row("{number:4}", "0007");
    row("{number:64}", "0000000000000000000000000000000000000000000000000000000000000007");
    row("{date}", "20240209");
    row("{date:YYYY-MM-DD}", "2024-02-09");
    row("{date:DD.MM.YY}", "09.02.24");
    row("{date:YYYY}", "2024");
    row("{date:YYYY年MM月DD日}", "2024年02月09日");
    row("{date:YYYYMM 1}", "202402 1");
    row("{date:YYYY:MM:DD}", "2024:02:09");
    row("{time}", "040506");
    row("{time:HH:MM:SS}", "04:05:06");
    row("{time:HH.MM}", "04.05");
    row("{camera} {lens}", "EOS 5D 50mm");
    row("{focal}mm f/{aperture} {shutter}s ISO {iso}", "50mm f/2.8 1/250s ISO 400");
    row("{title} by {creator}", "Sunrise by Ana");
    row("{width}x{height}", "6000x4000");
    row("{{name}}", "{name}");
    row("{{{name}}}", "{IMG.0412}");
    row("{{", "{");
    row("}}", "}");
    row("{{{{ }}}}", "{{ }}");
    row("a{{b", "a{b");
    row("© {creator} 写真 \xF0\x9F\x93\xB7", "© Ana 写真 \xF0\x9F\x93\xB7");
    row("line\n{name}", "line\nIMG.0412");
    row("%1 {name} %2", "%1 IMG.0412 %2");
}

void tst_Tokens::texts()
{
    QFETCH(QString, text);
    const TokenText tokens(text);
    QCOMPARE(tokens.Error(), QString());
    QTEST(tokens.Filled(Values()), "filled");
}

void tst_Tokens::nothingIsKnown_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("filled");
    const auto row = [](const char* text, const char* filled) {
        QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(filled);
    };
    row("{date}{date:YYYY}{time}{time:HH}", "");
    row("{camera}{lens}{focal}{aperture}{shutter}{iso}{title}{creator}", "");
    row("{width}{height}", "");
    row("{name}{folder}", "");
    row("{number}", "1");
    row("[{title}]", "[]");
}

void tst_Tokens::nothingIsKnown()
{
    QFETCH(QString, text);
    QTEST(TokenText(text).Filled({}), "filled");
}

void tst_Tokens::refusals_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("words"); ///< that the error has
    const auto row = [](const char* text, const QStringList& words) {
        QTest::newRow(text) << QString::fromUtf8(text) << words;
    };
    const QString digits = QStringLiteral("a whole number from 1 to 64");
    const QString date = QStringLiteral("YYYY, YY, MM and DD");
    const QString time = QStringLiteral("HH, MM and SS");
    row("{}", {QStringLiteral("\"{}\" at character 1"), QStringLiteral("{name}, {number}, {date}")});
    row("{x}", {QStringLiteral("\"{x}\" at character 1"), QStringLiteral("{folder}")});
    row("ab {Name}", {QStringLiteral("\"{Name}\" at character 4"), QStringLiteral("\"{name}\"")});
    row("{ name }", {QStringLiteral("\"{ name }\" at character 1"), QStringLiteral("\"{name}\"")});
    row("{name }", {QStringLiteral("\"{name}\"")});
    row("{apperture}", {QStringLiteral("\"{aperture}\"")});
    row("{name:}", {QStringLiteral("\"{name:}\""), QStringLiteral("nothing after a colon")});
    row("{camera:2}", {QStringLiteral("\"{camera:2}\""), QStringLiteral("nothing after a colon")});
    row("{number:}", {digits});
    row("{number:0}", {digits});
    row("{number:65}", {digits});
    row("{number:-1}", {digits});
    row("{number:+4}", {digits});
    row("{number: 4}", {digits});
    row("{number:4.0}", {digits});
    row("{number:four}", {digits});
    row("{number:٤}", {digits});
    row("{number:100000000000}", {digits});
    row("{date:}", {date});
    row("{date:-}", {date});
    row("{date:yyyy-mm-dd}", {QStringLiteral("\"{date:yyyy-mm-dd}\" at character 1"), date});
    row("{date:YYYYY}", {date});
    row("{date:YYY}", {date});
    row("{date:M}", {date});
    row("{date:DDD}", {date});
    row("{date:HH}", {date});
    row("{date:YYYY-MM-DDTHH}", {date});
    row("{time:}", {time});
    row("{time:hh}", {time});
    row("{time:HHMMSSs}", {time});
    row("{time:YYYY}", {time});
    row("{", {QStringLiteral("\"{\" at character 1"), QStringLiteral("{{")});
    row("name {name", {QStringLiteral("\"{\" at character 6"), QStringLiteral("{{")});
    row("{name{number}", {QStringLiteral("\"{\" at character 1"), QStringLiteral("{{")});
    row("{{{", {QStringLiteral("\"{\" at character 3")});
    row("}", {QStringLiteral("\"}\" at character 1"), QStringLiteral("}}")});
    row("{name}}", {QStringLiteral("\"}\" at character 7"), QStringLiteral("}}")});
    row("\xF0\x9F\x93\xB7é}", {QStringLiteral("\"}\" at character 3")});
    row("{number:4}{x}{y}", {QStringLiteral("\"{x}\" at character 11")});
}

void tst_Tokens::refusals()
{
    QFETCH(QString, text);
    QFETCH(QStringList, words);
    const TokenText tokens(text);
    QVERIFY(!tokens.IsValid());
    for (const QString& word : qAsConst(words)) {
        QVERIFY2(tokens.Error().contains(word), qPrintable(tokens.Error()));
    }
}

void tst_Tokens::needs_data()
{
    QTest::addColumn<bool>("isOfPicture");
    for (const TokenRecord& record : tokenTable) {
        const QStringList ofFile{QStringLiteral("name"), QStringLiteral("number"), QStringLiteral("folder")};
        QTest::newRow(record.word) << !ofFile.contains(QLatin1String(record.word));
    }
}

void tst_Tokens::needs()
{
    const TokenText tokens(QStringLiteral("a{%1}").arg(QLatin1String(QTest::currentDataTag())));
    QVERIFY(tokens.IsValid());
    QTEST(tokens.NeedsPicture(), "isOfPicture");
}

void tst_Tokens::uses()
{
    const TokenText tokens(QStringLiteral("{{camera}} {number:3} {date}"));
    QVERIFY(tokens.Uses(Token::Number));
    QVERIFY(tokens.Uses(Token::Date));
    QVERIFY(!tokens.Uses(Token::Camera));
    QVERIFY(!TokenText(QStringLiteral("{{camera}}")).NeedsPicture());
}

void tst_Tokens::files_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("folder");
    const auto row = [](const char* path, const char* name, const char* folder) {
        QTest::newRow(path) << QString::fromLatin1(name) << QString::fromLatin1(folder);
    };
    row("/a/b/c.jpg", "c", "b");
    row("/a.b/c", "c", "a.b");
    row("/c.tar.gz", "c.tar", "");
    row("C:/photos/c.jpg", "c", "photos");
    row("/a/.jpg", "", "a");
}

void tst_Tokens::files()
{
    const TokenValues values = ValuesOfFile(QString::fromLatin1(QTest::currentDataTag()), 12);
    QTEST(values.name, "name");
    QTEST(values.folder, "folder");
    QCOMPARE(values.number, 12);
}

void tst_Tokens::cleanTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("clean");
    const QString photo = QString::fromUtf8("\xF0\x9F\x93\xB7");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("plain") << QStringLiteral("EOS 5D") << QStringLiteral("EOS 5D");
    QTest::newRow("blanks") << QStringLiteral("  a \t b  ") << QStringLiteral("a b");
    QTest::newRow("lines") << QStringLiteral("a\r\nb\u2028c") << QStringLiteral("a b c");
    QTest::newRow("zero") << QString(QChar(0)) + QLatin1Char('a') << QStringLiteral("a");
    QTest::newRow("controls of direction") << QStringLiteral("a\u202Egpj.exe") << QStringLiteral("a gpj.exe");
    QTest::newRow("separators stay") << QStringLiteral("../../etc") << QStringLiteral("../../etc");
    QTest::newRow("long") << QString(100'000, QLatin1Char('x')) << QString(255, QLatin1Char('x'));
    QTest::newRow("cut between surrogates") << QString(254, QLatin1Char('x')) + photo << QString(254, QLatin1Char('x'));
}

void tst_Tokens::cleanTexts()
{
    QFETCH(QString, text);
    const PictureTexts texts = CleanTexts({text, text, text, text, text, text, text, text});
    for (const QString& one : {texts.camera, texts.lens, texts.focal, texts.aperture, texts.shutter, texts.iso,
                               texts.title, texts.creator}) {
        QTEST(one, "clean");
    }
}

void tst_Tokens::pageListsTheTable()
{
    QFile page(QStringLiteral(TOKEN_PAGE));
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(page.readAll());
    QStringList listed;
    QRegularExpressionMatchIterator rows =
        QRegularExpression(QStringLiteral("^\\| `\\{([a-z]+)\\}`"), QRegularExpression::MultilineOption)
            .globalMatch(text);
    while (rows.hasNext()) {
        listed.append(rows.next().captured(1));
    }
    QStringList known;
    for (const TokenRecord& record : tokenTable) {
        known.append(QString::fromLatin1(record.word));
        QVERIFY2(text.contains(QString::fromLatin1(record.description)), record.description);
    }
    QCOMPARE(listed, known);
}

QTEST_APPLESS_MAIN(tst_Tokens)
#include "tst_tokens.moc"
