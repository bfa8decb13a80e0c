#pragma once

#include "FolderReader.h"

#include "ZTBatchInputModel.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <memory>

class ZTBatchDocument;

namespace BatchHost {

/// Which files of a folder are taken. Files that the user names are taken whatever they are called.
struct InputFilter
{
    QStringList only;   ///< wildcards; empty: every format that the server reads
    QStringList except; ///< wildcards that keep files and folders out
    bool subfolders = true;
    bool hidden = false;  ///< whether names that begin with a dot are taken, too
    QString outputFolder; ///< left out where it lies inside a folder: results are no inputs. Absolute
};

/// Turns files and folders into inputs of a job.
class InputCollector
{
public:
    /// `job` has to stay. What it holds already is not added again.
    InputCollector(ZTBatchDocument& job, const InputFilter& filter);
    ~InputCollector();

    /// Called now and then while folders are read, with the folder at hand.
    std::function<void(int folders, int files, const QString& folder)> onProgress;

    /// Adds the files and folders `paths` to the job. Throws RequestError when one of them does not exist or cannot be
    /// an input.
    void Add(const QStringList& paths);

    /// What was left out though somebody may miss it, one sentence each: folders that cannot be read, links that lead
    /// in circles or nowhere, names that cannot be represented.
    const QStringList& Problems() const { return problems; }

    /// What was named or reached once more and is in the job once, one sentence each. Nothing is missing.
    const QStringList& Repetitions() const { return repetitions; }

private:
    using Node = TreeNode<BatchNodeData>;

    void TakeFolder(const QString& path);
    void ReadInto(Node& folder, QVector<Node*>& found);
    void TakeEntry(const FolderEntry& entry, const QString& folderPath, QVector<Node*>& files, QVector<Node*>& folders);
    bool IsFirst(Node& folder, const BatchJob::FileIdentity& identity);
    bool IsWanted(const QString& name) const;
    void Insert(std::unique_ptr<Node> node);

    ZTBatchDocument& job;
    const InputFilter filter;
    const std::optional<BatchJob::FileIdentity> outputFolder;
    QVector<QRegularExpression> only;
    QVector<QRegularExpression> except;
    QSet<QString> extensions;
    QSet<QString> taken;                                 ///< the paths in the job
    QHash<BatchJob::FileIdentity, QString> foldersTaken; ///< and their paths
    QStringList problems;
    QStringList repetitions;
    int folderCount = 0;
    int fileCount = 0;
};

} // namespace BatchHost
