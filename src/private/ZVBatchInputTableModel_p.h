// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZVBatchInputRows_p.h"
#include "ZVBatchInputTableModel.h"

class Q_DECL_HIDDEN ZVBatchInputTableModel::Private
{
public:
    explicit Private(ZTBatchInputModel* source)
        : rows(source)
    {
    }

    ZVBatchInputRows rows;
    QSet<QPersistentModelIndex> expandedFolders;
    bool selectionUpdatePending = false;
};
