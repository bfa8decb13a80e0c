// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DeathCase.h"
#include "InputTree.h"
#include "MetaMethods.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QSignalSpy>
#include <QtTest>

/// The interface of the input model: meta-object, data, setters, assertions.
class tst_ZTBatchInputModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void beginsEmpty();
    void overridesNoMoreThanItsShare();

    void columnCountIsOneForEveryParent();
    void columnsAreFixed();
    void dataByRole_data();
    void dataByRole();

    void getNodeDataGivesTheRecordItself();
    void heic_data();
    void heic();
    void heicAtAnyDepth();
    void setEnabled();
    void setTexts_data();
    void setTexts();
    void settersIgnoreInvalidIndexes();

    void modelTester();
    void failedAssertions_data();
    void failedAssertions();
};

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

    // The names of folders count too.
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

void tst_ZTBatchInputModel::modelTester()
{
    ZTBatchInputModel model;
    Fill(model);
    // The tester starts here: InsertBranch() announces a row that exists already, which the tester reports as an error.
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
