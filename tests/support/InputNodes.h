// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchInputModel.h"

#include <QStringList>

using InputNode = TreeNode<BatchNodeData>;

/// A file without a parent, with the text `text` and the path /in/<text>.
inline InputNode* NewFile(const QString& text)
{
    auto* const node = new InputNode;
    node->data.inputText = text;
    node->data.fileName = QLatin1String("/in/") + text;
    node->data.type = File;
    node->data.enabled = true;
    node->data.fileNodesCount = 1;
    return node;
}

/// The same for a folder, which takes ownership of `children` and counts their files.
inline InputNode* NewFolder(const QString& text, const QList<InputNode*>& children = {})
{
    auto* const node = new InputNode;
    node->data.inputText = text;
    node->data.fileName = QLatin1String("/in/") + text;
    node->data.type = Folder;
    node->data.enabled = true;
    for (InputNode* const child : children) {
        node->insertChild(child);
        node->data.fileNodesCount += child->data.fileNodesCount;
    }
    return node;
}

/// The texts of the rows below `parent`, in order.
inline QStringList InputTexts(const ZTBatchInputModel& model, const QModelIndex& parent = QModelIndex())
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        texts.append(model.getNodeData(model.index(row, 0, parent))->inputText);
    }
    return texts;
}
