// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PictureFilter.h"

#include <QSet>
#include <QTreeView>

namespace BatchDesktop {

/// The inputs as a tree with columns.
class PictureList : public QTreeView
{
    Q_OBJECT

public:
    /// `filter` must outlive this object.
    explicit PictureList(PictureFilter& filter, QWidget* parent = nullptr);

    /// Shows only some of the pictures. Nothing but the current one stays selected, so that no hidden one can be
    /// removed with others; if it is hidden, the first of those shown becomes current.
    void ShowOnly(const QString& text, ShownState state);

    /// The selected rows but for those below another one, as indexes of the filter's source. While only some of the
    /// pictures are shown, these stand for a folder: what is hidden is not meant.
    QModelIndexList Selected() const;

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
    void NoteClosed(const QModelIndex& folder, bool isClosed);

    PictureFilter& filter;
    QSet<QString> closed; ///< paths of the folders that the user has closed
};

} // namespace BatchDesktop
