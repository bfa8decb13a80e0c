// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputCollector.h"

#include "JobFile.h"
#include "NaturalNames.h"
#include "RequestError.h"
#include "UserPath.h"

#include "job/formats/FormatCatalog.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace BatchJob;

namespace BatchHost {

namespace {

/// A job with deeper folders could not be read back.
constexpr int deepestFolder = 900;

QVector<Wildcard> Wildcards(const QStringList& patterns)
{
    QVector<Wildcard> wildcards;
    for (const QString& pattern : patterns) {
        wildcards.append(Wildcard(QDir::fromNativeSeparators(pattern)));
    }
    return wildcards;
}

QString WithSlash(const QString& folder)
{
    return folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
}

std::unique_ptr<TreeNode<BatchNodeData>> MakeNode(const QString& path, BatchNodeType type)
{
    auto node = std::make_unique<TreeNode<BatchNodeData>>();
    const QString name = path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
    node->data.inputText = name.isEmpty() ? path : name;
    node->data.fileName = path;
    node->data.type = type;
    node->data.enabled = true;
    node->data.fileNodesCount = type == Folder ? 0 : 1;
    return node;
}

void KeepModification(BatchNodeData& data, const QDateTime& modified)
{
    data.lastModification = modified.toString(Qt::ISODate);
}

/// Gives the nodes, the entries of one folder, texts whose order is the natural one, and sorts them.
void SortNaturally(QVector<TreeNode<BatchNodeData>*>& nodes)
{
    QStringList names;
    for (const auto* node : nodes) {
        names.append(node->data.inputText);
    }
    const QStringList texts = NaturalNames(names);
    for (int i = 0; i < nodes.size(); ++i) {
        nodes[i]->data.inputText = texts.at(i);
    }
    std::sort(nodes.begin(), nodes.end(), [](const auto* a, const auto* b) { return a->data < b->data; });
}

int DepthOf(const TreeNode<BatchNodeData>* node)
{
    int depth = 0;
    for (; node != nullptr; node = node->parent) {
        ++depth;
    }
    return depth;
}

} // namespace

InputCollector::InputCollector(ZTBatchDocument& job, const InputFilter& filter)
    : job(job)
    , filter(filter)
    , outputFolder(IdentityOf(filter.outputFolder))
    , only(Wildcards(filter.only))
    , except(Wildcards(filter.except))
    , extensions(BatchJob::ReadableExtensions().begin(), BatchJob::ReadableExtensions().end())
{
    const ZTBatchInputModel& model = *job.GetInputModel();
    QVector<QModelIndex> folders{QModelIndex()};
    for (int i = 0; i < folders.size(); ++i) {
        const QModelIndex folder = folders.at(i);
        for (int row = 0; row < model.rowCount(folder); ++row) {
            const QModelIndex index = model.index(row, 0, folder);
            taken.insert(model.getNodeData(index)->fileName);
            folders.append(index);
        }
    }
}

InputCollector::~InputCollector() = default;

void InputCollector::Add(const QStringList& paths)
{
    QVector<Node*> loose;
    for (const QString& given : paths) {
        const QString path = AbsolutePath(given);
        const QFileInfo info(path);
        if (!info.exists()) {
            qDeleteAll(loose);
            throw RequestError{info.isSymLink() ? Phrase::English("%1 is a dangling link").arg(path)
                                                : Phrase::English("%1 does not exist").arg(path)};
        }
        if (!info.isDir() && !info.isFile()) {
            qDeleteAll(loose);
            throw RequestError{Phrase::English("%1 is neither a file nor a folder").arg(path)};
        }
        if (IsSavedJob(path)) {
            qDeleteAll(loose);
            throw RequestError{Phrase::English("%1 is a saved job, not a picture").arg(path),
                               RequestError::Kind::SavedJobAmongInputs};
        }
        if (taken.contains(path)) {
            repetitions.append(Phrase::English("%1 is in the job already.").arg(path));
        } else if (info.isDir()) {
            AddFolder(path);
        } else {
            taken.insert(path);
            ++fileCount;
            loose.append(MakeNode(path, File).release());
            KeepModification(loose.last()->data, info.lastModified().toUTC());
        }
    }
    SortNaturally(loose);
    for (Node* const node : loose) {
        Insert(std::unique_ptr<Node>(node));
    }
    // A file that is named beside its folder is an input.
    const auto isTaken = [this](const LeftOutFile& file) { return taken.contains(file.path); };
    leftOut.erase(std::remove_if(leftOut.begin(), leftOut.end(), isTaken), leftOut.end());
}

void InputCollector::AddFolder(const QString& path)
{
    std::unique_ptr<Node> top = MakeNode(path, Folder);
    topFolder = WithSlash(path);
    // Folders are read in the order in which they are found, but links last: a folder that is found directly and by a
    // link gets its own path.
    QVector<Node*> folders{top.get()};
    QVector<Node*> links;
    for (int i = 0; i < folders.size(); ++i) {
        QVector<Node*> below;
        ReadInto(*folders.at(i), below);
        for (Node* const node : below) {
            (QFileInfo(node->data.fileName).isSymLink() ? links : folders).append(node);
        }
        if (i + 1 == folders.size()) {
            folders += links;
            links.clear();
        }
    }
    // A folder comes after the one that contains it.
    for (int i = folders.size() - 1; i > 0; --i) {
        Node* const folder = folders.at(i);
        if (folder->data.fileNodesCount == 0) {
            delete folder;
        } else {
            folder->parent->data.fileNodesCount += folder->data.fileNodesCount;
        }
    }
    if (top->data.fileNodesCount > 0) {
        Insert(std::move(top));
    }
}

void InputCollector::ReadInto(Node& folder, QVector<Node*>& found)
{
    const QString path = folder.data.fileName;
    const FolderContent content = ReadFolder(path);
    if (!content.error.isEmpty()) {
        problems.append(Phrase::English("%1 cannot be read: %2").arg(path, content.error));
    }
    if (content.identity && !IsFirst(folder, *content.identity)) {
        return;
    }
    if (DepthOf(&folder) > deepestFolder) {
        problems.append(Phrase::English("%1 is nested too deeply for a job.").arg(path));
        return;
    }
    ++folderCount;
    taken.insert(path);
    QVector<Node*> files;
    for (const FolderEntry& entry : content.entries) {
        AddEntry(entry, path, files, found);
    }
    fileCount += files.size();
    folder.data.fileNodesCount = files.size();
    SortNaturally(found);
    SortNaturally(files);
    for (Node* const node : found + files) {
        folder.insertChild(node);
    }
    if (onProgress) {
        onProgress(folderCount, fileCount, path);
    }
    if (onFolder) {
        onFolder(folder);
    }
}

void InputCollector::AddEntry(const FolderEntry& entry, const QString& folderPath, QVector<Node*>& files,
                              QVector<Node*>& folders)
{
    const QString path = WithSlash(folderPath) + entry.name;
    if ((!filter.hidden && entry.name.startsWith(QLatin1Char('.'))) || MatchesAny(except, path)) {
        return;
    }
    const bool isFolder = entry.kind == FolderEntry::Kind::Folder;
    if (isFolder ? !filter.subfolders : !IsWanted(path)) {
        LookAt(entry, path);
        return;
    }
    if (!entry.hasName) {
        problems.append(Phrase::English("%1 has a name that is not valid UTF-8; rename it to use it.").arg(path));
    } else if (!CanBeSaved(entry.name)) {
        problems.append(
            Phrase::English("%1 has a name with a character that a job cannot hold; rename it to use it.").arg(path));
    } else if (entry.isDangling) {
        problems.append(Phrase::English("%1 is a dangling link.").arg(path));
    } else if (isFolder) {
        const bool isOutput = outputFolder && entry.identity == outputFolder;
        if (!isOutput && !taken.contains(path)) {
            folders.append(MakeNode(path, Folder).release());
        }
    } else if (entry.kind == FolderEntry::Kind::File && !IsReadable(entry.name) && IsSavedJob(path)) {
        problems.append(Phrase::English("%1 is a saved job, not a picture; it is left out.").arg(path));
    } else if (entry.kind == FolderEntry::Kind::File && !taken.contains(path) && (!accepts || accepts(path))) {
        taken.insert(path);
        files.append(MakeNode(path, File).release());
        KeepModification(files.last()->data, entry.modified);
    }
}

bool InputCollector::IsFirst(Node& folder, const FileIdentity& identity)
{
    const QString path = folder.data.fileName;
    const auto known = foldersTaken.constFind(identity);
    if (known == foldersTaken.constEnd()) {
        foldersTaken.insert(identity, path);
        return true;
    }
    if (path.startsWith(*known + QLatin1Char('/'))) {
        problems.append(Phrase::English("%1 leads back to %2; it is not followed.").arg(path, *known));
    } else {
        repetitions.append(Phrase::English("%1 is the folder %2, which is in the job already.").arg(path, *known));
    }
    return false;
}

bool InputCollector::IsReadable(const QString& name) const
{
    return extensions.contains(QFileInfo(name).suffix().toLower());
}

bool InputCollector::IsWanted(const QString& path) const
{
    return only.isEmpty() ? IsReadable(path) : MatchesAny(only, path);
}

/// `path` lies below the top folder.
bool InputCollector::MatchesAny(const QVector<Wildcard>& wildcards, const QString& path) const
{
    if (wildcards.isEmpty()) {
        return false;
    }
    const QString below = path.mid(topFolder.size());
    const QString name = path.section(QLatin1Char('/'), -1);
    return std::any_of(wildcards.begin(), wildcards.end(),
                       [&](const Wildcard& wildcard) { return wildcard.Matches(wildcard.IsOfPath() ? below : name); });
}

/// Notes a file that is not wanted for its extension alone.
void InputCollector::LookAt(const FolderEntry& entry, const QString& path)
{
    const bool isReadable = entry.kind == FolderEntry::Kind::File && entry.hasName && !entry.isDangling;
    if (!isReadable || !only.isEmpty() || accepts) {
        return;
    }
    const QString format = FormatOfUnknownFile(path);
    if (!format.isEmpty()) {
        leftOut.append({path, format});
    }
}

void InputCollector::Insert(std::unique_ptr<Node> node)
{
    node->data.bookmark = ZVFileBookmark(node->data.fileName);
    job.GetInputModel()->InsertBranch(node.release(), QModelIndex());
}

} // namespace BatchHost
