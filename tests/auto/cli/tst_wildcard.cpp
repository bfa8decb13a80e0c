// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "hosts/common/RequestError.h"
#include "hosts/common/Wildcard.h"

#include <QtTest>

using namespace BatchHost;

class tst_Wildcard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matches_data();
    void matches();
    void patterns_data();
    void patterns();
    void alternatives_data();
    void alternatives();
    void whatCannotBeUsed_data();
    void whatCannotBeUsed();
    void manyStarsEnd();
};

void tst_Wildcard::matches_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isMatch");
    const auto row = [](const char* pattern, const char* text, bool isMatch) {
        QTest::addRow("%s, %s", pattern, text) << QString::fromUtf8(pattern) << QString::fromUtf8(text) << isMatch;
    };
    row("*.jpg", "a.jpg", true);
    row("*.jpg", "A.JPG", true);
    row("*.jpg", "a.jpg.txt", false);
    row("*.jpg", "a\n.jpg", true);
    row("*", "", true);
    row("*", "a/b", false);
    row("?", "a", true);
    row("?", "", false);
    row("?", "/", false);
    row("?", "é", true);
    row("a.b", "aXb", false);
    row("a+(b)^$|\\", "a+(b)^$|\\", true);
    row("[a-c]", "b", true);
    row("[a-c]", "d", false);
    row("[!a-c]", "d", true);
    row("[^a-c]", "b", false);
    row("[!a]", "/", false);
    row("[]]", "]", true);
    row("[!]]", "]", false);
    row("[[]", "[", true);
    row("[\\]", "\\", true);
    row("[*]", "x", false);
    row("[abc", "[abc", true);
    row("{a,b}", "b", true);
    row("{a,b}", "{a,b}", false);
    row("{a}", "{a}", true);
    row("{a,b", "{a,b", true);
    row("a}", "a}", true);
    row("{a,{b,c}d}", "cd", true);
    row("{a,{b,c}d}", "c", false);
    row("{,x}y", "y", true);
    row("{a/b,c}/*", "a/b/d", true);
    row("**", "a/b/c", true);
    row("**/c", "c", true);
    row("**/c", "a/b/c", true);
    row("**/c", "ac", false);
    row("a/**/c", "a/c", true);
    row("a/**/c", "a/b/b/c", true);
    row("a/**", "a/b/c", true);
    row("a/**", "b/a/c", false);
    row("a**c", "abc", true);
    row("a**c", "a/c", false);
    row("a/**/**/c", "a/b/c", true);
    row("***", "a/b", true);
}

void tst_Wildcard::matches()
{
    QFETCH(QString, pattern);
    QFETCH(QString, text);
    QFETCH(bool, isMatch);
    QCOMPARE(Wildcard(pattern).Matches(text), isMatch);
}

void tst_Wildcard::patterns_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isPattern");
    const auto row = [](const char* text, bool isPattern) {
        QTest::newRow(text) << QString::fromLatin1(text) << isPattern;
    };
    row("photos/a.jpg", false);
    row("photos/*.jpg", true);
    row("a?", true);
    row("[a]", true);
    row("[a", false);
    row("{a,b}", true);
    row("{a}", false);
    row("{a,b", false);
    row("a+(b)", false);
}

void tst_Wildcard::patterns()
{
    QFETCH(QString, text);
    QFETCH(bool, isPattern);
    QCOMPARE(Wildcard::IsPattern(text), isPattern);
}

void tst_Wildcard::alternatives_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("wanted");
    const auto row = [](const char* pattern, const char* wanted) {
        QTest::newRow(pattern) << QString::fromLatin1(pattern) << QString::fromLatin1(wanted);
    };
    row("a", "a");
    row("a{b,c}d", "abd acd");
    row("{a,b}{c,d}", "ac ad bc bd");
    row("{a,{b,c}d}", "a bd cd");
    row("{a}{b,c}", "{a}b {a}c");
    row("{a{b,c}", "{ab {ac");
    row("{a/b,c}/*.jpg", "a/b/*.jpg c/*.jpg");
}

void tst_Wildcard::alternatives()
{
    QFETCH(QString, pattern);
    QFETCH(QString, wanted);
    QCOMPARE(Wildcard::Alternatives(pattern).join(QLatin1Char(' ')), wanted);
}

void tst_Wildcard::whatCannotBeUsed_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("wanted");
    QTest::newRow("a set that runs backwards") << QStringLiteral("[z-a]") << QStringLiteral("\"[z-a]\" is invalid");
    QTest::newRow("too long") << QString(5000, QLatin1Char('a')) << QStringLiteral("longer than 4096");
    QTest::newRow("nested too deeply") << QStringLiteral("{a,").repeated(1000) + QString(1000, QLatin1Char('}'))
                                       << QStringLiteral("nested too deeply");
    QTest::newRow("too many alternatives") << QStringLiteral("{a,b}").repeated(11) << QStringLiteral("more than 1000");
}

void tst_Wildcard::whatCannotBeUsed()
{
    QFETCH(QString, pattern);
    QFETCH(QString, wanted);
    QString text;
    try {
        Wildcard{pattern};
        Wildcard::Alternatives(pattern);
    } catch (const RequestError& error) {
        text = error.text;
    }
    QVERIFY2(text.contains(wanted), qPrintable(text));
}

/// A pattern that looks for many things in a long name is answered.
void tst_Wildcard::manyStarsEnd()
{
    const Wildcard wildcard(QStringLiteral("*a").repeated(40) + QStringLiteral("b"));
    QVERIFY(!wildcard.Matches(QString(250, QLatin1Char('a'))));
}

QTEST_GUILESS_MAIN(tst_Wildcard)
#include "tst_wildcard.moc"
