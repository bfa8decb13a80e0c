#include "DeathCase.h"
#include "InputNodes.h"
#include "MetaMethods.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <limits>
#include <memory>
#include <numeric>
#include <random>
#include <vector>

class tst_ZTBatchInputModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void beginsEmpty();
    void overridesNoMoreThanItsShare();

    void indexOfRows();
    void parentOfRows();
    void parentThatIsNoChildHasNoRow();
    void columnCountIsOneForEveryParent();
    void columnsAreFixed();
    void dataByRole_data();
    void dataByRole();

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

    void indexFromNode();
    void indexFromNodeAfterManyChanges();
    void indexFromNodeAfterShift_data();
    void indexFromNodeAfterShift();
    void getNodeDataGivesTheRecordItself();
    void heic_data();
    void heic();
    void heicAtAnyDepth();
    void setEnabled();
    void setTexts_data();
    void setTexts();
    void settersIgnoreInvalidIndexes();

    void persistentIndexesFollow();
    void modelTester();
    void deepTree();
    void failedAssertions_data();
    void failedAssertions();
};

namespace {

/// Top level: folder "f" with folder "g" (file "g1") and the files "f1", "f2"; folder "h"; files "t1", "t2".
void Fill(ZTBatchInputModel& model)
{
    model.InsertBranch(NewFolder(QStringLiteral("f"), {NewFolder(QStringLiteral("g"), {NewFile(QStringLiteral("g1"))}),
                                                       NewFile(QStringLiteral("f1")), NewFile(QStringLiteral("f2"))}),
                       QModelIndex());
    model.InsertBranch(NewFolder(QStringLiteral("h")), QModelIndex());
    model.InsertBranch(NewFile(QStringLiteral("t1")), QModelIndex());
    model.InsertBranch(NewFile(QStringLiteral("t2")), QModelIndex());
}

void AppendFiles(ZTBatchInputModel& model, int count, const QModelIndex& parent = QModelIndex())
{
    for (int i = 0; i < count; ++i) {
        model.InsertBranch(NewFile(QString::number(100000 + i)), parent);
    }
}

InputNode* NodeOf(const QModelIndex& index)
{
    return static_cast<InputNode*>(index.internalPointer());
}

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

void tst_ZTBatchInputModel::metaObject()
{
    QCOMPARE(ZTBatchInputModel::staticMetaObject.className(), "ZTBatchInputModel");
    QCOMPARE(ZTBatchInputModel::staticMetaObject.superClass(), &QAbstractItemModel::staticMetaObject);
    QCOMPARE(OwnMetaMethods(ZTBatchInputModel::staticMetaObject),
             (QStringList{QStringLiteral("public signal ModelUpdated()"),
                          QStringLiteral("public signal FolderInserted(QModelIndex)")}));
}

void tst_ZTBatchInputModel::beginsEmpty()
{
    QObject owner;
    auto* const model = new ZTBatchInputModel(&owner);
    QCOMPARE(static_cast<QObject*>(model)->parent(), &owner);
    QCOMPARE(model->rowCount(), 0);
    QCOMPARE(model->columnCount(), 1);
    QCOMPARE(model->GetFileNodesCount(), 0);
    QVERIFY(!model->IsHeicFormatExisting());
    QVERIFY(!model->index(0, 0).isValid());
    QVERIFY(!model->hasChildren());

    const ZTBatchInputModel ownerless;
    QVERIFY(static_cast<const QObject&>(ownerless).parent() == nullptr);
}

void tst_ZTBatchInputModel::overridesNoMoreThanItsShare()
{
    ZTBatchInputModel model;
    Fill(model);
    const QModelIndex file = model.index(2, 0);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    QCOMPARE(model.flags(file), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    QCOMPARE(model.flags(QModelIndex()), Qt::NoItemFlags);
    QVERIFY(!model.setData(file, QStringLiteral("/in/other"), Qt::DisplayRole));
    QVERIFY(!model.setData(file, QStringLiteral("tip"), Qt::ToolTipRole));
    QCOMPARE(model.data(file).toString(), QDir::toNativeSeparators(QStringLiteral("/in/t1")));
    QCOMPARE(changed.count(), 0);
    QVERIFY(model.hasChildren(model.index(0, 0)));
    QVERIFY(!model.hasChildren(model.index(1, 0)));
    QVERIFY(!model.hasChildren(file));
    QVERIFY(!model.canFetchMore(QModelIndex()));
    QCOMPARE(model.supportedDropActions(), Qt::CopyAction);
}

void tst_ZTBatchInputModel::indexOfRows()
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

void tst_ZTBatchInputModel::parentOfRows()
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

void tst_ZTBatchInputModel::parentThatIsNoChildHasNoRow()
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

void tst_ZTBatchInputModel::columnCountIsOneForEveryParent()
{
    ZTBatchInputModel model;
    Fill(model);
    QCOMPARE(model.columnCount(), 1);
    QCOMPARE(model.columnCount(model.index(0, 0)), 1);
    QCOMPARE(model.columnCount(model.index(3, 0)), 1);
}

void tst_ZTBatchInputModel::columnsAreFixed()
{
    ZTBatchInputModel model;
    Fill(model);
    QSignalSpy aboutToInsert(&model, &QAbstractItemModel::columnsAboutToBeInserted);
    QSignalSpy aboutToRemove(&model, &QAbstractItemModel::columnsAboutToBeRemoved);
    QVERIFY(!model.insertColumns(0, 1));
    QVERIFY(!model.insertColumns(1, 1, model.index(0, 0)));
    QVERIFY(!model.removeColumns(0, 1));
    QVERIFY(!model.removeColumns(0, 1, model.index(0, 0)));
    QCOMPARE(aboutToInsert.count() + aboutToRemove.count(), 0);
    QCOMPARE(model.columnCount(), 1);
}

void tst_ZTBatchInputModel::dataByRole_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QVariant>("expected");

#ifdef Q_OS_WIN
    const QString path = QStringLiteral("\\in\\sub\\a.jpg");
#else
    const QString path = QStringLiteral("/in/sub/a.jpg");
#endif
    const QString tip = QStringLiteral("tip");
    QTest::newRow("display") << int(Qt::DisplayRole) << tip << QVariant(path);
    QTest::newRow("tool tip") << int(Qt::ToolTipRole) << tip << QVariant(tip);
    QTest::newRow("tool tip of its own, blank")
        << int(Qt::ToolTipRole) << QStringLiteral(" ") << QVariant(QStringLiteral(" "));
    QTest::newRow("tool tip, none of its own") << int(Qt::ToolTipRole) << QString() << QVariant(path);
    for (const int role : {-1, 1, 2, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 27, int(Qt::UserRole), Qt::UserRole + 1}) {
        QTest::addRow("role %d", role) << role << tip << QVariant();
    }
}

void tst_ZTBatchInputModel::dataByRole()
{
    QFETCH(int, role);
    QFETCH(QString, toolTip);
    QFETCH(QVariant, expected);

    for (const int type : {int(Folder), int(File)}) {
        ZTBatchInputModel model;
        auto* const node = NewFile(QStringLiteral("text"));
        node->data.type = type;
        node->data.fileName = QStringLiteral("/in/sub/a.jpg");
        node->data.inputInfo = QStringLiteral("info");
        node->data.toolTip = toolTip;
        const QModelIndex index = model.InsertBranch(node, QModelIndex());
        QCOMPARE(model.data(index, role), expected);
        QCOMPARE(model.data(index, role).isValid(), expected.isValid());
        QVERIFY(!model.data(QModelIndex(), role).isValid());
    }
}

void tst_ZTBatchInputModel::insertBranchSortsFoldersFirst()
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

void tst_ZTBatchInputModel::insertBranchCountsInEveryFolderAbove()
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

    // What the branch says is added, whatever it holds.
    auto* const boasting = NewFolder(QStringLiteral("boasting"));
    boasting->data.fileNodesCount = 100;
    model.InsertBranch(boasting, folder);
    QCOMPARE(model.getNodeData(folder)->fileNodesCount, 105);
    QCOMPARE(model.GetFileNodesCount(), 107);
}

void tst_ZTBatchInputModel::insertBranchOfNullDoesNothing()
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

void tst_ZTBatchInputModel::insertBranchTakesFromAnotherTree()
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

void tst_ZTBatchInputModel::insertBranchTellsOfFolders_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("emissions");

    QTest::newRow("folder") << int(Folder) << 1;
    QTest::newRow("file") << int(File) << 0;
    QTest::newRow("another kind") << 2 << 0;
    QTest::newRow("negative kind") << -1 << 0;
}

void tst_ZTBatchInputModel::insertBranchTellsOfFolders()
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

void tst_ZTBatchInputModel::insertBranchOrderOfCalls()
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

void tst_ZTBatchInputModel::insertBranchBearsHandlersThatDelete_data()
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

void tst_ZTBatchInputModel::insertBranchBearsHandlersThatDelete()
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
    // "a" sorts before "f": it is row 0 at the top level too.
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

void tst_ZTBatchInputModel::insertRowsClampsTheRow_data()
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

void tst_ZTBatchInputModel::insertRowsClampsTheRow()
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

void tst_ZTBatchInputModel::insertRowsMakesDefaultRecords()
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

void tst_ZTBatchInputModel::insertRowsWithoutRowsIsAnnounced_data()
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

void tst_ZTBatchInputModel::insertRowsWithoutRowsIsAnnounced()
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

void tst_ZTBatchInputModel::removeRowsRanges_data()
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

void tst_ZTBatchInputModel::removeRowsRanges()
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

void tst_ZTBatchInputModel::removeRowsBeyondTheEndRemovesWhatIsThere()
{
    ZTBatchInputModel model;
    AppendFiles(model, 3);
    QSignalSpy after(&model, &QAbstractItemModel::rowsRemoved);
    QVERIFY(model.removeRows(1, 5));
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(model.GetFileNodesCount(), 1);
    // The range is announced as it was asked for.
    QCOMPARE(Ranges(after), QStringList{QStringLiteral(":1-5")});

    QVERIFY(model.removeRows(0, std::numeric_limits<int>::max()));
    QCOMPARE(model.rowCount(), 0);
}

void tst_ZTBatchInputModel::removeRowsLowersTheCounts()
{
    ZTBatchInputModel model;
    Fill(model);
    const QPersistentModelIndex folder = model.index(0, 0);
    QCOMPARE(model.GetFileNodesCount(), 5);

    // The sub-folder with its one file and one file beside it.
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

    // The signals come around the whole change.
    QVector<int> counts;
    connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, this, [&] { counts << model.GetFileNodesCount(); });
    connect(&model, &QAbstractItemModel::rowsRemoved, this, [&] { counts << model.GetFileNodesCount(); });
    QVERIFY(model.removeRows(0, model.rowCount()));
    QCOMPARE(counts, (QVector<int>{3, 0}));
}

void tst_ZTBatchInputModel::removeRowsFollowsNegativeCounts()
{
    ZTBatchInputModel model;
    AppendFiles(model, 2);
    // A host that counts wrongly, but never so that a count above falls below 0.
    model.getNodeData(model.index(0, 0))->fileNodesCount = -3;
    model.getNodeData(model.index(1, 0))->fileNodesCount = 5;
    QVERIFY(model.removeRows(0, 2));
    QCOMPARE(model.GetFileNodesCount(), 0);
}

void tst_ZTBatchInputModel::indexFromNode()
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

    // A node that its parent does not know.
    auto* const inside = NodeOf(model.index(1, 0, folder));
    inside->parent->children.removeOne(inside);
    QVERIFY(!model.indexFromNode(inside).isValid());
    inside->parent->children.append(inside);
    QCOMPARE(model.indexFromNode(inside).row(), 2);
}

void tst_ZTBatchInputModel::indexFromNodeAfterShift_data()
{
    QTest::addColumn<int>("shift");
    QTest::addColumn<QString>("order");

    for (const int shift : {1, 2, 63, 500, 999, -1, -250, -900}) {
        for (const char* const order : {"forward", "backward", "shuffled"}) {
            QTest::addRow("by %d, %s", shift, order) << shift << QString::fromLatin1(order);
        }
    }
}

void tst_ZTBatchInputModel::indexFromNodeAfterShift()
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

void tst_ZTBatchInputModel::indexFromNodeAfterManyChanges()
{
    // Enough rows come and go before the others for every remembered row to be wrong, near and far.
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

void tst_ZTBatchInputModel::getNodeDataGivesTheRecordItself()
{
    ZTBatchInputModel model;
    Fill(model);
    QVERIFY(model.getNodeData(QModelIndex()) == nullptr);
    const QModelIndex file = model.index(2, 0);
    BatchNodeData* const record = model.getNodeData(file);
    QCOMPARE(static_cast<void*>(record), file.internalPointer());

    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    record->fileName = QStringLiteral("/in/elsewhere");
    QCOMPARE(model.data(file).toString(), QDir::toNativeSeparators(QStringLiteral("/in/elsewhere")));
    record->inputText = QStringLiteral("zzz");
    QCOMPARE(model.index(2, 0), file);
    QCOMPARE(changed.count(), 0);
}

void tst_ZTBatchInputModel::heic_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isHeic");

    QTest::newRow("lower case") << QStringLiteral("/in/a.heic") << true;
    QTest::newRow("upper case") << QStringLiteral("/in/IMG.HEIC") << true;
    QTest::newRow("mixed case") << QStringLiteral("/in/a.HeiC") << true;
    QTest::newRow("two suffixes") << QStringLiteral("/in/a.jpg.heic") << true;
    QTest::newRow("name without a folder") << QStringLiteral("a.heic") << true;
    QTest::newRow("hidden file") << QStringLiteral("/in/.heic") << true;
    QTest::newRow("the name only") << QStringLiteral("/in/heic.jpg") << false;
    QTest::newRow("not the last suffix") << QStringLiteral("/in/a.heic.jpg") << false;
    QTest::newRow("no suffix") << QStringLiteral("/in/heic") << false;
    QTest::newRow("end of a suffix") << QStringLiteral("/in/a.xheic") << false;
    QTest::newRow("start of a suffix") << QStringLiteral("/in/a.heics") << false;
    QTest::newRow("its sibling") << QStringLiteral("/in/a.heif") << false;
    QTest::newRow("folder above") << QStringLiteral("/in/a.heic/b") << false;
    QTest::newRow("trailing separator") << QStringLiteral("/in/a.heic/") << false;
    QTest::newRow("trailing dot") << QStringLiteral("/in/a.heic.") << false;
    QTest::newRow("trailing blank") << QStringLiteral("/in/a.heic ") << false;
    QTest::newRow("dotted capital i") << QStringLiteral("/in/a.HE\u0130C") << false;
    QTest::newRow("empty") << QString() << false;
}

void tst_ZTBatchInputModel::heic()
{
    QFETCH(QString, path);
    QFETCH(bool, isHeic);

    // A folder's name counts like a file's.
    for (const int type : {int(Folder), int(File), 2}) {
        ZTBatchInputModel model;
        Fill(model);
        auto* const node = NewFile(QStringLiteral("m"));
        node->data.type = type;
        node->data.fileName = path;
        model.InsertBranch(node, model.index(0, 0));
        QCOMPARE(model.IsHeicFormatExisting(), isHeic);
    }
}

void tst_ZTBatchInputModel::heicAtAnyDepth()
{
    for (int depth = 0; depth < 5; ++depth) {
        InputNode* branch = NewFile(QStringLiteral("IMG.HEIC"));
        for (int level = 0; level < depth; ++level) {
            branch = NewFolder(QStringLiteral("folder"), {branch, NewFile(QStringLiteral("a.jpg"))});
        }
        ZTBatchInputModel model;
        Fill(model);
        QVERIFY(!model.IsHeicFormatExisting());
        const QModelIndex index = model.InsertBranch(branch, QModelIndex());
        QVERIFY(model.IsHeicFormatExisting());
        model.removeRows(index.row(), 1);
        QVERIFY(!model.IsHeicFormatExisting());
    }
}

void tst_ZTBatchInputModel::setEnabled()
{
    ZTBatchInputModel model;
    Fill(model);
    const QModelIndex folder = model.index(0, 0);
    const QModelIndex inside = model.index(1, 0, folder);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    model.setEnabled(folder, true);
    QCOMPARE(changed.count(), 0);
    model.setEnabled(folder, false);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.last(), (QList<QVariant>{folder, folder, QVariant::fromValue(QVector<int>())}));
    QCOMPARE(model.getNodeData(folder)->enabled, false);
    QCOMPARE(model.getNodeData(inside)->enabled, true);
    model.setEnabled(folder, false);
    QCOMPARE(changed.count(), 1);
    model.setEnabled(folder, true);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(model.getNodeData(folder)->enabled, true);
}

void tst_ZTBatchInputModel::setTexts_data()
{
    QTest::addColumn<bool>("isToolTip");

    QTest::newRow("last modification") << false;
    QTest::newRow("tool tip") << true;
}

void tst_ZTBatchInputModel::setTexts()
{
    QFETCH(bool, isToolTip);

    ZTBatchInputModel model;
    Fill(model);
    const QModelIndex file = model.index(0, 0, model.index(0, 0));
    BatchNodeData* const record = model.getNodeData(file);
    record->toolTip = QStringLiteral("old");
    record->lastModification = QStringLiteral("old");
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);

    int emissions = 0;
    for (const QString& text : {QStringLiteral("new"), QStringLiteral("new"), QString(), QString()}) {
        if (isToolTip) {
            model.setToolTip(file, text);
        } else {
            model.setLastModification(file, text);
        }
        ++emissions;
        QCOMPARE(changed.count(), emissions);
        QCOMPARE(changed.last(), (QList<QVariant>{file, file, QVariant::fromValue(QVector<int>())}));
        QCOMPARE(isToolTip ? record->toolTip : record->lastModification, text);
        QCOMPARE(isToolTip ? record->lastModification : record->toolTip, QStringLiteral("old"));
    }
}

void tst_ZTBatchInputModel::settersIgnoreInvalidIndexes()
{
    ZTBatchInputModel model;
    Fill(model);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    model.setEnabled(QModelIndex(), true);
    model.setEnabled(QModelIndex(), false);
    model.setLastModification(QModelIndex(), QStringLiteral("text"));
    model.setToolTip(QModelIndex(), QStringLiteral("text"));
    QCOMPARE(changed.count(), 0);
}

void tst_ZTBatchInputModel::persistentIndexesFollow()
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

void tst_ZTBatchInputModel::modelTester()
{
    ZTBatchInputModel model;
    Fill(model);
    // From here on: InsertBranch() announces a row that is there already, which the tester takes for an error.
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);

    const QPersistentModelIndex folder = model.index(0, 0);
    model.setEnabled(folder, false);
    model.setToolTip(model.index(0, 0, folder), QStringLiteral("tip"));
    model.setLastModification(model.index(2, 0), QStringLiteral("now"));
    Q_EMIT model.ModelUpdated();
    model.insertRows(0, 3);
    model.insertRows(2, 1, folder);
    model.insertRows(100, 2, folder);
    model.removeRows(1, 2);
    model.removeRows(0, 2, folder);
    model.removeRows(-1, 2);
    model.removeRows(0, model.rowCount());
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.GetFileNodesCount(), 0);
}

void tst_ZTBatchInputModel::deepTree()
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

    // Half of them by the model, the rest by its destructor.
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

void tst_ZTBatchInputModel::failedAssertions_data()
{
    QTest::addColumn<int>("line");

    QTest::newRow("input-data-without-node") << 97;
    QTest::newRow("input-insert-rows-without-node") << 129;
    QTest::newRow("input-remove-rows-without-node") << 166;
    QTest::newRow("input-folder-count-below-zero") << 192;
    QTest::newRow("input-root-count-below-zero") << 192;
    QTest::newRow("input-count-below-zero-on-the-way") << 192;
    QTest::newRow("input-index-without-node") << 258;
    QTest::newRow("input-parent-without-node") << 280;
    QTest::newRow("input-parent-of-loose-node") << 282;
    QTest::newRow("input-row-count-without-node") << 304;
    QTest::newRow("input-insert-branch-without-node") << 377;
}

void tst_ZTBatchInputModel::failedAssertions()
{
    QFETCH(int, line);

    const DeathReport report = RunDeathCase(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(report.lastLine, QStringLiteral("[src\\ZTBatchInputModel:%1] Assert failed").arg(line));
    QVERIFY2(report.aborted, qPrintable(report.output));
}

QTEST_GUILESS_MAIN(tst_ZTBatchInputModel)
#include "tst_ztbatchinputmodel.moc"
