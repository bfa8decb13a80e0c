// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputFiles.h"

#include <ZTBatchInputModel.h>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <memory>

namespace {

using Node = TreeNode<BatchNodeData>;

const QStringList pictureNames{QStringLiteral("*.jpg"), QStringLiteral("*.jpeg"), QStringLiteral("*.png"),
                               QStringLiteral("*.tif"), QStringLiteral("*.webp"), QStringLiteral("*.heic")};

std::unique_ptr<Node> MakeNode(const QFileInfo& entry)
{
    auto node = std::make_unique<Node>();
    node->data.inputText = entry.fileName();
    node->data.fileName = entry.absoluteFilePath();
    node->data.enabled = true;
    if (entry.isDir()) {
        node->data.type = Folder;
        const QDir folder(entry.absoluteFilePath());
        const auto filter = QDir::Files | QDir::AllDirs | QDir::NoDotAndDotDot | QDir::NoSymLinks;
        for (const QFileInfo& below : folder.entryInfoList(pictureNames, filter)) {
            std::unique_ptr<Node> child = MakeNode(below);
            if (child->data.fileNodesCount > 0) {
                node->data.fileNodesCount += child->data.fileNodesCount;
                node->insertChild(child.release());
            }
        }
    } else {
        node->data.type = File;
        node->data.fileNodesCount = 1;
        node->data.lastModification = entry.lastModified().toString(Qt::ISODate);
    }
    return node;
}

} // namespace

void AddInputs(ZTBatchInputModel& inputs, const QStringList& paths)
{
    for (const QString& path : paths) {
        std::unique_ptr<Node> node = MakeNode(QFileInfo(path));
        if (node->data.fileNodesCount > 0) {
            inputs.InsertBranch(node.release(), QModelIndex());
        }
    }
}
