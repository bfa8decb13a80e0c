// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PictureFilter.h"

#include <QTreeView>

namespace BatchDesktop {

/// The inputs as a tree with columns.
class PictureList : public QTreeView
{
    Q_OBJECT

public:
    /// `filter` must outlive this object.
    explicit PictureList(PictureFilter& filter, QWidget* parent = nullptr);

    /// The paths of the pictures that are seen, and then of those of one page after and before.
    QStringList PicturesInSight() const;

    /// The next picture in the direction of `step`, 1 or -1, that passes the filter, whether its folder is open or not.
    /// An invalid `from` gives the first or the last one. Invalid at the end of the list.
    QModelIndex Neighbour(const QModelIndex& from, int step) const;

Q_SIGNALS:
    /// Other pictures may be in sight.
    void SightChanged();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void FitIcons();
    void OpenFolders(const QModelIndex& parent, int first, int last);

    PictureFilter& filter;
};

} // namespace BatchDesktop
