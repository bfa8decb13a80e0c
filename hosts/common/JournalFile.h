// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLockFile>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace BatchHost {

/// The journal of a run: a hidden file in its output folder, which exists until the run is finished. Only one process
/// at a time holds it. Nobody can foresee its name.
class JournalFile
{
public:
    /// The journal for a new run of the job with the text `document`. Problem() says whether the folder cannot be made
    /// or written.
    static std::unique_ptr<JournalFile> New(const QString& outputFolder, const QString& document);

    /// The journals of interrupted runs of the job with the text `document`, without this one. Throws RequestError if
    /// such a run is not interrupted but running.
    std::vector<std::unique_ptr<JournalFile>> OthersOfItsJob() const;

    /// The journal at `path`, to resume its run. Throws RequestError if the run is still running.
    static std::unique_ptr<JournalFile> Take(const QString& path);

    /// Whether another process runs the journal at `path`.
    static bool IsRunning(const QString& path);

    /// The paths of all files in `outputFolder` that are called like journals, whatever they are.
    static QStringList In(const QString& outputFolder);

    /// Removes what processes have left in `outputFolder` that died before their run began.
    static void RemoveUnbegun(const QString& outputFolder);

    ~JournalFile();

    /// Why this process does not hold the journal, for users; empty if it holds it.
    QString Problem() const { return problem; }
    QString Path() const { return path; }

    /// Whether a run has begun to write it.
    bool Exists() const;

    /// For a finished run.
    void Remove();

    /// For a run that has not begun: removes the folders that were made for it too, if they are empty.
    void RemoveWithFolders();

private:
    explicit JournalFile(const QString& path);

    /// Whether another process holds the journal.
    bool IsInUse() const { return lock.error() == QLockFile::LockFailedError; }

    QString path;
    QStringList madeFolders; ///< by New(), the deepest first
    QLockFile lock;
    QString problem;
    QString hint; ///< HintAtHolder()
};

} // namespace BatchHost
