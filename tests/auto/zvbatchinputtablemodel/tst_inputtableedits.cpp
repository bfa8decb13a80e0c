// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputNodes.h"
#include "RandomEdits.h"
#include "ZVBatchInputTableModel.h"

#include <QPersistentModelIndex>
#include <QtTest>

#include <random>

/// Random edits of the source and toggles of the table. After each, every cell and every search is compared with the
/// rows of the last rebuild, which the test keeps as plain lists.
class tst_InputTableEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomEdits_data();
    void randomEdits();
};

namespace {

/// One expected row since the last rebuild.
struct PlainRow
{
    bool isFolder;
    QVector<QPersistentModelIndex> indexes;
};

class Editor
{
public:
    explicit Editor(unsigned seed)
        : random(seed)
        , table(&source, nullptr)
    {
    }

    void Edit()
    {
        switch (Random(8)) {
        case 0:
        case 1:
            lastEdit = QStringLiteral("branch");
            source.InsertBranch(MakeBranch(3), RandomFolder());
            break;
        case 2:
            RemoveRows();
            break;
        case 3:
            InsertRows();
            break;
        case 4:
            lastEdit = QStringLiteral("updated");
            Q_EMIT source.ModelUpdated();
            RebuildPlainRows();
            break;
        default:
            Toggle();
            break;
        }
    }

    /// The first difference between the table and the expected rows; empty if there is none.
    QString Difference() const
    {
        if (table.rowCount() != rows.size()) {
            return QStringLiteral("%1 rows, not %2").arg(table.rowCount()).arg(rows.size());
        }
        for (int row = 0; row < rows.size(); ++row) {
            const PlainRow& plainRow = rows.at(row);
            if (table.isFolderRow(row) != plainRow.isFolder) {
                return QStringLiteral("row %1 is of the wrong kind").arg(row);
            }
            for (int column = 0; column < 3; ++column) {
                const QModelIndex expected =
                    plainRow.isFolder ? plainRow.indexes.first() : plainRow.indexes.value(column);
                if (table.mapToSource(table.index(row, column)) != expected) {
                    return QStringLiteral("row %1 column %2 leads elsewhere").arg(row).arg(column);
                }
            }
        }
        return SearchDifference(QModelIndex());
    }

    QString lastEdit;

private:
    int Random(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random); }

    InputNode* MakeBranch(int depth)
    {
        const QString text = QString::number(Random(1000));
        if (depth == 0 || Random(2) == 0) {
            return NewFile(text);
        }
        QList<InputNode*> children;
        for (int i = Random(6); i > 0; --i) {
            children.append(MakeBranch(depth - 1));
        }
        return NewFolder(text, children);
    }

    QModelIndex RandomFolder()
    {
        QModelIndex folder;
        while (Random(3) != 0) {
            QModelIndexList inside;
            for (int row = 0; row < source.rowCount(folder); ++row) {
                const QModelIndex child = source.index(row, 0, folder);
                if (source.getNodeData(child)->type == Folder) {
                    inside.append(child);
                }
            }
            if (inside.isEmpty()) {
                break;
            }
            folder = inside.at(Random(inside.size()));
        }
        return folder;
    }

    void RemoveRows()
    {
        lastEdit = QStringLiteral("rows removed");
        const QModelIndex folder = RandomFolder();
        const int count = source.rowCount(folder);
        if (count > 0) {
            const int first = Random(count);
            // Sometimes more rows than there are.
            source.removeRows(first, 1 + Random(qMin(3, count - first)) + (Random(8) == 0 ? 3 : 0), folder);
        }
    }

    void InsertRows()
    {
        const QModelIndex folder = RandomFolder();
        const int count = Random(3);
        lastEdit = QStringLiteral("%1 rows inserted").arg(count);
        source.insertRows(Random(source.rowCount(folder) + 1), count, folder);
    }

    void Toggle()
    {
        lastEdit = QStringLiteral("toggled");
        const QModelIndex folder = RandomFolder();
        table.toggleFolder(folder);
        if (folder.isValid()) {
            const int place = expanded.indexOf(folder);
            if (place < 0) {
                expanded.append(folder);
            } else {
                expanded.removeAt(place);
            }
            RebuildPlainRows();
        }
    }

    void RebuildPlainRows()
    {
        rows.clear();
        QModelIndexList files;
        for (int row = 0; row < source.rowCount(); ++row) {
            const QModelIndex child = source.index(row, 0);
            if (source.getNodeData(child)->type == Folder) {
                AddFolder(child);
            } else {
                files.append(child);
            }
        }
        AddFiles(files);
    }

    void AddFolder(const QModelIndex& folder)
    {
        rows.append(PlainRow{true, {folder}});
        QModelIndexList files;
        QModelIndexList folders;
        for (int row = 0; row < source.rowCount(folder); ++row) {
            const QModelIndex child = source.index(row, 0, folder);
            (source.getNodeData(child)->type == Folder ? folders : files).append(child);
        }
        if (expanded.contains(folder)) {
            AddFiles(files);
        }
        for (const QModelIndex& child : qAsConst(folders)) {
            AddFolder(child);
        }
    }

    void AddFiles(const QModelIndexList& files)
    {
        for (int i = 0; i < files.size(); ++i) {
            if (i % 3 == 0) {
                rows.append(PlainRow{false, {}});
            }
            rows.last().indexes.append(files.at(i));
        }
    }

    /// The first cell with `sourceIndex`, found by a linear search.
    QModelIndex FirstCell(const QModelIndex& sourceIndex) const
    {
        for (int row = 0; row < rows.size(); ++row) {
            for (int column = 0; column < rows.at(row).indexes.size(); ++column) {
                if (rows.at(row).indexes.at(column) == sourceIndex) {
                    return table.index(row, column);
                }
            }
        }
        return QModelIndex();
    }

    QString SearchDifference(const QModelIndex& sourceIndex) const
    {
        const QModelIndex cell = FirstCell(sourceIndex);
        const QModelIndex found = table.mapFromSource(sourceIndex);
        if (cell != found) {
            return QStringLiteral("found in row %1 column %2, not in row %3 column %4")
                .arg(found.row())
                .arg(found.column())
                .arg(cell.row())
                .arg(cell.column());
        }
        if (table.isFolderExpanded(sourceIndex) != (sourceIndex.isValid() && expanded.contains(sourceIndex))) {
            return QStringLiteral("expanded against expectation");
        }
        for (int row = 0; row < source.rowCount(sourceIndex); ++row) {
            const QString difference = SearchDifference(source.index(row, 0, sourceIndex));
            if (!difference.isEmpty()) {
                return difference;
            }
        }
        return QString();
    }

    std::mt19937 random;
    ZTBatchInputModel source;
    ZVBatchInputTableModel table;
    QVector<PlainRow> rows;
    QList<QPersistentModelIndex> expanded;
};

} // namespace

void tst_InputTableEdits::randomEdits_data()
{
    AddSeeds();
}

void tst_InputTableEdits::randomEdits()
{
    QFETCH(unsigned, seed);

    const QString difference = FirstDifference<Editor>(seed, 200);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

QTEST_GUILESS_MAIN(tst_InputTableEdits)
#include "tst_inputtableedits.moc"
