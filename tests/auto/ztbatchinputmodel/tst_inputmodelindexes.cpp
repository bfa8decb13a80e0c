// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputTree.h"

#include <QtTest>

#include <algorithm>
#include <functional>
#include <numeric>
#include <random>
#include <vector>

/// Model indexes: their rows and parents, the indexes of nodes, and persistent indexes when rows change.
class tst_InputModelIndexes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void indexOfRows();
    void parentOfRows();
    void parentThatIsNoChildHasNoRow();

    void indexFromNode();
    void indexFromNodeAfterManyChanges();
    void indexFromNodeAfterShift_data();
    void indexFromNodeAfterShift();

    void persistentIndexesFollow();
    void deepTree();
};

void tst_InputModelIndexes::indexOfRows()
{
    ZTBatchInputModel model;
    Fill(model);

    const QModelIndex folder = model.index(0, 0);
    QVERIFY(folder.isValid());
    QCOMPARE(folder.row(), 0);
    QCOMPARE(folder.column(), 0);
    QCOMPARE(folder.model(), &model);
    QCOMPARE(NodeOf(folder)->data.inputText, QStringLiteral("f"));

    const QModelIndex inside = model.index(2, 0, folder);
    QCOMPARE(inside.row(), 2);
    QCOMPARE(NodeOf(inside)->data.inputText, QStringLiteral("f2"));

    QVERIFY(!model.index(-1, 0).isValid());
    QVERIFY(!model.index(4, 0).isValid());
    QVERIFY(!model.index(0, 1).isValid());
    QVERIFY(!model.index(0, -1).isValid());
    QVERIFY(!model.index(3, 0, folder).isValid());
    QVERIFY(!model.index(0, 1, folder).isValid());
    QVERIFY(!model.index(0, 0, inside).isValid());
    QCOMPARE(model.rowCount(), 4);
    QCOMPARE(model.rowCount(folder), 3);
    QCOMPARE(model.rowCount(inside), 0);
}

void tst_InputModelIndexes::parentOfRows()
{
    ZTBatchInputModel model;
    Fill(model);

    const QModelIndex folder = model.index(0, 0);
    const QModelIndex subFolder = model.index(0, 0, folder);
    QVERIFY(!model.parent(QModelIndex()).isValid());
    for (int row = 0; row < 4; ++row) {
        QVERIFY(!model.parent(model.index(row, 0)).isValid());
    }
    QCOMPARE(model.parent(subFolder), folder);
    QCOMPARE(model.parent(model.index(1, 0, folder)), folder);
    QCOMPARE(model.parent(model.index(0, 0, subFolder)), subFolder);
}

void tst_InputModelIndexes::parentThatIsNoChildHasNoRow()
{
    ZTBatchInputModel model;
    Fill(model);
    const QModelIndex folder = model.index(0, 0);
    const QModelIndex inside = model.index(1, 0, folder);
    InputNode* const folderNode = NodeOf(folder);
    InputNode* const rootNode = folderNode->parent;

    rootNode->children.removeAt(0);
    const QModelIndex parent = model.parent(inside);
    QCOMPARE(parent.row(), -1);
    QCOMPARE(parent.column(), 0);
    QCOMPARE(parent.internalPointer(), folder.internalPointer());
    QVERIFY(!model.indexFromNode(folderNode).isValid());

    rootNode->children.prepend(folderNode);
    QCOMPARE(model.parent(inside), folder);
}

void tst_InputModelIndexes::indexFromNode()
{
    ZTBatchInputModel model;
    Fill(model);
    const QModelIndex folder = model.index(0, 0);
    InputNode* const root = NodeOf(folder)->parent;

    QVERIFY(!model.indexFromNode(nullptr).isValid());
    QVERIFY(!model.indexFromNode(root).isValid());
    InputNode loose;
    QVERIFY(!model.indexFromNode(&loose).isValid());

    const std::function<void(const QModelIndex&)> check = [&](const QModelIndex& parent) {
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QModelIndex index = model.index(row, 0, parent);
            QCOMPARE(model.indexFromNode(NodeOf(index)), index);
            check(index);
        }
    };
    check(QModelIndex());

    // A node that is missing in its parent's list.
    auto* const inside = NodeOf(model.index(1, 0, folder));
    inside->parent->children.removeOne(inside);
    QVERIFY(!model.indexFromNode(inside).isValid());
    inside->parent->children.append(inside);
    QCOMPARE(model.indexFromNode(inside).row(), 2);
}

void tst_InputModelIndexes::indexFromNodeAfterShift_data()
{
    QTest::addColumn<int>("shift");
    QTest::addColumn<QString>("order");

    for (const int shift : {1, 2, 63, 500, 999, -1, -250, -900}) {
        for (const char* const order : {"forward", "backward", "shuffled"}) {
            QTest::addRow("by %d, %s", shift, order) << shift << QString::fromLatin1(order);
        }
    }
}

void tst_InputModelIndexes::indexFromNodeAfterShift()
{
    QFETCH(int, shift);
    QFETCH(QString, order);

    ZTBatchInputModel model;
    AppendFiles(model, 1000);
    if (shift > 0) {
        model.insertRows(0, shift);
    } else {
        model.removeRows(0, -shift);
    }
    std::vector<int> rows(static_cast<std::size_t>(model.rowCount()));
    std::iota(rows.begin(), rows.end(), 0);
    if (order == QLatin1String("backward")) {
        std::reverse(rows.begin(), rows.end());
    } else if (order == QLatin1String("shuffled")) {
        std::shuffle(rows.begin(), rows.end(), std::mt19937(1));
    }
    for (const int row : rows) {
        const QModelIndex index = model.index(row, 0);
        QCOMPARE(model.indexFromNode(NodeOf(index)), index);
    }
}

void tst_InputModelIndexes::indexFromNodeAfterManyChanges()
{
    // The inserted and removed rows shift all others, so that every remembered row is wrong, by little and by much.
    ZTBatchInputModel model;
    AppendFiles(model, 1000);
    const auto checkAll = [&model] {
        for (const int step : {1, -1}) {
            const int count = model.rowCount();
            for (int i = 0; i < count; ++i) {
                const QModelIndex index = model.index(step > 0 ? i : count - 1 - i, 0);
                QCOMPARE(model.indexFromNode(NodeOf(index)), index);
            }
        }
    };
    for (const int count : {1, 63, 64, 65, 200, 1}) {
        QVERIFY(model.insertRows(0, count));
        checkAll();
        QVERIFY(model.insertRows(500, count));
        checkAll();
    }
    for (const int count : {1, 64, 65, 300}) {
        QVERIFY(model.removeRows(10, count));
        checkAll();
    }
}

void tst_InputModelIndexes::persistentIndexesFollow()
{
    ZTBatchInputModel model;
    Fill(model);
    QMap<QString, QPersistentModelIndex> indexes;
    const std::function<void(const QModelIndex&)> collect = [&](const QModelIndex& parent) {
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QModelIndex index = model.index(row, 0, parent);
            indexes.insert(model.getNodeData(index)->inputText, index);
            collect(index);
        }
    };
    collect(QModelIndex());
    QCOMPARE(indexes.size(), 8);
    const auto wrongOnes = [&] {
        QStringList wrong;
        for (auto it = indexes.constBegin(); it != indexes.constEnd(); ++it) {
            const BatchNodeData* const record = model.getNodeData(*it);
            const bool isRight = record != nullptr && record->inputText == it.key() &&
                                 model.indexFromNode(NodeOf(*it)) == *it && it->parent() == model.parent(*it);
            if (!isRight) {
                wrong.append(it.key());
            }
        }
        return wrong;
    };
    QCOMPARE(wrongOnes(), QStringList());

    model.InsertBranch(NewFolder(QStringLiteral("a")), QModelIndex());
    QCOMPARE(wrongOnes(), QStringList());
    model.InsertBranch(NewFile(QStringLiteral("t10")), QModelIndex());
    QCOMPARE(wrongOnes(), QStringList());
    model.InsertBranch(NewFile(QStringLiteral("z")), QModelIndex());
    QCOMPARE(wrongOnes(), QStringList());
    model.InsertBranch(NewFile(QStringLiteral("f10")), indexes.value(QStringLiteral("f")));
    QCOMPARE(wrongOnes(), QStringList());
    model.insertRows(1, 3, indexes.value(QStringLiteral("f")));
    QCOMPARE(wrongOnes(), QStringList());
    model.insertRows(0, 2);
    QCOMPARE(wrongOnes(), QStringList());
    model.insertRows(0, 0);
    QCOMPARE(wrongOnes(), QStringList());
    model.removeRows(0, 2);
    QCOMPARE(wrongOnes(), QStringList());
    Q_EMIT model.ModelUpdated();
    QCOMPARE(wrongOnes(), QStringList());

    model.removeRows(indexes.value(QStringLiteral("f")).row(), 1);
    QCOMPARE(wrongOnes(), (QStringList{QStringLiteral("f"), QStringLiteral("f1"), QStringLiteral("f2"),
                                       QStringLiteral("g"), QStringLiteral("g1")}));
    for (const QString& text : wrongOnes()) {
        QVERIFY(!indexes.value(text).isValid());
    }
}

void tst_InputModelIndexes::deepTree()
{
    constexpr int levels = 100000;
    ZTBatchInputModel model;
    QModelIndex folder;
    for (int level = 0; level < levels; ++level) {
        folder = model.InsertBranch(NewFolder(QStringLiteral("folder")), folder);
    }
    const QModelIndex file = model.InsertBranch(NewFile(QStringLiteral("a.HEIC")), folder);
    QCOMPARE(model.GetFileNodesCount(), 1);
    QVERIFY(model.IsHeicFormatExisting());
    QCOMPARE(model.indexFromNode(NodeOf(file)), file);
    QCOMPARE(model.parent(file), folder);
    const QPersistentModelIndex persistent = file;

    model.removeRows(0, 1, folder);
    QVERIFY(!persistent.isValid());
    QCOMPARE(model.GetFileNodesCount(), 0);
    QVERIFY(!model.IsHeicFormatExisting());

    // Half of the levels are removed through the model, the rest by its destructor.
    int level = 0;
    for (; level < levels / 2; ++level) {
        folder = model.parent(folder);
    }
    model.removeRows(0, 1, folder);
    QCOMPARE(model.rowCount(folder), 0);
    for (; folder.isValid(); folder = model.parent(folder)) {
        ++level;
    }
    QCOMPARE(level, levels);
}

QTEST_GUILESS_MAIN(tst_InputModelIndexes)
#include "tst_inputmodelindexes.moc"
