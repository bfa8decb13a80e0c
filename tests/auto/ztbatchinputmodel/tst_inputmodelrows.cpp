// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputTree.h"

#include <QSignalSpy>
#include <QtTest>

#include <limits>
#include <memory>

namespace {

QString RangeText(const QList<QVariant>& arguments)
{
    const auto parent = arguments.at(0).toModelIndex();
    return QStringLiteral("%1:%2-%3")
        .arg(parent.isValid() ? parent.data().toString() : QString())
        .arg(arguments.at(1).toInt())
        .arg(arguments.at(2).toInt());
}

QStringList Ranges(const QSignalSpy& spy)
{
    QStringList ranges;
    for (const QList<QVariant>& arguments : spy) {
        ranges.append(RangeText(arguments));
    }
    return ranges;
}

} // namespace

/// Inserting and removing rows and branches of the input model, and the counts of files.
class tst_InputModelRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void insertBranchSortsFoldersFirst();
    void insertBranchCountsInEveryFolderAbove();
    void insertBranchOfNullDoesNothing();
    void insertBranchTakesFromAnotherTree();
    void insertBranchTellsOfFolders_data();
    void insertBranchTellsOfFolders();
    void insertBranchOrderOfCalls();
    void insertBranchBearsHandlersThatDelete_data();
    void insertBranchBearsHandlersThatDelete();

    void insertRowsClampsTheRow_data();
    void insertRowsClampsTheRow();
    void insertRowsMakesDefaultRecords();
    void insertRowsWithoutRowsIsAnnounced_data();
    void insertRowsWithoutRowsIsAnnounced();

    void removeRowsRanges_data();
    void removeRowsRanges();
    void removeRowsBeyondTheEndRemovesWhatIsThere();
    void removeRowsLowersTheCounts();
    void removeRowsFollowsNegativeCounts();
};

void tst_InputModelRows::insertBranchSortsFoldersFirst()
{
    ZTBatchInputModel model;
    const QStringList texts{QStringLiteral("b.jpg"), QStringLiteral("B.jpg"), QStringLiteral("z")};
    for (const QString& text : texts) {
        const QModelIndex index =
            model.InsertBranch(text == QLatin1String("z") ? NewFolder(text) : NewFile(text), QModelIndex());
        QCOMPARE(model.getNodeData(index)->inputText, text);
        QCOMPARE(index.row(), 0);
    }
    QCOMPARE(InputTexts(model), (QStringList{QStringLiteral("z"), QStringLiteral("B.jpg"), QStringLiteral("b.jpg")}));

    InputNode* const second = NewFile(QStringLiteral("B.jpg"));
    const QModelIndex index = model.InsertBranch(second, QModelIndex());
    QCOMPARE(index.row(), 2);
    QCOMPARE(NodeOf(index), second);
}

void tst_InputModelRows::insertBranchCountsInEveryFolderAbove()
{
    ZTBatchInputModel model;
    Fill(model);
    QCOMPARE(model.GetFileNodesCount(), 5);
    const QPersistentModelIndex folder = model.index(0, 0);
    const QPersistentModelIndex subFolder = model.index(0, 0, folder);
    const QPersistentModelIndex other = model.index(1, 0);

    model.InsertBranch(NewFolder(QStringLiteral("new"), {NewFile(QStringLiteral("1")), NewFile(QStringLiteral("2"))}),
                       subFolder);
    QCOMPARE(model.getNodeData(subFolder)->fileNodesCount, 3);
    QCOMPARE(model.getNodeData(folder)->fileNodesCount, 5);
    QCOMPARE(model.getNodeData(other)->fileNodesCount, 0);
    QCOMPARE(model.GetFileNodesCount(), 7);

    // The branch's own count is added, whatever the branch contains.
    auto* const boasting = NewFolder(QStringLiteral("boasting"));
    boasting->data.fileNodesCount = 100;
    model.InsertBranch(boasting, folder);
    QCOMPARE(model.getNodeData(folder)->fileNodesCount, 105);
    QCOMPARE(model.GetFileNodesCount(), 107);
}

void tst_InputModelRows::insertBranchOfNullDoesNothing()
{
    ZTBatchInputModel model;
    Fill(model);
    QSignalSpy aboutToInsert(&model, &QAbstractItemModel::rowsAboutToBeInserted);
    QSignalSpy folderInserted(&model, &ZTBatchInputModel::FolderInserted);
    QVERIFY(!model.InsertBranch(nullptr, QModelIndex()).isValid());
    QVERIFY(!model.InsertBranch(nullptr, model.index(0, 0)).isValid());
    QCOMPARE(aboutToInsert.count() + folderInserted.count(), 0);
    QCOMPARE(model.rowCount(), 4);
}

void tst_InputModelRows::insertBranchTakesFromAnotherTree()
{
    const std::unique_ptr<InputNode> detached(
        NewFolder(QStringLiteral("detached"), {NewFolder(QStringLiteral("f"), {NewFile(QStringLiteral("f1"))}),
                                               NewFile(QStringLiteral("t1")), NewFile(QStringLiteral("t2"))}));
    ZTBatchInputModel model;
    while (!detached->children.isEmpty()) {
        InputNode* const node = detached->children.first();
        const QModelIndex index = model.InsertBranch(node, QModelIndex());
        QCOMPARE(NodeOf(index), node);
        QVERIFY(!detached->children.contains(node));
    }
    QCOMPARE(InputTexts(model), (QStringList{QStringLiteral("f"), QStringLiteral("t1"), QStringLiteral("t2")}));
    QCOMPARE(InputTexts(model, model.index(0, 0)), QStringList{QStringLiteral("f1")});
    QCOMPARE(model.GetFileNodesCount(), 3);
    QCOMPARE(detached->data.fileNodesCount, 3);
}

void tst_InputModelRows::insertBranchTellsOfFolders_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("emissions");

    QTest::newRow("folder") << int(Folder) << 1;
    QTest::newRow("file") << int(File) << 0;
    QTest::newRow("another kind") << 2 << 0;
    QTest::newRow("negative kind") << -1 << 0;
}

void tst_InputModelRows::insertBranchTellsOfFolders()
{
    QFETCH(int, type);
    QFETCH(int, emissions);

    ZTBatchInputModel model;
    Fill(model);
    const QModelIndex parent = model.index(0, 0);
    QSignalSpy folderInserted(&model, &ZTBatchInputModel::FolderInserted);
    auto* const branch =
        NewFolder(QStringLiteral("b"), {NewFolder(QStringLiteral("inner"), {NewFolder(QStringLiteral("innermost"))})});
    branch->data.type = type;

    const QModelIndex index = model.InsertBranch(branch, parent);
    QCOMPARE(NodeOf(index), branch);
    QCOMPARE(model.parent(index), parent);
    QCOMPARE(folderInserted.count(), emissions);
    if (emissions > 0) {
        QCOMPARE(folderInserted.first().first().toModelIndex(), index);
    }
}

void tst_InputModelRows::insertBranchOrderOfCalls()
{
    ZTBatchInputModel model;
    Fill(model);
    const QPersistentModelIndex folder = model.index(0, 0);
    InputNode* const branch = NewFolder(QStringLiteral("fg"), {NewFile(QStringLiteral("1"))});

    QStringList calls;
    const auto note = [&](const QString& call) {
        calls.append(QStringLiteral("%1 rows=%2 files=%3/%4 contained=%5")
                         .arg(call)
                         .arg(model.rowCount(folder))
                         .arg(model.getNodeData(folder)->fileNodesCount)
                         .arg(model.GetFileNodesCount())
                         .arg(NodeOf(folder)->children.contains(branch)));
    };
    connect(&model, &QAbstractItemModel::rowsAboutToBeInserted, this,
            [&](const QModelIndex& parent, int first, int last) {
                QCOMPARE(parent, QModelIndex(folder));
                note(QStringLiteral("before %1-%2").arg(first).arg(last));
            });
    connect(&model, &QAbstractItemModel::rowsInserted, this, [&](const QModelIndex& parent, int first, int last) {
        QCOMPARE(parent, QModelIndex(folder));
        note(QStringLiteral("after %1-%2").arg(first).arg(last));
    });
    connect(&model, &ZTBatchInputModel::FolderInserted, this, [&](const QModelIndex& index) {
        QCOMPARE(NodeOf(index), branch);
        note(QStringLiteral("folder"));
    });

    QCOMPARE(NodeOf(model.InsertBranch(branch, folder)), branch);
    QCOMPARE(calls, (QStringList{QStringLiteral("before 0-0 rows=4 files=3/5 contained=1"),
                                 QStringLiteral("after 0-0 rows=4 files=4/6 contained=1"),
                                 QStringLiteral("folder rows=4 files=4/6 contained=1")}));
}

void tst_InputModelRows::insertBranchBearsHandlersThatDelete_data()
{
    QTest::addColumn<QString>("signal");
    QTest::addColumn<QString>("deleted");
    QTest::addColumn<bool>("topLevel");

    for (const char* const signal : {"rowsInserted", "FolderInserted"}) {
        for (const char* const deleted : {"model", "parent", "branch"}) {
            for (const bool topLevel : {false, true}) {
                if (topLevel && qstrcmp(deleted, "parent") == 0) {
                    continue;
                }
                QTest::addRow("%s deletes the %s%s", signal, deleted, topLevel ? ", top level" : "")
                    << QString::fromLatin1(signal) << QString::fromLatin1(deleted) << topLevel;
            }
        }
    }
}

void tst_InputModelRows::insertBranchBearsHandlersThatDelete()
{
    QFETCH(QString, signal);
    QFETCH(QString, deleted);
    QFETCH(bool, topLevel);

    auto* model = new ZTBatchInputModel;
    model->InsertBranch(NewFolder(QStringLiteral("f")), QModelIndex());
    const auto destroy = [&] {
        if (deleted == QLatin1String("model")) {
            delete model;
            model = nullptr;
        } else if (deleted == QLatin1String("parent") || topLevel) {
            model->removeRows(0, 1);
        } else {
            model->removeRows(0, 1, model->index(0, 0));
        }
    };
    int told = 0;
    if (signal == QLatin1String("rowsInserted")) {
        connect(model, &QAbstractItemModel::rowsInserted, this, destroy);
        connect(model, &ZTBatchInputModel::FolderInserted, this, [&] { ++told; });
    } else {
        connect(model, &ZTBatchInputModel::FolderInserted, this, destroy);
    }
    // "a" sorts before "f", so it is row 0 at the top level too.
    const QModelIndex index =
        model->InsertBranch(NewFolder(QStringLiteral("a")), topLevel ? QModelIndex() : model->index(0, 0));

    if (deleted == QLatin1String("branch") && topLevel) {
        QCOMPARE(index, model->index(0, 0));
        QCOMPARE(model->getNodeData(index)->inputText, QStringLiteral("f"));
    } else {
        QVERIFY(!index.isValid());
    }
    if (deleted != QLatin1String("branch")) {
        QCOMPARE(told, 0);
    }
    delete model;
}

void tst_InputModelRows::insertRowsClampsTheRow_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("position");

    QTest::newRow("front") << 0 << 1 << 0;
    QTest::newRow("middle") << 2 << 1 << 2;
    QTest::newRow("middle, many") << 1 << 300 << 1;
    QTest::newRow("end") << 3 << 2 << 3;
    QTest::newRow("behind the end") << 4 << 2 << 3;
    QTest::newRow("far behind the end") << std::numeric_limits<int>::max() << 1 << 3;
    QTest::newRow("negative") << -1 << 3 << 0;
    QTest::newRow("least") << std::numeric_limits<int>::min() << 1 << 0;
}

void tst_InputModelRows::insertRowsClampsTheRow()
{
    QFETCH(int, row);
    QFETCH(int, count);
    QFETCH(int, position);

    for (const bool inFolder : {false, true}) {
        ZTBatchInputModel model;
        QPersistentModelIndex parent;
        if (inFolder) {
            parent = model.InsertBranch(NewFolder(QStringLiteral("f")), QModelIndex());
        }
        AppendFiles(model, 3, parent);
        QStringList texts = InputTexts(model, parent);
        for (int i = 0; i < count; ++i) {
            texts.insert(position, QString());
        }
        QSignalSpy before(&model, &QAbstractItemModel::rowsAboutToBeInserted);
        QSignalSpy after(&model, &QAbstractItemModel::rowsInserted);
        QSignalSpy folderInserted(&model, &ZTBatchInputModel::FolderInserted);

        QVERIFY(model.insertRows(row, count, parent));
        QCOMPARE(InputTexts(model, parent), texts);
        const QStringList range{QStringLiteral("%1:%2-%3")
                                    .arg(parent.isValid() ? parent.data().toString() : QString())
                                    .arg(position)
                                    .arg(position + count - 1)};
        QCOMPARE(Ranges(before), range);
        QCOMPARE(Ranges(after), range);
        QCOMPARE(folderInserted.count(), 0);
        QCOMPARE(model.GetFileNodesCount(), 3);
        for (int i = 0; i < model.rowCount(parent); ++i) {
            const QModelIndex index = model.index(i, 0, parent);
            QCOMPARE(model.parent(index), QModelIndex(parent));
            QCOMPARE(model.indexFromNode(NodeOf(index)), index);
        }
    }
}

void tst_InputModelRows::insertRowsMakesDefaultRecords()
{
    ZTBatchInputModel model;
    QVERIFY(model.insertRows(0, 2));
    for (int row = 0; row < 2; ++row) {
        const BatchNodeData& record = *model.getNodeData(model.index(row, 0));
        QCOMPARE(QStringList({record.inputText, record.inputInfo, record.fileName, record.toolTip,
                              record.lastModification, record.bookmark.Path()})
                     .join(QString()),
                 QString());
        QCOMPARE(record.type, int(Folder));
        QCOMPARE(record.enabled, false);
        QCOMPARE(record.fileNodesCount, 0);
        QCOMPARE(model.rowCount(model.index(row, 0)), 0);
    }
}

void tst_InputModelRows::insertRowsWithoutRowsIsAnnounced_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("range");

    QTest::newRow("none") << 1 << 0 << QStringLiteral(":1-0");
    QTest::newRow("none behind the end") << 9 << 0 << QStringLiteral(":3-2");
    QTest::newRow("one less than none") << 1 << -1 << QStringLiteral(":1--1");
    QTest::newRow("fewer than none") << 3 << -4 << QStringLiteral(":3--2");
    QTest::newRow("least") << 0 << std::numeric_limits<int>::min() << QStringLiteral(":0--2147483648");
}

void tst_InputModelRows::insertRowsWithoutRowsIsAnnounced()
{
    QFETCH(int, row);
    QFETCH(int, count);
    QFETCH(QString, range);

    ZTBatchInputModel model;
    AppendFiles(model, 3);
    const QStringList texts = InputTexts(model);
    QSignalSpy before(&model, &QAbstractItemModel::rowsAboutToBeInserted);
    QSignalSpy after(&model, &QAbstractItemModel::rowsInserted);
    QVERIFY(model.insertRows(row, count));
    QCOMPARE(Ranges(before), QStringList{range});
    QCOMPARE(Ranges(after), QStringList{range});
    QCOMPARE(InputTexts(model), texts);
}

void tst_InputModelRows::removeRowsRanges_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("removed");

    const int most = std::numeric_limits<int>::max();
    const int least = std::numeric_limits<int>::min();
    QTest::newRow("first") << 0 << 1 << 0 << 1;
    QTest::newRow("middle") << 1 << 3 << 1 << 3;
    QTest::newRow("last") << 4 << 1 << 4 << 1;
    QTest::newRow("all") << 0 << 5 << 0 << 5;
    QTest::newRow("two before the first") << -2 << 3 << 0 << 1;
    QTest::newRow("before the first, up to the end") << -3 << 8 << 0 << 5;
    QTest::newRow("all of it before the first") << -3 << 3 << 0 << 0;
    QTest::newRow("ends before the first") << -3 << 2 << 0 << 0;
    QTest::newRow("behind the last") << 5 << 1 << 0 << 0;
    QTest::newRow("far behind the last") << most << most << 0 << 0;
    QTest::newRow("none") << 2 << 0 << 0 << 0;
    QTest::newRow("fewer than none") << 2 << -1 << 0 << 0;
    QTest::newRow("least") << least << least << 0 << 0;
    QTest::newRow("least row, most rows") << least << most << 0 << 0;
}

void tst_InputModelRows::removeRowsRanges()
{
    QFETCH(int, row);
    QFETCH(int, count);
    QFETCH(int, first);
    QFETCH(int, removed);

    for (const bool inFolder : {false, true}) {
        ZTBatchInputModel model;
        QPersistentModelIndex parent;
        if (inFolder) {
            parent = model.InsertBranch(NewFolder(QStringLiteral("f")), QModelIndex());
        }
        AppendFiles(model, 5, parent);
        QStringList texts = InputTexts(model, parent);
        texts.erase(texts.begin() + first, texts.begin() + first + removed);
        QSignalSpy before(&model, &QAbstractItemModel::rowsAboutToBeRemoved);
        QSignalSpy after(&model, &QAbstractItemModel::rowsRemoved);

        QVERIFY(model.removeRows(row, count, parent));
        QCOMPARE(InputTexts(model, parent), texts);
        QCOMPARE(model.GetFileNodesCount(), 5 - removed);
        const QStringList ranges = removed == 0
                                       ? QStringList()
                                       : QStringList{QStringLiteral("%1:%2-%3")
                                                         .arg(parent.isValid() ? parent.data().toString() : QString())
                                                         .arg(first)
                                                         .arg(first + removed - 1)};
        QCOMPARE(Ranges(before), ranges);
        QCOMPARE(Ranges(after), ranges);
    }
}

void tst_InputModelRows::removeRowsBeyondTheEndRemovesWhatIsThere()
{
    ZTBatchInputModel model;
    AppendFiles(model, 3);
    QSignalSpy after(&model, &QAbstractItemModel::rowsRemoved);
    QVERIFY(model.removeRows(1, 5));
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(model.GetFileNodesCount(), 1);
    // The signal has the requested range.
    QCOMPARE(Ranges(after), QStringList{QStringLiteral(":1-5")});

    QVERIFY(model.removeRows(0, std::numeric_limits<int>::max()));
    QCOMPARE(model.rowCount(), 0);
}

void tst_InputModelRows::removeRowsLowersTheCounts()
{
    ZTBatchInputModel model;
    Fill(model);
    const QPersistentModelIndex folder = model.index(0, 0);
    QCOMPARE(model.GetFileNodesCount(), 5);

    // The sub-folder, which contains one file, and the file behind it.
    QVERIFY(model.removeRows(0, 2, folder));
    QCOMPARE(model.getNodeData(folder)->fileNodesCount, 1);
    QCOMPARE(model.GetFileNodesCount(), 3);
    QCOMPARE(InputTexts(model, folder), QStringList{QStringLiteral("f2")});

    model.InsertBranch(NewFolder(QStringLiteral("three"), {NewFile(QStringLiteral("1")), NewFile(QStringLiteral("2")),
                                                           NewFile(QStringLiteral("3"))}),
                       QModelIndex());
    QCOMPARE(model.GetFileNodesCount(), 6);
    QVERIFY(model.removeRows(2, 1));
    QCOMPARE(model.GetFileNodesCount(), 3);

    // The signals enclose the whole change.
    QVector<int> counts;
    connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, this, [&] { counts << model.GetFileNodesCount(); });
    connect(&model, &QAbstractItemModel::rowsRemoved, this, [&] { counts << model.GetFileNodesCount(); });
    QVERIFY(model.removeRows(0, model.rowCount()));
    QCOMPARE(counts, (QVector<int>{3, 0}));
}

void tst_InputModelRows::removeRowsFollowsNegativeCounts()
{
    ZTBatchInputModel model;
    AppendFiles(model, 2);
    // The host's counts are wrong, but no count above them ever falls below 0.
    model.getNodeData(model.index(0, 0))->fileNodesCount = -3;
    model.getNodeData(model.index(1, 0))->fileNodesCount = 5;
    QVERIFY(model.removeRows(0, 2));
    QCOMPARE(model.GetFileNodesCount(), 0);
}

QTEST_GUILESS_MAIN(tst_InputModelRows)
#include "tst_inputmodelrows.moc"
