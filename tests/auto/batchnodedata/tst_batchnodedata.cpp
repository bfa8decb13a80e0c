// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchInputModel.h"

#include <QtTest>

#include <type_traits>
#include <utility>

class tst_BatchNodeData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsEmpty();
    void copiesAndMovesEveryField();
    void compares_data();
    void compares();
};

namespace {

using Record = BatchNodeData;

Record MakeRecord(int type, const QString& text)
{
    Record record;
    record.type = type;
    record.inputText = text;
    return record;
}

Record FullRecord()
{
    Record record;
    record.inputText = QStringLiteral("text");
    record.inputInfo = QStringLiteral("info");
    record.fileName = QStringLiteral("/in/a.jpg");
    record.toolTip = QStringLiteral("tip");
    record.lastModification = QStringLiteral("yesterday");
    record.type = File;
    record.enabled = true;
    record.fileNodesCount = 7;
    record.bookmark = ZVFileBookmark(QStringLiteral("/in/a.jpg"));
    return record;
}

QStringList Fields(const Record& record)
{
    return {record.inputText,
            record.inputInfo,
            record.fileName,
            record.toolTip,
            record.lastModification,
            QString::number(record.type),
            QString::number(int(record.enabled)),
            QString::number(record.fileNodesCount),
            record.bookmark.Path()};
}

} // namespace

void tst_BatchNodeData::beginsEmpty()
{
    const Record record;
    QCOMPARE(Fields(record), (QStringList{QString(), QString(), QString(), QString(), QString(), QStringLiteral("0"),
                                          QStringLiteral("0"), QStringLiteral("0"), QString()}));
    QVERIFY(record.bookmark.IsEmpty());
    QCOMPARE(int(Folder), 0);
    QCOMPARE(int(File), 1);
}

void tst_BatchNodeData::copiesAndMovesEveryField()
{
    const QStringList fields = Fields(FullRecord());

    Record source = FullRecord();
    const Record copied(source);
    QCOMPARE(Fields(copied), fields);
    QCOMPARE(Fields(source), fields);

    Record assigned;
    assigned = source;
    QCOMPARE(Fields(assigned), fields);

    const Record moved(std::move(source));
    QCOMPARE(Fields(moved), fields);

    Record moveAssigned;
    moveAssigned = std::move(assigned);
    QCOMPARE(Fields(moveAssigned), fields);

    QVERIFY(std::is_nothrow_move_constructible<Record>::value);
    QVERIFY(std::is_nothrow_move_assignable<Record>::value);
}

void tst_BatchNodeData::compares_data()
{
    QTest::addColumn<int>("leftType");
    QTest::addColumn<QString>("leftText");
    QTest::addColumn<int>("rightType");
    QTest::addColumn<QString>("rightText");
    QTest::addColumn<bool>("less");
    QTest::addColumn<bool>("equal");

    const auto row = [](const char* name, int leftType, const QString& left, int rightType, const QString& right,
                        bool less,
                        bool equal) { QTest::newRow(name) << leftType << left << rightType << right << less << equal; };
    const QString a = QStringLiteral("a");
    const QString b = QStringLiteral("b");
    row("files by text", File, a, File, b, true, false);
    row("files by text, the other way", File, b, File, a, false, false);
    row("equal files", File, a, File, a, false, true);
    row("folders by text", Folder, a, Folder, b, true, false);
    row("equal folders", Folder, a, Folder, a, false, true);
    row("upper case first", File, QStringLiteral("B"), File, a, true, false);
    row("a prefix first", File, a, File, QStringLiteral("aa"), true, false);
    row("null and empty text", File, QString(), File, QStringLiteral(""), false, true);
    row("folder before file, whatever the texts", Folder, b, File, a, true, false);
    row("file behind folder", File, a, Folder, b, false, false);
    row("folder and file of one text", Folder, a, File, a, true, false);
    row("file and folder of one text", File, a, Folder, a, false, false);
    row("two kinds of file", File, a, 2, b, false, false);
    row("two kinds of file, the other way", 2, b, File, a, false, false);
    row("folder before a negative type", Folder, a, -1, a, true, false);
    row("negative type behind folder", -1, a, Folder, a, false, false);
    // U+FF5E is one code unit, 0xFF5E. U+1F600 begins with 0xD83D: less in code units, greater in code points.
    row("by code units", File, QString::fromUtf8("\xF0\x9F\x98\x80"), File, QString(QChar(0xFF5E)), true, false);
    row("no normalisation", File, QStringLiteral("e\u0301"), File, QStringLiteral("\u00e9"), true, false);
}

void tst_BatchNodeData::compares()
{
    QFETCH(int, leftType);
    QFETCH(QString, leftText);
    QFETCH(int, rightType);
    QFETCH(QString, rightText);
    QFETCH(bool, less);
    QFETCH(bool, equal);

    // No other field is compared.
    Record left = FullRecord();
    left.type = leftType;
    left.inputText = leftText;
    const Record right = MakeRecord(rightType, rightText);

    QCOMPARE(left < right, less);
    QCOMPARE(left == right, equal);
    QCOMPARE(left != right, !equal);
    QCOMPARE(left <= right, less || equal);
    QCOMPARE(left > right, !less && !equal);
    QCOMPARE(left >= right, !less);
}

QTEST_GUILESS_MAIN(tst_BatchNodeData)
#include "tst_batchnodedata.moc"
