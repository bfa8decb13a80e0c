// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "InputNodes.h"

/// Fills an empty model. Top level: folder "f" with folder "g" (file "g1") and the files "f1", "f2"; folder "h"; files
/// "t1", "t2".
inline void Fill(ZTBatchInputModel& model)
{
    model.InsertBranch(NewFolder(QStringLiteral("f"), {NewFolder(QStringLiteral("g"), {NewFile(QStringLiteral("g1"))}),
                                                       NewFile(QStringLiteral("f1")), NewFile(QStringLiteral("f2"))}),
                       QModelIndex());
    model.InsertBranch(NewFolder(QStringLiteral("h")), QModelIndex());
    model.InsertBranch(NewFile(QStringLiteral("t1")), QModelIndex());
    model.InsertBranch(NewFile(QStringLiteral("t2")), QModelIndex());
}

/// Adds `count` files whose texts are numbers in ascending order.
inline void AppendFiles(ZTBatchInputModel& model, int count, const QModelIndex& parent = QModelIndex())
{
    for (int i = 0; i < count; ++i) {
        model.InsertBranch(NewFile(QString::number(100000 + i)), parent);
    }
}

inline InputNode* NodeOf(const QModelIndex& index)
{
    return static_cast<InputNode*>(index.internalPointer());
}
