// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DeathCase.h"
#include "InputNodes.h"

#include <QtTest>

#include <algorithm>
#include <memory>
#include <type_traits>

class tst_TreeNode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsAlone();
    void addressIsThatOfTheData();
    void livesWhereItIsPut();
    void isSmall();
    void insertChildKeepsTheOrder_data();
    void insertChildKeepsTheOrder();
    void insertChildGoesBehindEqualChildren();
    void insertChildRefusesNull();
    void insertChildLeavesTheOldParent();
    void insertChildFollowsItsStepsInUnsortedLists_data();
    void insertChildFollowsItsStepsInUnsortedLists();
    void destroyedNodeLeavesItsParent();
    void destroyedNodeIsFoundAfterItsSiblingsMoved();
    void destroyedNodeThatItsParentDoesNotKnow();
    void nodesOfDeepTreesAreDestroyed();
    void failedAssertions_data();
    void failedAssertions();
};

namespace {

QStringList ChildTexts(const InputNode& node)
{
    QStringList texts;
    for (const InputNode* const child : node.children) {
        texts.append(child->data.inputText);
    }
    return texts;
}

} // namespace

void tst_TreeNode::beginsAlone()
{
    const InputNode node;
    QVERIFY(node.parent == nullptr);
    QVERIFY(node.children.isEmpty());
    QVERIFY(!std::is_copy_constructible<InputNode>::value);
    QVERIFY(!std::is_copy_assignable<InputNode>::value);
    QVERIFY(!std::is_move_constructible<InputNode>::value);
    const bool childrenAreAList = std::is_same<decltype(InputNode::children), QList<InputNode*>>::value;
    QVERIFY(childrenAreAList);
}

void tst_TreeNode::addressIsThatOfTheData()
{
    const std::unique_ptr<InputNode> node(NewFile(QStringLiteral("a")));
    QCOMPARE(static_cast<const void*>(&node->data), static_cast<const void*>(node.get()));
}

void tst_TreeNode::livesWhereItIsPut()
{
    alignas(InputNode) char place[sizeof(InputNode)];
    auto* node = new (place) InputNode;
    QCOMPARE(static_cast<void*>(node), static_cast<void*>(place));
    node->~InputNode();
}

void tst_TreeNode::isSmall()
{
    // Jobs of a million nodes are real. Each node also needs a place in its parent's list and the allocator's overhead.
    QVERIFY2(sizeof(InputNode) <= 128, qPrintable(QString::number(sizeof(InputNode))));
}

void tst_TreeNode::insertChildKeepsTheOrder_data()
{
    QTest::addColumn<QStringList>("texts");

    // A text that begins with "/" stands for a folder.
    QStringList texts{QStringLiteral("/z"), QStringLiteral("B.jpg"), QStringLiteral("a"), QStringLiteral("b.jpg")};
    std::sort(texts.begin(), texts.end());
    do {
        QTest::newRow(qPrintable(texts.join(QLatin1Char(' ')))) << texts;
    } while (std::next_permutation(texts.begin(), texts.end()));
}

void tst_TreeNode::insertChildKeepsTheOrder()
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

void tst_TreeNode::insertChildGoesBehindEqualChildren()
{
    // With any number of equal children, and any number of others before and behind them.
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

void tst_TreeNode::insertChildRefusesNull()
{
    InputNode parent;
    QCOMPARE(parent.insertChild(nullptr), -1);
    QVERIFY(parent.children.isEmpty());
}

void tst_TreeNode::insertChildLeavesTheOldParent()
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

    // Inserted into the same parent again, a child is removed first, so that the search does not find it.
    first->children.first()->data.inputText = QStringLiteral("z");
    QCOMPARE(first->insertChild(first->children.first()), 1);
    QCOMPARE(ChildTexts(*first), (QStringList{QStringLiteral("c"), QStringLiteral("z")}));
}

void tst_TreeNode::insertChildFollowsItsStepsInUnsortedLists_data()
{
    QTest::addColumn<QStringList>("children");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("row");

    const auto row = [](const char* name, const char* children, const char* text, int expected) {
        QTest::newRow(name) << QString::fromLatin1(children).split(QLatin1Char(' ')) << QString::fromLatin1(text)
                            << expected;
    };
    // The row depends on the children that the binary search visits: of n children first number (n-1)/2.
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

void tst_TreeNode::insertChildFollowsItsStepsInUnsortedLists()
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

void tst_TreeNode::destroyedNodeLeavesItsParent()
{
    const std::unique_ptr<InputNode> parent(
        NewFolder(QStringLiteral("parent"), {NewFolder(QStringLiteral("folder"), {NewFile(QStringLiteral("inside"))}),
                                             NewFile(QStringLiteral("a")), NewFile(QStringLiteral("b"))}));
    delete parent->children.at(1);
    QCOMPARE(ChildTexts(*parent), (QStringList{QStringLiteral("folder"), QStringLiteral("b")}));
    delete parent->children.at(0);
    QCOMPARE(ChildTexts(*parent), QStringList{QStringLiteral("b")});
    // Destroying a node is not removing it through the model: the counts stay.
    QCOMPARE(parent->data.fileNodesCount, 3);
}

void tst_TreeNode::destroyedNodeIsFoundAfterItsSiblingsMoved()
{
    const std::unique_ptr<InputNode> parent(new InputNode);
    QStringList texts;
    for (int i = 0; i < 1000; ++i) {
        texts.append(QString::number(10000 + i));
        parent->insertChild(NewFile(texts.last()));
    }
    // Half of them leave without the tree's knowledge, so that all others are far from their remembered rows.
    QList<InputNode*> removed = parent->children.mid(0, 500);
    parent->children.erase(parent->children.begin(), parent->children.begin() + 500);
    for (InputNode* const node : qAsConst(removed)) {
        node->parent = nullptr;
    }
    qDeleteAll(removed);
    texts = texts.mid(500);
    QCOMPARE(ChildTexts(*parent), texts);

    for (const int row : {499, 250, 0, 100, 496}) {
        if (row < parent->children.size()) {
            delete parent->children.at(row);
            texts.removeAt(row);
            QCOMPARE(ChildTexts(*parent), texts);
        }
    }
}

void tst_TreeNode::destroyedNodeThatItsParentDoesNotKnow()
{
    const std::unique_ptr<InputNode> parent(NewFolder(QStringLiteral("parent"), {NewFile(QStringLiteral("a"))}));
    auto* const stranger = NewFile(QStringLiteral("a"));
    stranger->parent = parent.get();
    delete stranger;
    QCOMPARE(ChildTexts(*parent), QStringList{QStringLiteral("a")});
}

void tst_TreeNode::nodesOfDeepTreesAreDestroyed()
{
    auto* const top = new InputNode;
    InputNode* bottom = top;
    for (int level = 0; level < 1000000; ++level) {
        InputNode* const folder = NewFolder(QStringLiteral("folder"));
        bottom->insertChild(folder);
        bottom = folder;
    }
    // A recursive destructor would need far more stack than any thread has.
    delete top;
}

void tst_TreeNode::failedAssertions_data()
{
    QTest::addColumn<int>("line");

    QTest::newRow("input-null-behind-equal-child") << 188;
    QTest::newRow("input-null-in-search") << 193;
    QTest::newRow("input-null-at-end-of-search") << 193;
}

void tst_TreeNode::failedAssertions()
{
    QFETCH(int, line);

    const DeathReport report = RunDeathCase(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(report.lastLine, QStringLiteral("[include\\ZTBatchInputModel:%1] Assert failed").arg(line));
    QVERIFY2(report.aborted, qPrintable(report.output));
}

QTEST_GUILESS_MAIN(tst_TreeNode)
#include "tst_treenode.moc"
