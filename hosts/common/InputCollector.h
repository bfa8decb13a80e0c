// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "FolderReader.h"
#include "LeftOutFiles.h"
#include "Wildcard.h"

#include "ZTBatchInputModel.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <memory>

class ZTBatchDocument;

namespace BatchHost {

/// Which files of a folder become inputs. Files that the user names are always inputs.
struct InputFilter
{
    /// Wildcards, of names, or of paths below the folder that the user names if they contain "/".
    QStringList only;   ///< empty: every format that the server reads
    QStringList except; ///< of files and folders to leave out
    bool subfolders = true;
    bool hidden = false;  ///< whether names that begin with a dot are included
    QString outputFolder; ///< absolute; left out where a folder contains it, as results are not inputs
};

/// Turns files and folders into inputs of a job.
class InputCollector
{
public:
    /// `job` must outlive this object. What it has already is not added again. Throws RequestError for a wildcard that
    /// is invalid.
    InputCollector(ZTBatchDocument& job, const InputFilter& filter);
    ~InputCollector();

    /// Called for each folder that has been read, with the numbers so far.
    std::function<void(int folders, int files, const QString& folder)> onProgress;

    /// Called for each folder that has been read, with its node and what was found directly in it. It is not in the job
    /// yet. What is thrown here ends Add(), and the folder that it was adding stays out of the job.
    std::function<void(const TreeNode<BatchNodeData>& folder)> onFolder;

    /// Called for each file of a folder that would be taken; false leaves it out. With it, files of other kinds are not
    /// looked at.
    std::function<bool(const QString& path)> accepts;

    /// The files and folders `paths` count as added already.
    void Take(const QSet<QString>& paths) { taken += paths; }

    /// Adds the files and folders `paths` to the job. Throws RequestError when one of them does not exist or cannot be
    /// an input.
    void Add(const QStringList& paths);

    /// What was left out unexpectedly, one sentence each: folders that cannot be read, circular or dangling links,
    /// saved jobs, names that a QString or a job cannot hold.
    const QStringList& Problems() const { return problems; }

    /// What was named or found more than once, one sentence each. It is in the job once.
    const QStringList& Repetitions() const { return repetitions; }

    /// Files of the folders that begin like pictures, but whose extensions are not those of pictures. Empty with a
    /// filter that says which names to take.
    const LeftOutFiles& LeftOut() const { return leftOut; }

private:
    using Node = TreeNode<BatchNodeData>;

    void AddFolder(const QString& path);
    void ReadInto(Node& folder, QVector<Node*>& found);
    void AddEntry(const FolderEntry& entry, const QString& folderPath, QVector<Node*>& files, QVector<Node*>& folders);
    bool IsFirst(Node& folder, const BatchJob::FileIdentity& identity);
    bool IsReadable(const QString& name) const;
    bool IsWanted(const QString& path) const;
    bool MatchesAny(const QVector<Wildcard>& wildcards, const QString& path) const;
    void LookAt(const FolderEntry& entry, const QString& path);
    void Insert(std::unique_ptr<Node> node);

    ZTBatchDocument& job;
    const InputFilter filter;
    const std::optional<BatchJob::FileIdentity> outputFolder;
    QVector<Wildcard> only;
    QVector<Wildcard> except;
    QString topFolder; ///< the folder that is being added, with "/" at the end
    QSet<QString> extensions;
    QSet<QString> taken;                                 ///< the paths in the job
    QHash<BatchJob::FileIdentity, QString> foldersTaken; ///< and their paths
    QStringList problems;
    QStringList repetitions;
    LeftOutFiles leftOut;
    int folderCount = 0;
    int fileCount = 0;
};

} // namespace BatchHost
