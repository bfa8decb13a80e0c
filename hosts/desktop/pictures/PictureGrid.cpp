// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureGrid.h"

#include "PictureCellPainter.h"

#include "hosts/common/Language.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPersistentModelIndex>
#include <QScrollBar>

#include <chrono>

using BatchHost::Messages;
using namespace std::chrono_literals;

namespace BatchDesktop {

namespace {

constexpr auto quietTime = 100ms;

/// Opening a folder rebuilds all rows, so only a few are opened by themselves.
constexpr int mostOpenFolders = 16;

} // namespace

PictureGrid::PictureGrid(ZTBatchInputModel& inputs, const InputPaths& paths, const PictureTexts& texts, QWidget* parent)
    : QTableView(parent)
    , paths(paths)
    , table(&inputs)
    , cells(table, paths, texts)
{
    setObjectName(QStringLiteral("pictureGrid"));
    setAccessibleName(Messages::tr("Grid of pictures"));
    setSelectionMode(ExtendedSelection);
    setShowGrid(false);
    setTabKeyNavigation(false); // Tab leads to the next control.
    setVerticalScrollMode(ScrollPerPixel);
    setAcceptDrops(false); // The pane takes them.
    viewport()->setAcceptDrops(false);
    horizontalHeader()->hide();
    verticalHeader()->hide();
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setItemDelegate(new PictureCellPainter(this));
    setModel(&cells);
    delay.setSingleShot(true);
    delay.setInterval(quietTime);
    connect(&delay, &QTimer::timeout, this, &PictureGrid::Rebuild);
    connect(&paths, &InputPaths::Changed, this, &PictureGrid::Outdate);
    connect(&cells, &QAbstractItemModel::modelReset, this, &PictureGrid::FitCells);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &PictureGrid::SightChanged);
}

PictureGrid::~PictureGrid() = default;

QStringList PictureGrid::PicturesInSight() const
{
    const int first = rowAt(0);
    if (first < 0) {
        return {};
    }
    const int lastSeen = rowAt(viewport()->height() - 1);
    const int last = lastSeen < 0 ? cells.rowCount() - 1 : lastSeen;
    const int page = last - first + 1;
    QStringList seen;
    const auto note = [&](int from, int to) {
        for (int row = std::max(0, from); row < std::min(to, cells.rowCount()); ++row) {
            for (int column = 0; column < cells.columnCount(); ++column) {
                const QModelIndex input = cells.InputAt(cells.index(row, column));
                if (input.isValid() && PictureTexts::IsFile(*NodeOf(input))) {
                    seen.append(NodeOf(input)->data.fileName);
                }
            }
        }
    };
    note(first, last + 1 + page);
    note(first - page, first);
    return seen;
}

void PictureGrid::SetCurrent(const QModelIndex& input)
{
    if (isOutdated) {
        Rebuild();
    }
    QModelIndex cell = cells.CellOf(input);
    if (input.isValid() && !cell.isValid()) {
        table.toggleFolder(input.parent());
        cell = cells.CellOf(input);
    }
    setCurrentIndex(cell);
    scrollTo(cell);
}

void PictureGrid::showEvent(QShowEvent* event)
{
    QTableView::showEvent(event);
    if (isOutdated) {
        Rebuild();
    }
}

void PictureGrid::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    Q_EMIT SightChanged();
}

void PictureGrid::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter || !Toggle(currentIndex())) {
        QTableView::keyPressEvent(event);
    }
}

void PictureGrid::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (!Toggle(indexAt(event->pos()))) {
        QTableView::mouseDoubleClickEvent(event);
    }
}

void PictureGrid::Outdate()
{
    isOutdated = true;
    if (isVisible()) {
        delay.start();
    }
}

void PictureGrid::Rebuild()
{
    isOutdated = false;
    delay.stop();
    QVector<QPersistentModelIndex> selected;
    const QModelIndexList selection = selectionModel()->selectedIndexes();
    for (const QModelIndex& cell : selection) {
        selected.append(QPersistentModelIndex(cells.InputAt(cell)));
    }
    const QPersistentModelIndex current(Current());
    OpenNewFolders();
    table.rebuild();
    QItemSelection cellsSelected;
    for (const QPersistentModelIndex& input : qAsConst(selected)) {
        const QModelIndex cell = cells.CellOf(input);
        if (cell.isValid()) {
            cellsSelected.select(cell, cell);
        }
    }
    selectionModel()->select(cellsSelected, QItemSelectionModel::ClearAndSelect);
    selectionModel()->setCurrentIndex(cells.CellOf(current), QItemSelectionModel::NoUpdate);
}

void PictureGrid::OpenNewFolders()
{
    const QList<const InputNode*> folders = paths.Folders();
    for (const InputNode* const folder : folders) {
        const QString& path = folder->data.fileName;
        if (seenFolders.size() < mostOpenFolders && !seenFolders.contains(path)) {
            seenFolders.insert(path);
            table.toggleFolder(paths.IndexOf(path));
        }
    }
}

void PictureGrid::FitCells()
{
    const int line = fontMetrics().height();
    verticalHeader()->setDefaultSectionSize(line * 9);
    for (int row = 0; row < cells.rowCount(); ++row) {
        if (table.isFolderRow(row)) {
            setRowHeight(row, line * 2);
        }
    }
    Q_EMIT SightChanged();
}

/// Opens or closes a folder. False if `cell` is none.
bool PictureGrid::Toggle(const QModelIndex& cell)
{
    if (!cell.isValid() || !cells.IsFolder(cell)) {
        return false;
    }
    const QPersistentModelIndex folder(cells.InputAt(cell));
    table.toggleFolder(folder);
    setCurrentIndex(cells.CellOf(folder));
    return true;
}

} // namespace BatchDesktop
