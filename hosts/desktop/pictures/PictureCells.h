// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "InputPaths.h"
#include "PictureTexts.h"

#include "ZVBatchInputTableModel.h"

#include <QIdentityProxyModel>

namespace BatchDesktop {

/// The table of the inputs with what the grid shows of each.
class PictureCells : public QIdentityProxyModel
{
    Q_OBJECT

public:
    enum Role { StateRole = Qt::UserRole, WarningRole };

    /// All must outlive this object.
    PictureCells(ZVBatchInputTableModel& table, const InputPaths& paths, const PictureTexts& texts,
                 QObject* parent = nullptr);

    /// Of the input model; invalid for a cell without a picture or folder.
    QModelIndex InputAt(const QModelIndex& cell) const { return table.mapToSource(mapToSource(cell)); }

    /// Invalid if the grid does not show the input.
    QModelIndex CellOf(const QModelIndex& input) const;

    bool IsFolder(const QModelIndex& cell) const { return table.isFolderRow(cell.row()); }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    QString FolderText(const InputNode& folder, const QModelIndex& input) const;

    ZVBatchInputTableModel& table;
    const PictureTexts& texts;
};

} // namespace BatchDesktop
