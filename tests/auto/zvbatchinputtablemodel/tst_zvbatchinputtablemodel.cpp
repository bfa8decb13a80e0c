// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputTable.h"

#include "MetaMethods.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

/// The table's rows and cells, its rebuilds, and how it lives with its source.
class tst_ZVBatchInputTableModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void beginsWithoutRows();
    void rowsComeAtRebuilds_data();
    void rowsComeAtRebuilds();
    void rowsStayBetweenRebuilds();
    void listensToNothingElse();

    void topLevelFiles_data();
    void topLevelFiles();
    void columnsOfRows();
    void parentIsIgnored();
    void dataOfCells();
    void rolesPassThrough();

    void updateSelection();
    void updateSelectionSignalComesAfterTheReset();
    void rebuildBearsHandlersThatDelete_data();
    void rebuildBearsHandlersThatDelete();
    void outlivesItsSource();
    void leavesItsSourceAlone();
    void modelTester();
    void deepTree();
};

void tst_ZVBatchInputTableModel::metaObject()
{
    QCOMPARE(ZVBatchInputTableModel::staticMetaObject.className(), "ZVBatchInputTableModel");
    QCOMPARE(ZVBatchInputTableModel::staticMetaObject.superClass(), &QAbstractTableModel::staticMetaObject);
    QCOMPARE(OwnMetaMethods(ZVBatchInputTableModel::staticMetaObject),
             QStringList{QStringLiteral("public signal UpdateSelectionModel()")});
}

void tst_ZVBatchInputTableModel::beginsWithoutRows()
{
    ZTBatchInputModel source;
    Fill(source);
    QObject owner;
    auto* const table = new ZVBatchInputTableModel(&source, &owner);
    QCOMPARE(table->QObject::parent(), &owner);
    QCOMPARE(table->sourceModel(), &source);
    QCOMPARE(table->rowCount(), 0);
    QCOMPARE(table->columnCount(), 3);
    QVERIFY(!table->HasFolder());
    QVERIFY(!table->isFolderExpanded(source.index(0, 0)));
    QVERIFY(!table->mapFromSource(source.index(0, 0)).isValid());
    QVERIFY(!table->mapFromSource(QModelIndex()).isValid());
}

void tst_ZVBatchInputTableModel::rowsComeAtRebuilds_data()
{
    QTest::addColumn<QString>("cause");
    QTest::addColumn<bool>("expands");

    QTest::newRow("rebuild") << QStringLiteral("rebuild") << false;
    QTest::newRow("ModelUpdated") << QStringLiteral("ModelUpdated") << false;
    QTest::newRow("reset of the source") << QStringLiteral("reset") << false;
    QTest::newRow("toggleFolder") << QStringLiteral("toggle") << true;
}

void tst_ZVBatchInputTableModel::rowsComeAtRebuilds()
{
    QFETCH(QString, cause);
    QFETCH(bool, expands);

    ResettableModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    QSignalSpy before(&table, &QAbstractItemModel::modelAboutToBeReset);
    QSignalSpy after(&table, &QAbstractItemModel::modelReset);
    QSignalSpy selection(&table, &ZVBatchInputTableModel::UpdateSelectionModel);
    if (cause == QLatin1String("rebuild")) {
        table.rebuild();
    } else if (cause == QLatin1String("ModelUpdated")) {
        Q_EMIT source.ModelUpdated();
    } else if (cause == QLatin1String("reset")) {
        source.Reset();
    } else {
        table.toggleFolder(Find(source, QStringLiteral("h")));
    }
    QCOMPARE(Rows(table),
             expands ? Lines("/f - -|/g - -|/h - -|h1 - -|t1 t2 -") : Lines("/f - -|/g - -|/h - -|t1 t2 -"));
    QCOMPARE(before.count(), 1);
    QCOMPARE(after.count(), 1);
    QCOMPARE(selection.count(), expands ? 1 : 0);
}

void tst_ZVBatchInputTableModel::rowsStayBetweenRebuilds()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    const QStringList rows = Rows(table);
    QSignalSpy reset(&table, &QAbstractItemModel::modelReset);
    QSignalSpy changed(&table, &QAbstractItemModel::dataChanged);

    source.InsertBranch(NewFolder(QStringLiteral("a")), QModelIndex());
    source.InsertBranch(NewFile(QStringLiteral("t0")), QModelIndex());
    source.insertRows(0, 2);
    source.setEnabled(Find(source, QStringLiteral("h")), false);
    source.setToolTip(Find(source, QStringLiteral("h")), QStringLiteral("tip"));
    QCOMPARE(Rows(table), rows);

    source.removeRows(Find(source, QStringLiteral("t1")).row(), 1);
    source.removeRows(Find(source, QStringLiteral("f")).row(), 1);
    QCOMPARE(table.rowCount(), 4);
    QCOMPARE(Rows(table), Lines("/- - -|/- - -|/h - -|- t2 -"));
    QCOMPARE(reset.count() + changed.count(), 0);

    Q_EMIT source.ModelUpdated();
    QCOMPARE(reset.count(), 1);
    QCOMPARE(Rows(table), Lines("/- - -|/- - -|/a - -|/h - -|t0 t2 -"));
}

void tst_ZVBatchInputTableModel::listensToNothingElse()
{
    ResettableModel source;
    ZVBatchInputTableModel table(&source, nullptr);
    const QMetaObject& metaObject = ResettableModel::staticMetaObject;
    for (int i = 0; i < metaObject.methodCount(); ++i) {
        const QMetaMethod method = metaObject.method(i);
        if (method.methodType() == QMetaMethod::Signal) {
            const QByteArray signature = method.methodSignature();
            const bool isHeard = signature == "modelReset()" || signature == "ModelUpdated()";
            QCOMPARE(source.ReceiverCount('2' + signature), isHeard ? 1 : 0);
        }
    }
}

void tst_ZVBatchInputTableModel::topLevelFiles_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QStringList>("rows");

    QTest::newRow("none") << 0 << QStringList();
    QTest::newRow("one") << 1 << Lines("1 - -");
    QTest::newRow("two") << 2 << Lines("1 2 -");
    QTest::newRow("three") << 3 << Lines("1 2 3");
    QTest::newRow("four") << 4 << Lines("1 2 3|4 - -");
    QTest::newRow("seven") << 7 << Lines("1 2 3|4 5 6|7 - -");
}

void tst_ZVBatchInputTableModel::topLevelFiles()
{
    QFETCH(int, count);
    QFETCH(QStringList, rows);

    ZTBatchInputModel source;
    for (int i = count; i > 0; --i) {
        source.InsertBranch(NewFile(QString::number(i)), QModelIndex());
    }
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    QCOMPARE(Rows(table), rows);
    QVERIFY(!table.HasFolder());
}

void tst_ZVBatchInputTableModel::columnsOfRows()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    for (int row = 0; row < table.rowCount(); ++row) {
        for (int column = 0; column < 3; ++column) {
            QVERIFY(table.index(row, column).isValid());
            QCOMPARE(table.flags(table.index(row, column)),
                     Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren);
        }
        QVERIFY(!table.index(row, 3).isValid());
    }
    QVERIFY(!table.index(table.rowCount(), 0).isValid());
}

void tst_ZVBatchInputTableModel::parentIsIgnored()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    QCOMPARE(table.rowCount(table.index(0, 0)), 4);
    QCOMPARE(table.columnCount(table.index(0, 0)), 3);
}

void tst_ZVBatchInputTableModel::dataOfCells()
{
    ZTBatchInputModel source;
    Fill(source);
    source.setToolTip(Find(source, QStringLiteral("t2")), QStringLiteral("tip"));
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();

    QVERIFY(!table.data(QModelIndex()).isValid());
    QCOMPARE(table.data(table.index(0, 0)).toString(), QDir::toNativeSeparators(QStringLiteral("/in/f")));
    QVERIFY(!table.data(table.index(0, 1)).isValid());
    QVERIFY(!table.data(table.index(0, 2)).isValid());
    QCOMPARE(table.data(table.index(3, 1)).toString(), QDir::toNativeSeparators(QStringLiteral("/in/t2")));
    QCOMPARE(table.data(table.index(3, 1), Qt::ToolTipRole).toString(), QStringLiteral("tip"));
    QVERIFY(!table.data(table.index(3, 2)).isValid());

    // The table keeps no data of its own: it returns what the source returns now.
    source.getNodeData(Find(source, QStringLiteral("t2")))->fileName = QStringLiteral("/in/renamed");
    QCOMPARE(CellText(table, 3, 1), QStringLiteral("renamed"));
}

void tst_ZVBatchInputTableModel::rolesPassThrough()
{
    class EchoModel : public ZTBatchInputModel
    {
    public:
        QVariant data(const QModelIndex& index, int role) const override
        {
            return QStringLiteral("%1 as %2").arg(getNodeData(index)->inputText).arg(role);
        }
    };
    EchoModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    for (const int role : {-1, int(Qt::DisplayRole), int(Qt::DecorationRole), int(Qt::UserRole) + 5}) {
        QCOMPARE(table.data(table.index(0, 0), role).toString(), QStringLiteral("f as %1").arg(role));
        QCOMPARE(table.data(table.index(3, 1), role).toString(), QStringLiteral("t2 as %1").arg(role));
        QVERIFY(!table.data(table.index(0, 1), role).isValid());
        QVERIFY(!table.data(table.index(3, 2), role).isValid());
        QVERIFY(!table.data(QModelIndex(), role).isValid());
    }
}

void tst_ZVBatchInputTableModel::updateSelection()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    QSignalSpy selection(&table, &ZVBatchInputTableModel::UpdateSelectionModel);

    table.UpdateSelection(true);
    QCOMPARE(selection.count(), 0);
    Q_EMIT source.ModelUpdated();
    QCOMPARE(selection.count(), 1);
    Q_EMIT source.ModelUpdated();
    QCOMPARE(selection.count(), 1);

    table.UpdateSelection(true);
    table.UpdateSelection(false);
    Q_EMIT source.ModelUpdated();
    QCOMPARE(selection.count(), 1);

    // The request is cleared after the signal, so a request that a handler makes is lost.
    connect(&table, &ZVBatchInputTableModel::UpdateSelectionModel, this, [&] { table.UpdateSelection(true); });
    table.UpdateSelection(true);
    table.rebuild();
    QCOMPARE(selection.count(), 2);
    table.rebuild();
    QCOMPARE(selection.count(), 2);
}

void tst_ZVBatchInputTableModel::updateSelectionSignalComesAfterTheReset()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    QStringList calls;
    connect(&table, &QAbstractItemModel::modelAboutToBeReset, this,
            [&] { calls << QStringLiteral("before %1").arg(table.rowCount()); });
    connect(&table, &QAbstractItemModel::modelReset, this,
            [&] { calls << QStringLiteral("after %1").arg(table.rowCount()); });
    connect(&table, &ZVBatchInputTableModel::UpdateSelectionModel, this,
            [&] { calls << QStringLiteral("selection %1").arg(table.rowCount()); });
    table.toggleFolder(Find(source, QStringLiteral("f")));
    QCOMPARE(calls, Lines("before 0|after 6|selection 6"));
}

void tst_ZVBatchInputTableModel::rebuildBearsHandlersThatDelete_data()
{
    QTest::addColumn<bool>("atReset");

    QTest::newRow("at the reset") << true;
    QTest::newRow("at the selection signal") << false;
}

void tst_ZVBatchInputTableModel::rebuildBearsHandlersThatDelete()
{
    QFETCH(bool, atReset);

    ZTBatchInputModel source;
    Fill(source);
    QPointer<ZVBatchInputTableModel> table(new ZVBatchInputTableModel(&source, nullptr));
    if (atReset) {
        connect(table.data(), &QAbstractItemModel::modelReset, this, [&] { delete table.data(); });
    } else {
        connect(table.data(), &ZVBatchInputTableModel::UpdateSelectionModel, this, [&] { delete table.data(); });
    }
    table->toggleFolder(source.index(0, 0));
    QVERIFY(table.isNull());
}

void tst_ZVBatchInputTableModel::outlivesItsSource()
{
    auto source = std::make_unique<ZTBatchInputModel>();
    Fill(*source);
    ZVBatchInputTableModel table(source.get(), nullptr);
    table.toggleFolder(source->index(0, 0));
    source.reset();
    QCOMPARE(Rows(table), Lines("/- - -|- - -|- - -|/- - -|/- - -|- - -"));
    QVERIFY(table.sourceModel() == nullptr);
    table.rebuild();
    QCOMPARE(table.rowCount(), 0);
}

void tst_ZVBatchInputTableModel::leavesItsSourceAlone()
{
    ZTBatchInputModel source;
    Fill(source);
    {
        ZVBatchInputTableModel table(&source, nullptr);
        table.toggleFolder(source.index(0, 0));
    }
    QCOMPARE(source.rowCount(), 4);
    QCOMPARE(source.GetFileNodesCount(), 8);
    Q_EMIT source.ModelUpdated();
}

void tst_ZVBatchInputTableModel::modelTester()
{
    // The table ignores the parent, which the tester would take for rows within rows.
    class FlatTable : public ZVBatchInputTableModel
    {
    public:
        using ZVBatchInputTableModel::ZVBatchInputTableModel;
        int rowCount(const QModelIndex& parent) const override
        {
            return parent.isValid() ? 0 : ZVBatchInputTableModel::rowCount(parent);
        }
        int columnCount(const QModelIndex& parent) const override
        {
            return parent.isValid() ? 0 : ZVBatchInputTableModel::columnCount(parent);
        }
    };
    ResettableModel source;
    Fill(source);
    FlatTable table(&source, nullptr);
    const QAbstractItemModelTester tester(&table, QAbstractItemModelTester::FailureReportingMode::QtTest);
    table.rebuild();
    table.toggleFolder(Find(source, QStringLiteral("f")));
    source.InsertBranch(NewFolder(QStringLiteral("a"), {NewFile(QStringLiteral("a1"))}), QModelIndex());
    Q_EMIT source.ModelUpdated();
    table.toggleFolder(Find(source, QStringLiteral("a")));
    source.Reset();
    source.removeRows(0, source.rowCount());
    table.rebuild();
    QCOMPARE(table.rowCount(QModelIndex()), 0);
}

void tst_ZVBatchInputTableModel::deepTree()
{
    constexpr int levels = 100000;
    ZTBatchInputModel source;
    QModelIndex folder;
    for (int level = 0; level < levels; ++level) {
        folder = source.InsertBranch(NewFolder(QString::number(level)), folder);
    }
    source.InsertBranch(NewFile(QStringLiteral("file")), folder);
    ZVBatchInputTableModel table(&source, nullptr);
    table.toggleFolder(folder);
    QCOMPARE(table.rowCount(), levels + 1);
    QCOMPARE(CellText(table, levels - 1, 0), QString::number(levels - 1));
    QCOMPARE(CellText(table, levels, 0), QStringLiteral("file"));
    QCOMPARE(table.mapFromSource(folder), table.index(levels - 1, 0));
}

QTEST_GUILESS_MAIN(tst_ZVBatchInputTableModel)
#include "tst_zvbatchinputtablemodel.moc"
