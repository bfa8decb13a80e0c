#pragma once

#include <QDir>
#include <QLockFile>
#include <QString>

#include <memory>

namespace BatchHost {

/// The journal of a run: a hidden file in its output folder, which exists until the run is finished. Only one process
/// at a time holds it.
class JournalFile
{
public:
    /// The journal for a new run of the job with the text `document`. An earlier journal of that job is replaced when
    /// this one is written. IsHeld() is false when the folder cannot be made or written.
    static std::unique_ptr<JournalFile> ForJob(const QString& outputFolder, const QString& document);

    /// The journal of the run that was interrupted in `outputFolder`. Where there are several, or with `isThisJob`, it
    /// has to be a run of the job `document`. Throws RequestError when there is no such run, or when it is still
    /// running.
    static std::unique_ptr<JournalFile> Interrupted(const QString& outputFolder, const QString& document,
                                                    bool isThisJob);

    ~JournalFile();

    bool IsHeld() const { return isHeld; }
    QString Path() const { return path; }

    /// Whether a run has begun to write it.
    bool Exists() const;

    /// For a finished run.
    void Remove();

private:
    explicit JournalFile(const QString& path);

    static void RemoveUnbegun(const QDir& folder);

    QString path;
    QLockFile lock;
    bool isHeld = false;
};

} // namespace BatchHost
