#pragma once

#include <QDir>
#include <QLockFile>
#include <QString>

#include <memory>

namespace BatchHost {

/// The journal of a run in its output folder: a hidden file, there as long as the run is not finished. One process at a
/// time holds it.
class JournalFile
{
public:
    /// Takes the place of the journal for a job with the text `document`. An earlier journal of that job is replaced
    /// when it is written. IsHeld() is false when the folder cannot be made or written.
    static std::unique_ptr<JournalFile> ForJob(const QString& outputFolder, const QString& document);

    /// The journal of the run that was interrupted in `outputFolder`; where there are several, or when `isThisJob`,
    /// that of the job `document`. Throws UsageError when there is none, or not that one, or when the run is still
    /// under way.
    static std::unique_ptr<JournalFile> Interrupted(const QString& outputFolder, const QString& document,
                                                    bool isThisJob);

    ~JournalFile();

    bool IsHeld() const { return isHeld; }
    QString Path() const { return path; }

    /// Whether a run has begun with it.
    bool Exists() const;

    /// The run is finished.
    void Remove();

private:
    explicit JournalFile(const QString& path);

    static void RemoveUnbegun(const QDir& folder);

    QString path;
    QLockFile lock;
    bool isHeld = false;
};

} // namespace BatchHost
