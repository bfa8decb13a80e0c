// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "hosts/cli/options/TextLayout.h"

#include <QtTest>

using namespace BatchCli;

/// Where lines of help texts end.
class tst_TextLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void charactersTakeColumns_data();
    void charactersTakeColumns();
    void linesAreWrapped_data();
    void linesAreWrapped();
};

void tst_TextLayout::charactersTakeColumns_data()
{
    QTest::addColumn<uint>("character");
    QTest::addColumn<int>("columns");

    QTest::newRow("a letter") << uint('a') << 1;
    QTest::newRow("an umlaut") << 0xFCU << 1;
    QTest::newRow("an accent that is put over a letter") << 0x301U << 0;
    QTest::newRow("kana") << 0x30ABU << 2;
    QTest::newRow("a full-width colon") << 0xFF1AU << 2;
    QTest::newRow("a pictograph") << 0x1F600U << 2;
}

void tst_TextLayout::charactersTakeColumns()
{
    QFETCH(uint, character);
    QFETCH(int, columns);

    QCOMPARE(ColumnsOf(character), columns);
}

void tst_TextLayout::linesAreWrapped_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("wrapped");

    const auto row = [](const char* name, const char* text, const char* wrapped) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(wrapped);
    };
    row("empty", "", "");
    row("fits", "one two", "one two");
    row("ends at blanks", "one two three", "one two\n  three");
    row("a word that fits nowhere", "one incomprehensible two", "one\n  incomprehensible\n  two");
    row("blanks stay", "one  two", "one  two");
    row("a blank that does not break", "oui\u00A0: non non", "oui\u00A0: non\n  non");
    row("between wide characters", "画像を処理", "画像を処\n  理");
    row("a full stop stays behind its text", "画像を書。画", "画像を\n  書。画");
    row("a bracket stays before its text", "画像を「名」", "画像を\n  「名」");
    row("words of options stay whole", "画像 --size", "画像\n  --size");
}

void tst_TextLayout::linesAreWrapped()
{
    QFETCH(QString, text);
    QFETCH(QString, wrapped);

    constexpr int indent = 2;
    constexpr int columns = 11;
    QCOMPARE(Wrapped(text, indent, columns), wrapped);
}

QTEST_APPLESS_MAIN(tst_TextLayout)
#include "tst_textlayout.moc"
