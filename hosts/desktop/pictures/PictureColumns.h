// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "InputPaths.h"
#include "PictureTexts.h"

#include <QIdentityProxyModel>

namespace BatchDesktop {

/// The input model with the columns of the list.
///
/// The input model announces a branch when it is in the tree already. This model hides it until it is inserted, so that
/// views and other proxies see what Qt promises them. The rows of its source must come by InsertBranch() or a reset.
class PictureColumns : public QIdentityProxyModel
{
    Q_OBJECT

public:
    enum Column { ThumbnailColumn, NameColumn, ResultColumn, StateColumn, columnTotal };

    /// All must outlive this object.
    PictureColumns(ZTBatchInputModel& inputs, const InputPaths& paths, const PictureTexts& texts,
                   QObject* parent = nullptr);

    const PictureTexts& Texts() const { return texts; }

    QModelIndex IndexOf(InputNode* node) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    QModelIndex sibling(int row, int column, const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex& parent = QModelIndex()) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    QModelIndex mapToSource(const QModelIndex& index) const override;
    QModelIndex mapFromSource(const QModelIndex& index) const override;

Q_SIGNALS:
    /// Emitted before dataChanged() for all rows.
    void AllChanging();

private:
    void OnChanged(const QString& path);
    void OnAllChanged();
    bool IsArrivingIn(const InputNode* folder) const { return isArriving && folder == arrivingFolder; }

    ZTBatchInputModel& inputs;
    const InputPaths& paths;
    const PictureTexts& texts;

    // The row that is being inserted.
    bool isArriving = false;
    const InputNode* arrivingFolder = nullptr; ///< null for the top
    int arrivingRow = 0;
};

} // namespace BatchDesktop
