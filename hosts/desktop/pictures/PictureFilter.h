// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PictureColumns.h"

#include <QSortFilterProxyModel>

namespace BatchDesktop {

/// The pictures of the list whose names contain a text and that have a state, with their folders. It changes what is
/// seen, not the job.
class PictureFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    /// `columns` must outlive this object.
    explicit PictureFilter(PictureColumns& columns, QObject* parent = nullptr);

    /// The letter case of `text` does not count.
    void Show(const QString& text, ShownState state);

    bool IsActive() const { return !text.isEmpty() || state != ShownState::All; }

    /// How many pictures pass.
    int FileCount() const;

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    const PictureColumns& columns;
    QString text;
    ShownState state = ShownState::All;
};

} // namespace BatchDesktop
