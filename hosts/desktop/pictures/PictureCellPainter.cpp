// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureCellPainter.h"

#include "PictureCells.h"

#include <QApplication>
#include <QPainter>
#include <QPixmap>

namespace BatchDesktop {

void PictureCellPainter::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle* const style = cell.widget ? cell.widget->style() : QApplication::style();
    const QPixmap thumbnail = index.data(Qt::DecorationRole).value<QPixmap>();
    const bool isFolder = static_cast<const PictureCells*>(index.model())->IsFolder(index);
    if (isFolder || !index.flags().testFlag(Qt::ItemIsSelectable)) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    const QString name = cell.text;
    cell.text.clear();
    cell.icon = QIcon();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget); // The background of a selected cell.

    const int line = cell.fontMetrics.height();
    const int margin = line / 4;
    const QRect inside = cell.rect.adjusted(margin, margin, -margin, -margin);
    const QRect above = inside.adjusted(0, 0, 0, -2 * line - margin);
    if (!thumbnail.isNull()) {
        const QSize wanted = thumbnail.size().scaled(above.size(), Qt::KeepAspectRatio);
        QRect place(QPoint(), wanted);
        place.moveCenter(above.center());
        painter->save();
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawPixmap(place, thumbnail);
        painter->restore();
    }
    const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
    const QPalette::ColorRole role = isSelected ? QPalette::HighlightedText : QPalette::Text;
    const auto drawLine = [&](int number, const QString& text) {
        const QRect place(inside.left(), inside.bottom() - (2 - number) * line + 1, inside.width(), line);
        style->drawItemText(painter, place, Qt::AlignCenter, cell.palette, true,
                            cell.fontMetrics.elidedText(text, Qt::ElideMiddle, place.width()), role);
    };
    drawLine(0, name);
    drawLine(1, index.data(PictureCells::StateRole).toString());
}

} // namespace BatchDesktop
