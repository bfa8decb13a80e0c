// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PictureColumns.h"

#include <QAbstractProxyModel>
#include <QHash>
#include <QVector>

namespace BatchDesktop {

/// The pictures of the list whose names contain a text and that have a state, with their folders. It changes what is
/// seen, not the job.
///
/// Another filter takes time in proportion to the number of inputs. QSortFilterProxyModel moves all later rows for each
/// run of rows that comes or goes, which for 100,000 pictures takes minutes.
class PictureFilter : public QAbstractProxyModel
{
    Q_OBJECT

public:
    /// `columns` must outlive this object.
    explicit PictureFilter(PictureColumns& columns, QObject* parent = nullptr);

    /// The letter case of `text` does not count. All rows change their places at once.
    void Show(const QString& text, ShownState state);

    bool Shows(const QString& wantedText, ShownState wantedState) const
    {
        return text == wantedText && state == wantedState;
    }

    bool IsActive() const { return !text.isEmpty() || state != ShownState::All; }

    /// How many pictures pass while the filter is active.
    int FileCount() const { return fileCount; }

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    QModelIndex sibling(int row, int column, const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex& parent = QModelIndex()) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    QModelIndex mapToSource(const QModelIndex& index) const override;
    QModelIndex mapFromSource(const QModelIndex& index) const override;

private:
    using Nodes = QVector<InputNode*>;

    void ConnectColumns();
    void Renew() { Show(text, state); }
    void Rebuild();
    bool Accepts(const InputNode& node) const;
    bool Collect(InputNode* top, const InputNode* end);
    void Reveal(InputNode* node);
    void Hide(InputNode* folder, int first, int last);
    void OnDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight);
    int RowFor(const Nodes& rows, int sourceRow) const;
    int RowOf(InputNode* node) const;
    int SourceRow(InputNode* node) const { return columns.IndexOf(node).row(); }
    QModelIndex IndexOf(InputNode* node) const;

    PictureColumns& columns;
    QString text;
    ShownState state = ShownState::All;

    // While the filter is active:
    QHash<const InputNode*, Nodes> shown; ///< the rows of each folder that is shown; those of the top at null
    int fileCount = 0;
};

} // namespace BatchDesktop
