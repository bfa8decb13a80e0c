// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobSnapshot.h"

#include "hosts/desktop/job/EditedJob.h"

#include "ZTBatchDocument.h"

#include <QDataStream>
#include <QDeadlineTimer>

namespace BatchDesktop {

InputSnapshot::InputSnapshot()
    : open{OpenFolder()}
{
}

InputSnapshot::InputSnapshot(const ZTBatchInputModel& model)
    : InputSnapshot()
{
    Continue(model, std::chrono::hours(1));
}

bool InputSnapshot::Continue(const ZTBatchInputModel& model, std::chrono::milliseconds longest)
{
    constexpr int stepsOfALook = 256; // at the clock
    const QDeadlineTimer end(longest);
    if (nodes.empty()) {
        nodes.reserve(2 * std::size_t(model.GetFileNodesCount()));
    }
    while (!end.hasExpired()) {
        for (int i = 0; i < stepsOfALook; ++i) {
            if (!Step(model)) {
                return true;
            }
        }
    }
    return false;
}

/// False if nothing is left.
bool InputSnapshot::Step(const ZTBatchInputModel& model)
{
    if (open.isEmpty()) {
        return false;
    }
    OpenFolder& folder = open.last();
    if (folder.nextRow == model.rowCount(folder.index)) {
        open.removeLast();
        return true;
    }
    const QModelIndex index = model.index(folder.nextRow++, 0, folder.index);
    const BatchNodeData& data = *model.getNodeData(index);
    nodes.push_back({open.size() - 1, data});
    if (data.type == Folder) {
        open.append({index});
    }
    return true;
}

void InputSnapshot::AddTo(ZTBatchDocument& job) const
{
    using InputNode = TreeNode<BatchNodeData>;
    for (auto top = nodes.begin(); top != nodes.end();) {
        auto branch = std::make_unique<InputNode>();
        branch->data = top->data;
        QVector<InputNode*> path{branch.get()}; // from the top down to the last node
        for (++top; top != nodes.end() && top->depth > 0; ++top) {
            auto* const node = new InputNode;
            node->data = top->data;
            path.resize(top->depth);
            path.last()->insertChild(node);
            path.append(node);
        }
        job.GetInputModel()->InsertBranch(branch.release(), QModelIndex());
    }
}

void InputSnapshot::Save(QDataStream& stream) const
{
    stream << quint32(nodes.size());
    for (const Node& node : nodes) {
        stream << qint32(node.depth) << qint32(node.data.type) << node.data.inputText << node.data.inputInfo
               << node.data.fileName << node.data.lastModification;
    }
}

std::optional<InputSnapshot> InputSnapshot::Load(QDataStream& stream)
{
    quint32 count = 0;
    stream >> count;
    if (stream.status() != QDataStream::Ok) {
        return std::nullopt;
    }
    InputSnapshot snapshot;
    QVector<std::size_t> folders; // those that the next node may lie in, from the top down
    for (quint32 i = 0; i < count; ++i) {
        qint32 depth = 0;
        qint32 type = 0;
        Node node;
        stream >> depth >> type >> node.data.inputText >> node.data.inputInfo >> node.data.fileName >>
            node.data.lastModification;
        if (stream.status() != QDataStream::Ok || depth < 0 || depth > folders.size()) {
            return std::nullopt;
        }
        folders.resize(depth);
        node.depth = depth;
        node.data.type = type;
        node.data.enabled = true;
        if (depth == 0) {
            node.data.bookmark = ZVFileBookmark(node.data.fileName);
        }
        if (type == Folder) {
            folders.append(snapshot.nodes.size());
        } else {
            node.data.fileNodesCount = 1;
            for (const std::size_t folder : qAsConst(folders)) {
                ++snapshot.nodes[folder].data.fileNodesCount;
            }
        }
        snapshot.nodes.push_back(std::move(node));
    }
    return snapshot;
}

QStringList InputSnapshot::TopPaths() const
{
    QStringList paths;
    for (const Node& node : nodes) {
        if (node.depth == 0) {
            paths.append(node.data.fileName);
        }
    }
    return paths;
}

JobSnapshot::JobSnapshot(const EditedJob& job)
    : name(job.Document().GetDocumentName())
    , settings(job.CurrentSettings())
    , inputs(*job.Document().GetInputModel())
{
}

std::unique_ptr<ZTBatchDocument> JobSnapshot::ToJob() const
{
    auto job = std::make_unique<ZTBatchDocument>();
    job->SetDocumentName(name);
    settings.ApplyTo(*job);
    inputs.AddTo(*job);
    return job;
}

} // namespace BatchDesktop
