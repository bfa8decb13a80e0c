// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "InputBranches.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>

namespace BatchDesktop {

/// The inputs of a model by their paths, and how many there are. Kept in step with the model.
class InputPaths : public QObject
{
    Q_OBJECT

public:
    /// `model` must outlive this object.
    explicit InputPaths(ZTBatchInputModel& model, QObject* parent = nullptr);

    /// Of the model; invalid if it has no such path.
    QModelIndex IndexOf(const QString& path) const { return model.indexFromNode(nodes.value(path)); }

    bool Contains(const QString& path) const { return nodes.contains(path); }

    /// Files and folders. A copy costs nothing until one of the two changes.
    const QHash<QString, InputNode*>& Nodes() const { return nodes; }

    int FileCount() const { return model.GetFileNodesCount(); }

    /// Folders with files directly in them.
    int FolderCount() const { return folders.size(); }
    QList<const InputNode*> Folders() const { return folders.keys(); }

Q_SIGNALS:
    /// Rows have come or gone.
    void Changed();

private:
    void Rebuild();
    void Note(InputNode* top);
    void Forget(InputNode* top);
    void OnInserted(const QModelIndex& parent, int first, int last);
    void OnRemoving(const QModelIndex& parent, int first, int last);

    ZTBatchInputModel& model;
    QHash<QString, InputNode*> nodes;
    QHash<const InputNode*, int> folders; ///< and the number of files directly in them
};

} // namespace BatchDesktop
