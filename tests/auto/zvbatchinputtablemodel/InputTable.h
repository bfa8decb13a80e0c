// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "InputNodes.h"
#include "ZVBatchInputTableModel.h"

#include <QStringList>

/// A model that can be reset, as by a host's subclass, and that shows its connections and persistent indexes.
class ResettableModel : public ZTBatchInputModel
{
public:
    void Reset()
    {
        beginResetModel();
        endResetModel();
    }

    int ReceiverCount(const char* signal) const { return receivers(signal); }

    int PersistentIndexCount() const { return persistentIndexList().size(); }
};

/// Fills an empty model. Top level: folder "f" with folder "g" (file "g1") and the files "f1" to "f4"; folder "h" (file
/// "h1"); files "t1", "t2".
void Fill(ZTBatchInputModel& model);

/// The path in a cell, without the folder that all paths begin with.
QString CellText(const ZVBatchInputTableModel& table, int row, int column);

/// Each row as its three cells, empty ones as "-"; a folder row begins with "/".
QStringList Rows(const ZVBatchInputTableModel& table);

/// The same from one text, with "|" between rows.
QStringList Lines(const char* text);

/// The index of the only node with this text.
QModelIndex Find(const ZTBatchInputModel& model, const QString& text, const QModelIndex& parent = QModelIndex());
