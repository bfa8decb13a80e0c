// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputScan.h"

#include "hosts/common/InputCollector.h"
#include "hosts/common/JobFile.h"
#include "hosts/common/RequestError.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

using namespace BatchHost;

namespace BatchDesktop {

namespace {

/// Ends a scan that is not wanted any more.
struct ScanCancelled
{
};

std::unique_ptr<InputNode> CopyOfRecord(const InputNode& node)
{
    auto copy = std::make_unique<InputNode>();
    copy->data = node.data;
    copy->data.fileNodesCount = 0;
    return copy;
}

/// `node` under a copy of `folder`.
std::unique_ptr<InputNode> Wrapped(std::unique_ptr<InputNode> node, const InputNode& folder)
{
    std::unique_ptr<InputNode> copy = CopyOfRecord(folder);
    copy->data.fileNodesCount = node->data.fileNodesCount;
    copy->insertChild(node.release());
    return copy;
}

std::unique_ptr<InputNode> CopyWithFiles(const InputNode& folder)
{
    std::unique_ptr<InputNode> copy = CopyOfRecord(folder);
    for (const InputNode* const child : folder.children) {
        if (child->data.type != Folder) {
            auto* const file = new InputNode;
            file->data = child->data;
            copy->insertChild(file);
            ++copy->data.fileNodesCount;
        }
    }
    return copy;
}

} // namespace

InputScan::InputScan(const QStringList& paths, const QHash<QString, InputNode*>& known, const QString& outputFolder,
                     const std::function<void()>& onNews)
    : paths(paths)
    , known(known)
    , outputFolder(outputFolder)
    , onNews(onNews)
{
}

void InputScan::Run(const std::function<bool()>& isCancelled)
{
    InputFilter filter;
    filter.outputFolder = outputFolder;
    ZTBatchDocument found;
    InputCollector collector(found, filter);
    collector.Take(QSet<QString>(known.keyBegin(), known.keyEnd()));
    known.clear();
    collector.onFolder = [&](const InputNode& folder) {
        if (isCancelled()) {
            throw ScanCancelled();
        }
        PassOnFolder(folder);
    };
    // Files together, as their order depends on all of them; other paths each for itself, so that one that cannot be
    // added keeps no other out.
    QVector<QStringList> requests{QStringList()};
    for (const QString& path : paths) {
        if (QFileInfo(path).isFile() && !IsSavedJob(path)) {
            requests.first().append(path);
        } else {
            requests.append({path});
        }
    }
    try {
        for (const QStringList& request : qAsConst(requests)) {
            Add(collector, request);
        }
    } catch (const ScanCancelled&) {
        return;
    }
    const ZTBatchInputModel& model = *found.GetInputModel();
    for (int row = 0; row < model.rowCount(); ++row) {
        const InputNode& node = *NodeOf(model.index(row, 0));
        if (node.data.type != Folder) {
            PassOn(QString(), CopyOf(node));
        }
    }
    NoteProblems(collector);
}

InputScan::Branch InputScan::Take()
{
    const QMutexLocker lock(&mutex);
    if (branches.empty()) {
        return {};
    }
    Branch branch = std::move(branches.front());
    branches.pop_front();
    return branch;
}

void InputScan::Add(InputCollector& collector, const QStringList& request)
{
    try {
        collector.Add(request);
    } catch (const RequestError& error) {
        problems.append(error.text);
    }
}

/// Passes on the files of `folder`, under copies of the folders above that were not passed on yet. So a folder without
/// files never comes.
void InputScan::PassOnFolder(const InputNode& folder)
{
    std::unique_ptr<InputNode> node = CopyWithFiles(folder);
    if (node->data.fileNodesCount == 0) {
        return;
    }
    passedOn.insert(folder.data.fileName);
    const InputNode* above = folder.parent;
    for (; above != nullptr && !passedOn.contains(above->data.fileName); above = above->parent) {
        node = Wrapped(std::move(node), *above);
        passedOn.insert(above->data.fileName);
    }
    if (above == nullptr) {
        node->data.bookmark = ZVFileBookmark(node->data.fileName);
    }
    PassOn(above == nullptr ? QString() : above->data.fileName, std::move(node));
}

void InputScan::PassOn(const QString& parent, std::unique_ptr<InputNode> node)
{
    QMutexLocker lock(&mutex);
    const bool isFirst = branches.empty();
    branches.push_back({parent, std::move(node)});
    lock.unlock();
    if (isFirst) {
        onNews();
    }
}

void InputScan::NoteProblems(const InputCollector& collector)
{
    problems += collector.Problems();
    problems += collector.Repetitions();
    for (const LeftOutFile& file : collector.LeftOut()) {
        problems.append(
            BatchJob::Phrase::English("%1 is a picture (%2) with another extension; it is added only if it is named.")
                .arg(QDir::toNativeSeparators(file.path), file.format));
    }
}

} // namespace BatchDesktop
