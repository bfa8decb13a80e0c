// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputOrder.h"

#include "FileProber.h"
#include "NaturalNames.h"

#include "job/settings/JobFiles.h"
#include "server/protocol/TaskFailure.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"

#include <QDateTime>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <limits>
#include <memory>

namespace BatchHost {

namespace {

constexpr qint64 lastRank = std::numeric_limits<qint64>::max();

/// A node of the job's tree.
struct InputNode
{
    BatchNodeData* data = nullptr;
    int parent = -1; ///< -1 at the top
    qint64 rank = lastRank;
};

/// From top to bottom of the tree with all folders expanded; a folder comes before what it contains.
using InputNodes = QVector<InputNode>;

InputNodes NodesOf(const ZTBatchInputModel& model)
{
    struct Open
    {
        QModelIndex index;
        int node;
        int nextRow;
    };
    InputNodes nodes;
    QVector<Open> open{{QModelIndex(), -1, 0}};
    while (!open.isEmpty()) {
        Open& folder = open.last();
        if (folder.nextRow == model.rowCount(folder.index)) {
            open.removeLast();
            continue;
        }
        const QModelIndex index = model.index(folder.nextRow++, 0, folder.index);
        nodes.append({model.getNodeData(index), folder.node, lastRank});
        if (nodes.last().data->type == Folder) {
            open.append({index, nodes.size() - 1, 0});
        }
    }
    return nodes;
}

QString NameOf(const BatchNodeData& data)
{
    const QString name = QFileInfo(data.fileName).fileName();
    return name.isEmpty() ? data.fileName : name;
}

qint64 RankOf(const QDateTime& time)
{
    return time.isValid() ? time.toMSecsSinceEpoch() : lastRank;
}

void RankByTime(InputNodes& nodes, const QString& settings, const std::function<void(int, int)>& onProgress)
{
    QVector<FileProber::File> files;
    for (int i = 0; i < nodes.size(); ++i) {
        if (nodes[i].data->type != Folder) {
            files.append({i, nodes[i].data->fileName});
        }
    }
    if (files.isEmpty()) {
        return;
    }
    int done = 0;
    FileProber::Probe(files, settings, [&](const BatchProtocol::Report& report) {
        InputNode& node = nodes[report.number];
        const QDateTime captured =
            report.failure == BatchJob::PolicyKind::None ? BatchProtocol::ProbeResultOf(report).captured : QDateTime();
        node.rank = RankOf(captured.isValid() ? captured : QFileInfo(node.data->fileName).lastModified());
        if (onProgress) {
            onProgress(++done, files.size());
        }
    });
    for (int i = nodes.size() - 1; i >= 0; --i) {
        if (nodes[i].parent >= 0) {
            qint64& ofFolder = nodes[nodes[i].parent].rank;
            ofFolder = std::min(ofFolder, nodes[i].rank);
        }
    }
}

void RankByPlace(InputNodes& nodes, const QStringList& given)
{
    QHash<QString, qint64> places;
    for (const QString& path : given) {
        if (!places.contains(path)) {
            places.insert(path, places.size());
        }
    }
    for (InputNode& node : nodes) {
        node.rank = node.parent < 0 ? places.value(node.data->fileName, -1) : nodes[node.parent].rank;
    }
}

/// Texts that sort as `nodes` are sorted, and end with their names.
QStringList NumberedNames(const QVector<InputNode*>& nodes)
{
    const int digits = QString::number(nodes.size()).size();
    QStringList texts;
    for (int i = 0; i < nodes.size(); ++i) {
        texts.append(QStringLiteral("%1 %2").arg(i + 1, digits, 10, QLatin1Char('0')).arg(NameOf(*nodes[i]->data)));
    }
    return texts;
}

QStringList NaturalNamesOf(const QVector<InputNode*>& nodes)
{
    QStringList names;
    for (const InputNode* node : nodes) {
        names.append(NameOf(*node->data));
    }
    return NaturalNames(names);
}

void SortByRank(QVector<InputNode*>& nodes)
{
    std::stable_sort(nodes.begin(), nodes.end(),
                     [](const InputNode* a, const InputNode* b) { return a->rank < b->rank; });
}

/// Gives the entries of each folder the texts that `textsOf` makes, and sorts them by these.
template<typename TextsOf>
void SortWithinFolders(ZTBatchDocument& job, InputNodes& nodes, TextsOf textsOf)
{
    QHash<QPair<int, bool>, QVector<InputNode*>> groups; // By their folder, and whether they are folders themselves.
    for (InputNode& node : nodes) {
        groups[{node.parent, node.data->type == Folder}].append(&node);
    }
    for (QVector<InputNode*>& group : groups) {
        SortByRank(group);
        const QStringList texts = textsOf(group);
        for (int i = 0; i < group.size(); ++i) {
            group[i]->data->inputText = texts[i];
        }
    }
    // A document sorts its nodes when it is read.
    job.Deserialize(job.Serialize(nullptr));
}

void SortWithoutFolders(ZTBatchDocument& job, InputNodes& nodes)
{
    QVector<InputNode*> files;
    for (InputNode& node : nodes) {
        if (node.data->type != Folder) {
            files.append(&node);
        }
    }
    SortByRank(files);
    const QStringList texts = NumberedNames(files);
    QVector<TreeNode<BatchNodeData>*> sorted;
    for (int i = 0; i < files.size(); ++i) {
        auto node = std::make_unique<TreeNode<BatchNodeData>>();
        node->data = *files[i]->data;
        node->data.inputText = texts[i];
        sorted.append(node.release());
    }
    ZTBatchInputModel& model = *job.GetInputModel();
    model.removeRows(0, model.rowCount());
    for (TreeNode<BatchNodeData>* const node : qAsConst(sorted)) {
        model.InsertBranch(node, QModelIndex());
    }
}

} // namespace

void SortInputs(ZTBatchDocument& job, InputOrder order, const QStringList& given,
                const std::function<void(int done, int files)>& onProgress)
{
    InputNodes nodes = NodesOf(*job.GetInputModel());
    if (order == InputOrder::Name) {
        SortWithinFolders(job, nodes, NaturalNamesOf);
        return;
    }
    if (order == InputOrder::Taken) {
        RankByTime(nodes, BatchJob::SettingsTextOf(job), onProgress);
    } else {
        RankByPlace(nodes, given);
    }
    if (job.GetOutputSettings()->GetFolderStructure() == ZTBatchOutputSettings::StructureAsInput) {
        SortWithinFolders(job, nodes, NumberedNames);
    } else {
        SortWithoutFolders(job, nodes);
    }
}

} // namespace BatchHost
