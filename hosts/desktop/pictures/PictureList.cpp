// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureList.h"

#include "RunStates.h"

#include "hosts/common/Language.h"

#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>

using BatchHost::Messages;

namespace BatchDesktop {

namespace {

bool IsPicture(const QModelIndex& index)
{
    return PictureTexts::IsFile(*NodeOf(index));
}

/// The pictures at `top` and below it that pass the filter, as indexes of the filter's source.
QModelIndexList PicturesBelow(const PictureFilter& filter, const QModelIndex& top)
{
    QModelIndexList pictures;
    QVector<QModelIndex> open{top};
    while (!open.isEmpty()) {
        const QModelIndex index = open.takeLast();
        if (IsPicture(index)) {
            pictures.append(filter.mapToSource(index));
        }
        const int rows = filter.rowCount(index);
        for (int row = 0; row < rows; ++row) {
            open.append(filter.index(row, 0, index));
        }
    }
    return pictures;
}

/// The row after `index`, or before it, in a tree with all folders open. Invalid at the end.
QModelIndex RowBeside(const QAbstractItemModel& model, const QModelIndex& index, int step)
{
    const auto lastBelow = [&model](QModelIndex at) {
        while (model.rowCount(at) > 0) {
            at = model.index(model.rowCount(at) - 1, 0, at);
        }
        return at;
    };
    if (!index.isValid()) {
        return step > 0 ? model.index(0, 0) : lastBelow(QModelIndex());
    }
    if (step < 0) {
        return index.row() == 0 ? index.parent() : lastBelow(index.sibling(index.row() - 1, 0));
    }
    if (model.rowCount(index) > 0) {
        return model.index(0, 0, index);
    }
    QModelIndex at = index;
    while (at.isValid() && at.row() + 1 >= model.rowCount(at.parent())) {
        at = at.parent();
    }
    return at.isValid() ? at.sibling(at.row() + 1, 0) : QModelIndex();
}

/// All rows are as high as those with a thumbnail, that of a folder at the top too, by which the list goes. Other
/// icons are as high as the text.
class RowPainter : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QSize asked = QStyledItemDelegate::sizeHint(option, index);
        const int height = option.decorationSize.height() + option.fontMetrics.height() / 4;
        return {asked.width(), std::max(asked.height(), height)};
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.column() != PictureColumns::ThumbnailColumn) {
            option->decorationSize = QSize(option->fontMetrics.height(), option->fontMetrics.height());
        }
    }
};

} // namespace

PictureList::PictureList(PictureFilter& filter, QWidget* parent)
    : QTreeView(parent)
    , filter(filter)
{
    setObjectName(QStringLiteral("pictureList"));
    setAccessibleName(Messages::tr("List of pictures"));
    setTextElideMode(Qt::ElideMiddle); // The ends of names tell them apart.
    setUniformRowHeights(true);        // Else each row is asked for its height.
    setSelectionMode(ExtendedSelection);
    setAllColumnsShowFocus(true);
    setItemDelegate(new RowPainter(this));
    setAcceptDrops(false); // The pane takes them.
    viewport()->setAcceptDrops(false);
    setModel(&filter);
    setTreePosition(PictureColumns::NameColumn);
    setIndentation(fontMetrics().height());
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(PictureColumns::NameColumn, QHeaderView::Stretch);
    header()->setSectionResizeMode(PictureColumns::ResultColumn, QHeaderView::Stretch);
    header()->setSectionsMovable(false);
    connect(&filter, &QAbstractItemModel::rowsInserted, this, &PictureList::OpenFolders);
    connect(&filter, &QAbstractItemModel::modelReset, this,
            [this] { OpenFolders(QModelIndex(), 0, model()->rowCount() - 1); });
    connect(&filter, &QAbstractItemModel::layoutChanged, this, [this] {
        scheduleDelayedItemsLayout(); // One for all folders that come back.
        OpenFolders(QModelIndex(), 0, model()->rowCount() - 1);
        Q_EMIT SightChanged();
    });
    connect(&filter, &QAbstractItemModel::rowsInserted, this, &PictureList::SightChanged);
    connect(&filter, &QAbstractItemModel::rowsRemoved, this, &PictureList::SightChanged);
    connect(&filter, &QAbstractItemModel::modelReset, this, &PictureList::SightChanged);
    connect(this, &QTreeView::expanded, this, [this](const QModelIndex& folder) { NoteClosed(folder, false); });
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex& folder) { NoteClosed(folder, true); });
    connect(this, &QTreeView::expanded, this, &PictureList::SightChanged);
    connect(this, &QTreeView::collapsed, this, &PictureList::SightChanged);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &PictureList::SightChanged);
    FitIcons();
    OpenFolders(QModelIndex(), 0, filter.rowCount() - 1);
}

void PictureList::ShowOnly(const QString& text, ShownState state)
{
    if (filter.Shows(text, state)) {
        return;
    }
    selectionModel()->clearSelection(); // Each selected row would be followed by itself to where it is then.
    filter.Show(text, state);
    setCurrentIndex(currentIndex().isValid() ? currentIndex() : Neighbour(QModelIndex(), 1));
}

QModelIndexList PictureList::Selected() const
{
    const QItemSelection ranges = selectionModel()->selection();
    QSet<InputNode*> folders;
    for (const QItemSelectionRange& rows : ranges) {
        // Folders come before files.
        for (int row = rows.top(); row <= rows.bottom(); ++row) {
            const QModelIndex index = filter.index(row, 0, rows.parent());
            if (IsPicture(index)) {
                break;
            }
            folders.insert(NodeOf(index));
        }
    }
    const auto isBelowSelected = [&](QModelIndex folder) {
        while (folder.isValid() && !folders.contains(NodeOf(folder))) {
            folder = folder.parent();
        }
        return folder.isValid();
    };
    QModelIndexList selected;
    for (const QItemSelectionRange& rows : ranges) {
        if (isBelowSelected(rows.parent())) {
            continue;
        }
        for (int row = rows.top(); row <= rows.bottom(); ++row) {
            const QModelIndex index = filter.index(row, 0, rows.parent());
            if (filter.IsActive()) {
                selected += PicturesBelow(filter, index);
            } else {
                selected.append(filter.mapToSource(index));
            }
        }
    }
    return selected;
}

QStringList PictureList::PicturesInSight() const
{
    const QModelIndex first = indexAt(QPoint(0, 0));
    const int height = first.isValid() ? rowHeight(first) : 0;
    if (height <= 0) {
        return {};
    }
    const int page = viewport()->height() / height + 1;
    QStringList paths;
    const auto note = [&](const QModelIndex& index) {
        if (IsPicture(index)) {
            paths.append(NodeOf(index)->data.fileName);
        }
    };
    QModelIndex at = first;
    for (int i = 0; i < 2 * page && at.isValid(); ++i) {
        note(at);
        at = indexBelow(at);
    }
    at = indexAbove(first);
    for (int i = 0; i < page && at.isValid(); ++i) {
        note(at);
        at = indexAbove(at);
    }
    return paths;
}

QModelIndex PictureList::Neighbour(const QModelIndex& from, int step) const
{
    QModelIndex at = RowBeside(filter, from.siblingAtColumn(0), step);
    while (at.isValid() && !IsPicture(at)) {
        at = RowBeside(filter, at, step);
    }
    return at;
}

void PictureList::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    Q_EMIT SightChanged();
}

void PictureList::changeEvent(QEvent* event)
{
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        FitIcons();
    }
}

void PictureList::FitIcons()
{
    const int side = fontMetrics().height() * 2;
    setIconSize(QSize(side * 3 / 2, side));
    header()->resizeSection(PictureColumns::ThumbnailColumn, side * 2);
    using State = RunStates::State;
    int widest = 0;
    for (const State state : {State::Waiting, State::Working, State::Written, State::Skipped, State::Failed}) {
        widest = std::max(widest, fontMetrics().horizontalAdvance(RunStates::Word(state)));
    }
    header()->resizeSection(PictureColumns::StateColumn, widest + side); // with an icon
}

void PictureList::NoteClosed(const QModelIndex& folder, bool isClosed)
{
    const QString& path = NodeOf(folder)->data.fileName;
    if (isClosed) {
        closed.insert(path);
    } else {
        closed.remove(path);
    }
}

/// Folders are open when they come, unless they were closed before.
void PictureList::OpenFolders(const QModelIndex& parent, int first, int last)
{
    QVector<QModelIndex> open;
    for (int row = first; row <= last; ++row) {
        open.append(filter.index(row, 0, parent));
    }
    while (!open.isEmpty()) {
        const QModelIndex folder = open.takeLast();
        if (IsPicture(folder)) {
            continue;
        }
        setExpanded(folder, !closed.contains(NodeOf(folder)->data.fileName));
        // Folders come before files.
        for (int row = 0; row < filter.rowCount(folder) && !IsPicture(filter.index(row, 0, folder)); ++row) {
            open.append(filter.index(row, 0, folder));
        }
    }
}

} // namespace BatchDesktop
