#include "DeathCase.h"
#include "InputNodes.h"
#include "MetaMethods.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>
#include <memory>
#include <type_traits>

class tst_ZTBatchInputModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordsBeginEmpty();
    void recordsCopyAndMoveEveryField();
    void recordsCompare_data();
    void recordsCompare();

    void insertChildKeepsTheOrder_data();
    void insertChildKeepsTheOrder();
    void insertChildGoesBehindEqualChildren();
    void insertChildRefusesNull();
    void insertChildLeavesTheOldParent();
    void insertChildFollowsItsStepsInUnsortedLists_data();
    void insertChildFollowsItsStepsInUnsortedLists();
    void destroyedNodeLeavesItsParent();
    void nodesOfDeepTreesAreDestroyed();

    void failedAssertions_data();
    void failedAssertions();
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

QStringList ChildTexts(const InputNode& node)
{
    QStringList texts;
    for (const InputNode* const child : node.children) {
        texts.append(child->data.inputText);
    }
    return texts;
}

} // namespace

void tst_ZTBatchInputModel::recordsBeginEmpty()
{
    const Record record;
    QCOMPARE(Fields(record), (QStringList{QString(), QString(), QString(), QString(), QString(), QStringLiteral("0"),
                                          QStringLiteral("0"), QStringLiteral("0"), QString()}));
    QVERIFY(record.bookmark.IsEmpty());
    QCOMPARE(int(Folder), 0);
    QCOMPARE(int(File), 1);
}

void tst_ZTBatchInputModel::recordsCopyAndMoveEveryField()
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

void tst_ZTBatchInputModel::recordsCompare_data()
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
    // U+FF5E is one code unit 0xFF5E; U+1F600 begins with 0xD83D: less as code units, greater as code points.
    row("by code units", File, QString::fromUtf8("\xF0\x9F\x98\x80"), File, QString(QChar(0xFF5E)), true, false);
    row("no normalisation", File, QStringLiteral("e\u0301"), File, QStringLiteral("\u00e9"), true, false);
}

void tst_ZTBatchInputModel::recordsCompare()
{
    QFETCH(int, leftType);
    QFETCH(QString, leftText);
    QFETCH(int, rightType);
    QFETCH(QString, rightText);
    QFETCH(bool, less);
    QFETCH(bool, equal);

    // No other field takes part.
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

void tst_ZTBatchInputModel::insertChildKeepsTheOrder_data()
{
    QTest::addColumn<QStringList>("texts");

    // Texts that begin with "/" are folders.
    QStringList texts{QStringLiteral("/z"), QStringLiteral("B.jpg"), QStringLiteral("a"), QStringLiteral("b.jpg")};
    std::sort(texts.begin(), texts.end());
    do {
        QTest::newRow(qPrintable(texts.join(QLatin1Char(' ')))) << texts;
    } while (std::next_permutation(texts.begin(), texts.end()));
}

void tst_ZTBatchInputModel::insertChildKeepsTheOrder()
{
    QFETCH(QStringList, texts);

    InputNode parent;
    for (const QString& text : qAsConst(texts)) {
        InputNode* const child = text.startsWith(QLatin1Char('/')) ? NewFolder(text.mid(1)) : NewFile(text);
        const int row = parent.insertChild(child);
        QVERIFY(row >= 0 && row < parent.children.size());
        QCOMPARE(parent.children.at(row), child);
        QCOMPARE(child->parent, &parent);
    }
    QCOMPARE(ChildTexts(parent),
             (QStringList{QStringLiteral("z"), QStringLiteral("B.jpg"), QStringLiteral("a"), QStringLiteral("b.jpg")}));
}

void tst_ZTBatchInputModel::insertChildGoesBehindEqualChildren()
{
    // Whatever the length of the run of equal children, and whatever stands around it.
    for (int before = 0; before < 5; ++before) {
        for (int behind = 0; behind < 5; ++behind) {
            InputNode parent;
            for (int i = 0; i < before; ++i) {
                parent.insertChild(NewFile(QStringLiteral("a")));
            }
            for (int i = 0; i < behind; ++i) {
                parent.insertChild(NewFile(QStringLiteral("c")));
            }
            for (int equal = 0; equal < 6; ++equal) {
                QCOMPARE(parent.insertChild(NewFile(QStringLiteral("b"))), before + equal);
            }
        }
    }
}

void tst_ZTBatchInputModel::insertChildRefusesNull()
{
    InputNode parent;
    QCOMPARE(parent.insertChild(nullptr), -1);
    QVERIFY(parent.children.isEmpty());
}

void tst_ZTBatchInputModel::insertChildLeavesTheOldParent()
{
    InputNode* const file = NewFile(QStringLiteral("b"));
    const std::unique_ptr<InputNode> first(
        NewFolder(QStringLiteral("first"), {NewFile(QStringLiteral("a")), file, NewFile(QStringLiteral("c"))}));
    InputNode second;

    QCOMPARE(second.insertChild(file), 0);
    QCOMPARE(file->parent, &second);
    QCOMPARE(ChildTexts(*first), (QStringList{QStringLiteral("a"), QStringLiteral("c")}));
    QCOMPARE(ChildTexts(second), QStringList{QStringLiteral("b")});
    QCOMPARE(first->data.fileNodesCount, 3);
    QCOMPARE(second.data.fileNodesCount, 0);

    // Into the same parent again: taken out first, so that it does not find itself.
    first->children.first()->data.inputText = QStringLiteral("z");
    QCOMPARE(first->insertChild(first->children.first()), 1);
    QCOMPARE(ChildTexts(*first), (QStringList{QStringLiteral("c"), QStringLiteral("z")}));
}

void tst_ZTBatchInputModel::insertChildFollowsItsStepsInUnsortedLists_data()
{
    QTest::addColumn<QStringList>("children");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("row");

    const auto row = [](const char* name, const char* children, const char* text, int expected) {
        QTest::newRow(name) << QString::fromLatin1(children).split(QLatin1Char(' ')) << QString::fromLatin1(text)
                            << expected;
    };
    // The row follows from the middles that the search visits: of n children first (n-1)/2.
    row("one child, greater", "b", "a", 0);
    row("one child, less", "b", "c", 1);
    row("one child, equal", "b", "b", 1);
    row("the middle is equal, the run is broken", "x b b a b", "b", 3);
    row("an equal child is passed by", "c b d", "c", 2);
    row("a greater start does not stop the search", "z b c d", "e", 4);
    row("greater on the left of the middle", "z b c d", "c", 3);
    row("a lesser end is not seen", "m n o a", "l", 0);
    row("the last child alone decides", "c d e f a", "g", 5);
    row("equal only at the end", "d c b a", "a", 0);
    row("equal at both ends", "a z z a", "a", 1);
}

void tst_ZTBatchInputModel::insertChildFollowsItsStepsInUnsortedLists()
{
    QFETCH(QStringList, children);
    QFETCH(QString, text);
    QFETCH(int, row);

    InputNode parent;
    for (const QString& childText : qAsConst(children)) {
        InputNode* const child = NewFile(childText);
        child->parent = &parent;
        parent.children.append(child);
    }
    QStringList expected = children;
    expected.insert(row, text);

    QCOMPARE(parent.insertChild(NewFile(text)), row);
    QCOMPARE(ChildTexts(parent), expected);
}

void tst_ZTBatchInputModel::destroyedNodeLeavesItsParent()
{
    const std::unique_ptr<InputNode> parent(
        NewFolder(QStringLiteral("parent"), {NewFolder(QStringLiteral("folder"), {NewFile(QStringLiteral("inside"))}),
                                             NewFile(QStringLiteral("a")), NewFile(QStringLiteral("b"))}));
    delete parent->children.at(1);
    QCOMPARE(ChildTexts(*parent), (QStringList{QStringLiteral("folder"), QStringLiteral("b")}));
    delete parent->children.at(0);
    QCOMPARE(ChildTexts(*parent), QStringList{QStringLiteral("b")});
    // Destroying is no removal through the model: nobody counts anew.
    QCOMPARE(parent->data.fileNodesCount, 3);
}

void tst_ZTBatchInputModel::nodesOfDeepTreesAreDestroyed()
{
    auto* const top = new InputNode;
    InputNode* bottom = top;
    for (int level = 0; level < 1000000; ++level) {
        InputNode* const folder = NewFolder(QStringLiteral("folder"));
        bottom->insertChild(folder);
        bottom = folder;
    }
    // A recursion would need far more than the stack of any thread.
    delete top;
}

void tst_ZTBatchInputModel::failedAssertions_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<int>("line");

    const auto row = [](const char* name, const char* source, int line) {
        QTest::newRow(name) << QString::fromLatin1(source) << line;
    };
    row("input-data-without-node", "src\\ZTBatchInputModel", 97);
    row("input-insert-rows-without-node", "src\\ZTBatchInputModel", 129);
    row("input-remove-rows-without-node", "src\\ZTBatchInputModel", 166);
    row("input-folder-count-below-zero", "src\\ZTBatchInputModel", 192);
    row("input-root-count-below-zero", "src\\ZTBatchInputModel", 192);
    row("input-count-below-zero-on-the-way", "src\\ZTBatchInputModel", 192);
    row("input-index-without-node", "src\\ZTBatchInputModel", 258);
    row("input-parent-without-node", "src\\ZTBatchInputModel", 280);
    row("input-parent-of-loose-node", "src\\ZTBatchInputModel", 282);
    row("input-row-count-without-node", "src\\ZTBatchInputModel", 304);
    row("input-insert-branch-without-node", "src\\ZTBatchInputModel", 377);
    row("input-null-behind-equal-child", "include\\ZTBatchInputModel", 188);
    row("input-null-in-search", "include\\ZTBatchInputModel", 193);
    row("input-null-at-end-of-search", "include\\ZTBatchInputModel", 193);
}

void tst_ZTBatchInputModel::failedAssertions()
{
    QFETCH(QString, source);
    QFETCH(int, line);

    const DeathReport report = RunDeathCase(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(report.lastLine, QStringLiteral("[%1:%2] Assert failed").arg(source).arg(line));
    QVERIFY2(report.aborted, qPrintable(report.output));
}

QTEST_GUILESS_MAIN(tst_ZTBatchInputModel)
#include "tst_ztbatchinputmodel.moc"
