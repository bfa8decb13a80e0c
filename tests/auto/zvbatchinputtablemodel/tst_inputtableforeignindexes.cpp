// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputNodes.h"
#include "ZVBatchInputTableModel.h"

#include <QSignalSpy>
#include <QStandardItemModel>
#include <QtTest>

#include <memory>

/// What the table makes of indexes that are not its source's.
class tst_InputTableForeignIndexes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toggleFolderIgnoresThem_data();
    void toggleFolderIgnoresThem();
    void toggleFolderIgnoresThemWithoutSource();
};

void tst_InputTableForeignIndexes::toggleFolderIgnoresThem_data()
{
    QTest::addColumn<QString>("model");
    QTest::newRow("another input model") << QStringLiteral("input");
    QTest::newRow("another kind of model") << QStringLiteral("standard");
    QTest::newRow("the table itself") << QStringLiteral("table");
}

void tst_InputTableForeignIndexes::toggleFolderIgnoresThem()
{
    QFETCH(QString, model);

    ZTBatchInputModel source;
    const QModelIndex folder = source.InsertBranch(NewFolder(QStringLiteral("a")), QModelIndex());
    source.InsertBranch(NewFile(QStringLiteral("b")), folder);
    ZVBatchInputTableModel table(&source, nullptr);
    table.rebuild();
    ZTBatchInputModel otherSource;
    otherSource.InsertBranch(NewFolder(QStringLiteral("a")), QModelIndex());
    QStandardItemModel standard(1, 1);
    const QAbstractItemModel* const foreign = model == QLatin1String("input") ? &otherSource
                                              : model == QLatin1String("standard")
                                                  ? &standard
                                                  : static_cast<QAbstractItemModel*>(&table);
    const QModelIndex index = foreign->index(0, 0);
    QVERIFY(index.isValid());

    QSignalSpy resets(&table, &QAbstractItemModel::modelReset);
    QSignalSpy updates(&table, &ZVBatchInputTableModel::UpdateSelectionModel);
    table.toggleFolder(index);
    QCOMPARE(resets.count(), 0);
    QCOMPARE(updates.count(), 0);
    QVERIFY(!table.isFolderExpanded(index));
    QCOMPARE(table.rowCount(), 1);
    // Nothing is left over that a later rebuild could stumble on.
    table.toggleFolder(folder);
    QCOMPARE(table.rowCount(), 2);
    QCOMPARE(updates.count(), 1);
}

void tst_InputTableForeignIndexes::toggleFolderIgnoresThemWithoutSource()
{
    auto source = std::make_unique<ZTBatchInputModel>();
    ZVBatchInputTableModel table(source.get(), nullptr);
    source.reset();
    ZTBatchInputModel other;
    QSignalSpy resets(&table, &QAbstractItemModel::modelReset);
    table.toggleFolder(other.InsertBranch(NewFolder(QStringLiteral("a")), QModelIndex()));
    QCOMPARE(resets.count(), 0);
}

QTEST_GUILESS_MAIN(tst_InputTableForeignIndexes)
#include "tst_inputtableforeignindexes.moc"
