// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputPaths.h"

#include <QVector>

namespace BatchDesktop {

namespace {

/// Calls `visit` for `top` and all nodes below it.
template<typename Visit>
void ForEachNode(InputNode* top, Visit visit)
{
    QVector<InputNode*> open{top};
    while (!open.isEmpty()) {
        InputNode* const node = open.takeLast();
        visit(node);
        for (InputNode* const child : qAsConst(node->children)) {
            open.append(child);
        }
    }
}

} // namespace

InputPaths::InputPaths(ZTBatchInputModel& model, QObject* parent)
    : QObject(parent)
    , model(model)
{
    connect(&model, &QAbstractItemModel::rowsInserted, this, &InputPaths::OnInserted);
    connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, this, &InputPaths::OnRemoving);
    connect(&model, &QAbstractItemModel::rowsRemoved, this, &InputPaths::Changed);
    connect(&model, &QAbstractItemModel::modelReset, this, &InputPaths::Rebuild);
    connect(&model, &ZTBatchInputModel::ModelUpdated, this, &InputPaths::Rebuild);
    Rebuild();
}

void InputPaths::Rebuild()
{
    nodes.clear();
    folders.clear();
    for (int row = 0; row < model.rowCount(); ++row) {
        Note(NodeOf(model.index(row, 0)));
    }
    Q_EMIT Changed();
}

void InputPaths::Note(InputNode* top)
{
    nodes.reserve(nodes.size() + top->data.fileNodesCount);
    ForEachNode(top, [this](InputNode* node) {
        nodes.insert(node->data.fileName, node);
        if (node->data.type != Folder && node->parent->parent != nullptr) {
            ++folders[node->parent];
        }
    });
}

void InputPaths::Forget(InputNode* top)
{
    ForEachNode(top, [this](InputNode* node) {
        const auto known = nodes.find(node->data.fileName);
        if (known != nodes.end() && *known == node) {
            nodes.erase(known);
        }
        const auto folder = folders.find(node->parent);
        if (node->data.type != Folder && folder != folders.end() && --*folder == 0) {
            folders.erase(folder);
        }
    });
}

void InputPaths::OnInserted(const QModelIndex& parent, int first, int last)
{
    for (int row = first; row <= last; ++row) {
        Note(NodeOf(model.index(row, 0, parent)));
    }
    Q_EMIT Changed();
}

void InputPaths::OnRemoving(const QModelIndex& parent, int first, int last)
{
    if (!parent.isValid() && last - first + 1 == model.rowCount()) {
        nodes.clear();
        folders.clear();
        return;
    }
    for (int row = first; row <= last; ++row) {
        Forget(NodeOf(model.index(row, 0, parent)));
    }
}

} // namespace BatchDesktop
