// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

namespace BatchDesktop {

/// Paints a cell of the grid: the thumbnail, and the name and state below it.
class PictureCellPainter : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace BatchDesktop
