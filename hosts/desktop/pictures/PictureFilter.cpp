// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureFilter.h"

#include <QVector>

namespace BatchDesktop {

PictureFilter::PictureFilter(PictureColumns& columns, QObject* parent)
    : QSortFilterProxyModel(parent)
    , columns(columns)
{
    setSourceModel(&columns);
}

void PictureFilter::Show(const QString& wantedText, ShownState wantedState)
{
    if (text == wantedText && state == wantedState) {
        return;
    }
    text = wantedText;
    state = wantedState;
    if (IsActive() == isRecursiveFilteringEnabled()) {
        invalidateFilter();
    } else {
        setRecursiveFilteringEnabled(IsActive()); // Filters anew.
    }
}

int PictureFilter::FileCount() const
{
    int count = 0;
    QVector<QModelIndex> folders{QModelIndex()};
    while (!folders.isEmpty()) {
        const QModelIndex folder = folders.takeLast();
        const int rows = rowCount(folder);
        for (int row = 0; row < rows; ++row) {
            const QModelIndex child = index(row, 0, folder);
            if (PictureTexts::IsFile(*NodeOf(mapToSource(child)))) {
                ++count;
            } else {
                folders.append(child);
            }
        }
    }
    return count;
}

bool PictureFilter::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    if (!IsActive()) {
        return true;
    }
    const InputNode& node = *NodeOf(columns.index(row, 0, parent));
    if (!PictureTexts::IsFile(node)) {
        return false; // Shown with the pictures in it.
    }
    const QString& path = node.data.fileName;
    const QStringView name = QStringView(path).mid(path.lastIndexOf(QLatin1Char('/')) + 1);
    return (text.isEmpty() || name.contains(text, Qt::CaseInsensitive)) && columns.Texts().Matches(node, state);
}

} // namespace BatchDesktop
