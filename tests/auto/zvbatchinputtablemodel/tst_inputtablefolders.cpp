// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputTable.h"

#include <QSignalSpy>
#include <QtTest>

/// The rows of folders, and expanding and collapsing folders.
class tst_InputTableFolders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void foldersInDepthFirstOrder();
    void expandedFolderShowsItsOwnFiles();
    void foldersBehindFilesAreFoldersStill();

    void toggledTwice();
    void toggleOfInvalidIndexDoesNothing();
    void toggleOfFileIsKept();
    void expandedFoldersFollowTheSource();
    void expandedFolderThatLeft();
    void sourceResetForgetsExpandedFolders();

    void isFolderRow();
};

void tst_InputTableFolders::foldersInDepthFirstOrder()
{
    ZTBatchInputModel source;
    source.InsertBranch(
        NewFolder(QStringLiteral("2"), {NewFolder(QStringLiteral("22"), {NewFolder(QStringLiteral("221"))}),
                                        NewFolder(QStringLiteral("21"), {NewFile(QStringLiteral("hidden"))})}),
        QModelIndex());
    source.InsertBranch(NewFolder(QStringLiteral("1"), {NewFolder(QStringLiteral("11"))}), QModelIndex());
    source.InsertBranch(NewFolder(QStringLiteral("3")), QModelIndex());
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    QCOMPARE(Rows(table), Lines("/1 - -|/11 - -|/2 - -|/21 - -|/22 - -|/221 - -|/3 - -"));
    QVERIFY(table.HasFolder());
}

void tst_InputTableFolders::expandedFolderShowsItsOwnFiles()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.toggleFolder(Find(source, QStringLiteral("f")));
    QCOMPARE(Rows(table), Lines("/f - -|f1 f2 f3|f4 - -|/g - -|/h - -|t1 t2 -"));
    table.toggleFolder(Find(source, QStringLiteral("g")));
    QCOMPARE(Rows(table), Lines("/f - -|f1 f2 f3|f4 - -|/g - -|g1 - -|/h - -|t1 t2 -"));
    // Collapsing hides only a folder's own files; an expanded sub-folder stays expanded.
    table.toggleFolder(Find(source, QStringLiteral("f")));
    QCOMPARE(Rows(table), Lines("/f - -|/g - -|g1 - -|/h - -|t1 t2 -"));
    QVERIFY(table.isFolderExpanded(Find(source, QStringLiteral("g"))));
    QVERIFY(!table.isFolderExpanded(Find(source, QStringLiteral("f"))));

    // An expanded folder without files adds no row.
    source.InsertBranch(NewFolder(QStringLiteral("empty"), {NewFolder(QStringLiteral("inner"))}), QModelIndex());
    table.toggleFolder(Find(source, QStringLiteral("empty")));
    QCOMPARE(Rows(table), Lines("/empty - -|/inner - -|/f - -|/g - -|g1 - -|/h - -|t1 t2 -"));
}

void tst_InputTableFolders::foldersBehindFilesAreFoldersStill()
{
    // insertRows() makes folders at any row.
    ZTBatchInputModel source;
    Fill(source);
    source.insertRows(4, 1);
    source.getNodeData(source.index(4, 0))->fileName = QStringLiteral("/in/last");
    source.getNodeData(source.index(0, 0))->type = 7;
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    QCOMPARE(Rows(table), Lines("/h - -|/last - -|f t1 t2"));
}

void tst_InputTableFolders::toggledTwice()
{
    ZTBatchInputModel source;
    source.InsertBranch(NewFolder(QStringLiteral("f"), {NewFolder(QStringLiteral("g")), NewFile(QStringLiteral("1")),
                                                        NewFile(QStringLiteral("2"))}),
                        QModelIndex());
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    QSignalSpy selection(&table, &ZVBatchInputTableModel::UpdateSelectionModel);
    QCOMPARE(Rows(table), Lines("/f - -|/g - -"));

    table.toggleFolder(table.mapToSource(table.index(0, 0)));
    QCOMPARE(Rows(table), Lines("/f - -|1 2 -|/g - -"));
    QCOMPARE(selection.count(), 1);
    QVERIFY(table.isFolderExpanded(source.index(0, 0)));

    table.toggleFolder(table.mapToSource(table.index(0, 2)));
    QCOMPARE(Rows(table), Lines("/f - -|/g - -"));
    QCOMPARE(selection.count(), 2);
    QVERIFY(!table.isFolderExpanded(source.index(0, 0)));

    table.rebuild();
    QCOMPARE(selection.count(), 2);
}

void tst_InputTableFolders::toggleOfInvalidIndexDoesNothing()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    QSignalSpy reset(&table, &QAbstractItemModel::modelReset);
    QSignalSpy selection(&table, &ZVBatchInputTableModel::UpdateSelectionModel);
    table.toggleFolder(QModelIndex());
    QCOMPARE(reset.count(), 0);
    QVERIFY(!table.isFolderExpanded(QModelIndex()));
    table.rebuild();
    QCOMPARE(selection.count(), 0);
}

void tst_InputTableFolders::toggleOfFileIsKept()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    QSignalSpy selection(&table, &ZVBatchInputTableModel::UpdateSelectionModel);
    const QModelIndex file = Find(source, QStringLiteral("t1"));
    table.toggleFolder(file);
    QVERIFY(table.isFolderExpanded(file));
    QCOMPARE(selection.count(), 1);
    QCOMPARE(Rows(table), Lines("/f - -|/g - -|/h - -|t1 t2 -"));
    table.toggleFolder(file);
    QVERIFY(!table.isFolderExpanded(file));
}

void tst_InputTableFolders::expandedFoldersFollowTheSource()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.toggleFolder(Find(source, QStringLiteral("h")));
    table.toggleFolder(Find(source, QStringLiteral("g")));

    source.InsertBranch(NewFolder(QStringLiteral("a"), {NewFile(QStringLiteral("a1"))}), QModelIndex());
    source.InsertBranch(NewFolder(QStringLiteral("fa"), {NewFile(QStringLiteral("fa1"))}),
                        Find(source, QStringLiteral("f")));
    Q_EMIT source.ModelUpdated();
    QCOMPARE(Rows(table), Lines("/a - -|/f - -|/fa - -|/g - -|g1 - -|/h - -|h1 - -|t1 t2 -"));

    source.removeRows(0, 1);
    source.removeRows(0, 1, Find(source, QStringLiteral("f")));
    Q_EMIT source.ModelUpdated();
    QCOMPARE(Rows(table), Lines("/f - -|/g - -|g1 - -|/h - -|h1 - -|t1 t2 -"));
    QVERIFY(table.isFolderExpanded(Find(source, QStringLiteral("h"))));
    QVERIFY(table.isFolderExpanded(Find(source, QStringLiteral("g"))));
    QVERIFY(!table.isFolderExpanded(Find(source, QStringLiteral("f"))));
}

void tst_InputTableFolders::expandedFolderThatLeft()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.toggleFolder(Find(source, QStringLiteral("h")));
    source.removeRows(Find(source, QStringLiteral("h")).row(), 1);
    table.rebuild();
    QCOMPARE(Rows(table), Lines("/f - -|/g - -|t1 t2 -"));

    // A folder of the same name, perhaps at the same address, is another folder.
    source.InsertBranch(NewFolder(QStringLiteral("h"), {NewFile(QStringLiteral("h1"))}), QModelIndex());
    table.rebuild();
    QCOMPARE(Rows(table), Lines("/f - -|/g - -|/h - -|t1 t2 -"));
    QVERIFY(!table.isFolderExpanded(Find(source, QStringLiteral("h"))));
    QVERIFY(!table.isFolderExpanded(QModelIndex()));
    table.toggleFolder(Find(source, QStringLiteral("h")));
    QCOMPARE(Rows(table), Lines("/f - -|/g - -|/h - -|h1 - -|t1 t2 -"));
}

void tst_InputTableFolders::sourceResetForgetsExpandedFolders()
{
    // A reset invalidates all persistent indexes of the source.
    ResettableModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    table.toggleFolder(Find(source, QStringLiteral("h")));
    source.Reset();
    QCOMPARE(Rows(table), Lines("/f - -|/g - -|/h - -|t1 t2 -"));
    QVERIFY(!table.isFolderExpanded(Find(source, QStringLiteral("h"))));
}

void tst_InputTableFolders::isFolderRow()
{
    ZTBatchInputModel source;
    Fill(source);
    ZVBatchInputTableModel table(&source, nullptr);
    QVERIFY(!table.isFolderRow(0));
    table.rebuild();
    QCOMPARE(table.rowCount(), 4);
    QVERIFY(!table.isFolderRow(-1));
    QVERIFY(table.isFolderRow(0));
    QVERIFY(table.isFolderRow(2));
    QVERIFY(!table.isFolderRow(3));
    QVERIFY(!table.isFolderRow(4));
}

QTEST_GUILESS_MAIN(tst_InputTableFolders)
#include "tst_inputtablefolders.moc"
