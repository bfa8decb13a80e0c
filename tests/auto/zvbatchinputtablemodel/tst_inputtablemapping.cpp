// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputTable.h"

#include <QPointer>
#include <QtTest>

/// Mapping indexes from the table to its source and back, also while the source changes.
class tst_InputTableMapping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mapToSource();
    void mapFromSource();
    void mapFromSourceAfterChanges();
    void mapFromSourceOfInvalidIndex();
    void mapFromSourceOfForeignIndex();
    void mapFromSourceOfDestroyedNode();
    void manyNodesCostNoPersistentIndexes();
    void resetIsKnownBeforeItIsTold();
    void insertionsBelowZeroAreBorne();
    void tablesComeAndGo();
};

void tst_InputTableMapping::mapToSource()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    QVERIFY(!table.mapToSource(QModelIndex()).isValid());
    for (int column = 0; column < 3; ++column) {
        QCOMPARE(table.mapToSource(table.index(1, column)), Find(source, QStringLiteral("g")));
    }
    QCOMPARE(table.mapToSource(table.index(3, 0)), Find(source, QStringLiteral("t1")));
    QCOMPARE(table.mapToSource(table.index(3, 1)), Find(source, QStringLiteral("t2")));
    QVERIFY(!table.mapToSource(table.index(3, 2)).isValid());

    // An index that is older than a rebuild which has made the table shorter.
    const QModelIndex old = table.index(3, 0);
    source.removeRows(0, source.rowCount());
    table.rebuild();
    QVERIFY(!table.mapToSource(old).isValid());
    QVERIFY(!table.data(old).isValid());
}

void tst_InputTableMapping::mapFromSource()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("f"))), table.index(0, 0));
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("g"))), table.index(1, 0));
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("t1"))), table.index(3, 0));
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("t2"))), table.index(3, 1));
    QVERIFY(!table.mapFromSource(Find(source, QStringLiteral("f1"))).isValid());
    QVERIFY(!table.mapFromSource(Find(source, QStringLiteral("g1"))).isValid());
    QVERIFY(!table.mapFromSource(QModelIndex()).isValid());

    table.toggleFolder(Find(source, QStringLiteral("f")));
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("f1"))), table.index(1, 0));
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("f4"))), table.index(2, 0));
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("t2"))), table.index(5, 1));
    QVERIFY(!table.mapFromSource(Find(source, QStringLiteral("g1"))).isValid());
}

void tst_InputTableMapping::mapFromSourceAfterChanges()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    const QModelIndex oldPlace = Find(source, QStringLiteral("t1"));
    QCOMPARE(table.mapFromSource(oldPlace), table.index(3, 0));

    source.InsertBranch(NewFolder(QStringLiteral("a")), QModelIndex());
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("t1"))), table.index(3, 0));
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("g"))), table.index(1, 0));
    QVERIFY(!table.mapFromSource(Find(source, QStringLiteral("a"))).isValid());
    // An index with the node's old row is outdated.
    QVERIFY(!table.mapFromSource(oldPlace).isValid());

    source.removeRows(Find(source, QStringLiteral("t1")).row(), 1);
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("t2"))), table.index(3, 1));
    // A new node often gets the address of one that has just been deleted. It is in no cell nevertheless.
    for (int i = 0; i < 100; ++i) {
        const QModelIndex fresh = source.InsertBranch(NewFile(QStringLiteral("t1")), QModelIndex());
        QVERIFY(!table.mapFromSource(fresh).isValid());
        source.removeRows(fresh.row(), 1);
    }
}

void tst_InputTableMapping::mapFromSourceOfInvalidIndex()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.toggleFolder(Find(source, QStringLiteral("f")));
    QVERIFY(!table.mapFromSource(QModelIndex()).isValid());

    // The index of a removed node equals an invalid one, so the first cell that has lost its node is found.
    source.removeRows(Find(source, QStringLiteral("t2")).row(), 1);
    QCOMPARE(table.mapFromSource(QModelIndex()), table.index(5, 1));
    source.removeRows(Find(source, QStringLiteral("h")).row(), 1);
    QCOMPARE(table.mapFromSource(QModelIndex()), table.index(4, 0));
    source.removeRows(Find(source, QStringLiteral("f3")).row(), 1, Find(source, QStringLiteral("f")));
    QCOMPARE(table.mapFromSource(QModelIndex()), table.index(1, 2));
    table.rebuild();
    QVERIFY(!table.mapFromSource(QModelIndex()).isValid());
}

void tst_InputTableMapping::mapFromSourceOfForeignIndex()
{
    ZTBatchInputModel source;
    Fill(source);
    ZTBatchInputModel other;
    Fill(other);
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    QVERIFY(!table.mapFromSource(other.index(0, 0)).isValid());
    QVERIFY(!table.mapFromSource(table.index(0, 0)).isValid());
    QVERIFY(!table.isFolderExpanded(other.index(0, 0)));
}

void tst_InputTableMapping::mapFromSourceOfDestroyedNode()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.toggleFolder(Find(source, QStringLiteral("f")));
    const QModelIndexList old{Find(source, QStringLiteral("f")), Find(source, QStringLiteral("g")),
                              Find(source, QStringLiteral("f1")), Find(source, QStringLiteral("t1"))};
    source.removeRows(Find(source, QStringLiteral("t1")).row(), 1);
    source.removeRows(Find(source, QStringLiteral("f")).row(), 1);
    for (const QModelIndex& index : old) {
        QVERIFY(!table.mapFromSource(index).isValid());
    }
    table.rebuild();
    for (const QModelIndex& index : old) {
        QVERIFY(!table.mapFromSource(index).isValid());
    }
}

void tst_InputTableMapping::manyNodesCostNoPersistentIndexes()
{
    // Qt updates every persistent index at each change of the source.
    ResettableModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.toggleFolder(Find(source, QStringLiteral("f")));
    table.toggleFolder(Find(source, QStringLiteral("h")));
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("f4"))), table.index(2, 0));
    QCOMPARE(source.PersistentIndexCount(), 2);
    table.toggleFolder(Find(source, QStringLiteral("h")));
    QCOMPARE(source.PersistentIndexCount(), 1);
}

void tst_InputTableMapping::resetIsKnownBeforeItIsTold()
{
    // A receiver that was connected to the source before the table existed gets the signal of the reset first.
    ResettableModel source;
    Fill(source);
    QPointer<ZVBatchInputTableModel> table;
    QStringList rows;
    connect(&source, &QAbstractItemModel::modelReset, this, [&] { rows = Rows(*table); });
    ZVBatchInputTableModel madeLater(&source, nullptr);
    table = &madeLater;
    table->toggleFolder(Find(source, QStringLiteral("f")));
    source.Reset();
    QCOMPARE(rows, Lines("/- - -|- - -|- - -|/- - -|/- - -|- - -"));
    QCOMPARE(Rows(*table), Lines("/f - -|/g - -|/h - -|t1 t2 -"));
}

void tst_InputTableMapping::insertionsBelowZeroAreBorne()
{
    // Such an insertion is announced but changes nothing, so that every cell behind it shows the node of an earlier
    // row. That holds for the cells of a folder too; its files do not change.
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.toggleFolder(Find(source, QStringLiteral("h")));
    QCOMPARE(Rows(table), Lines("/f - -|/g - -|/h - -|h1 - -|t1 t2 -"));
    source.insertRows(1, -1);
    QCOMPARE(Rows(table), Lines("/f - -|/g - -|/f - -|h1 - -|h t1 -"));
    // Of two cells with the same node the first is found.
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("f"))), table.index(0, 0));
    QCOMPARE(table.mapFromSource(Find(source, QStringLiteral("h"))), table.index(4, 0));
    QVERIFY(!table.mapFromSource(Find(source, QStringLiteral("t2"))).isValid());

    // The files still have their folder.
    source.removeRows(Find(source, QStringLiteral("h")).row(), 1);
    QCOMPARE(Rows(table).at(3), QStringLiteral("- - -"));
    source.removeRows(0, source.rowCount());
    QCOMPARE(Rows(table), Lines("/- - -|/- - -|/- - -|- - -|- - -"));
}

void tst_InputTableMapping::tablesComeAndGo()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel stays(&source, nullptr);
    stays.rebuild();
    {
        ZVBatchInputTableModel goes(&source, nullptr);
        goes.rebuild();
        source.InsertBranch(NewFile(QStringLiteral("t0")), QModelIndex());
        QCOMPARE(Rows(goes), Lines("/f - -|/g - -|/h - -|t1 t2 -"));
    }
    source.InsertBranch(NewFolder(QStringLiteral("a")), QModelIndex());
    source.removeRows(Find(source, QStringLiteral("t1")).row(), 1);
    QCOMPARE(Rows(stays), Lines("/f - -|/g - -|/h - -|- t2 -"));
}

QTEST_GUILESS_MAIN(tst_InputTableMapping)
#include "tst_inputtablemapping.moc"
