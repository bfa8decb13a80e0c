// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputTable.h"

#include <QDir>

void Fill(ZTBatchInputModel& model)
{
    model.InsertBranch(NewFolder(QStringLiteral("f"), {NewFolder(QStringLiteral("g"), {NewFile(QStringLiteral("g1"))}),
                                                       NewFile(QStringLiteral("f1")), NewFile(QStringLiteral("f2")),
                                                       NewFile(QStringLiteral("f3")), NewFile(QStringLiteral("f4"))}),
                       QModelIndex());
    model.InsertBranch(NewFolder(QStringLiteral("h"), {NewFile(QStringLiteral("h1"))}), QModelIndex());
    model.InsertBranch(NewFile(QStringLiteral("t1")), QModelIndex());
    model.InsertBranch(NewFile(QStringLiteral("t2")), QModelIndex());
}

QString CellText(const ZVBatchInputTableModel& table, int row, int column)
{
    return QDir::fromNativeSeparators(table.data(table.index(row, column)).toString()).mid(int(qstrlen("/in/")));
}

QStringList Rows(const ZVBatchInputTableModel& table)
{
    QStringList rows;
    for (int row = 0; row < table.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table.columnCount(); ++column) {
            const QString text = CellText(table, row, column);
            cells.append(text.isEmpty() ? QStringLiteral("-") : text);
        }
        rows.append((table.isFolderRow(row) ? QStringLiteral("/") : QString()) + cells.join(QLatin1Char(' ')));
    }
    return rows;
}

QStringList Lines(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char('|'));
}

QModelIndex Find(const ZTBatchInputModel& model, const QString& text, const QModelIndex& parent)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (model.getNodeData(index)->inputText == text) {
            return index;
        }
        const QModelIndex below = Find(model, text, index);
        if (below.isValid()) {
            return below;
        }
    }
    return QModelIndex();
}
