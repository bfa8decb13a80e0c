// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ResultFolder.h"

#include <QString>

/// Files in the making: a result is complete under its final name, or absent.
namespace BatchProtocol {

/// A hidden file in the folder of a result. It gets the name of the result when it is complete.
///
/// Its name is ".velkora-", 16 hexadecimal digits, ".tmp". It is locked while it is written (flock; on Windows nobody
/// else may remove or rename it). As the system releases the lock with the process, a later run can tell it from one
/// that a crash has left. Use it on one thread at a time.
class TemporaryFile
{
public:
    /// The outcome of Place().
    enum class Placement {
        Done,
        NameTaken, ///< a file of that name has appeared; it is unchanged
        Failed     ///< see Error()
    };

    /// A file for the result `finalName`, whose folder exists and is `root` or lies below it. No link below `root` is
    /// followed, whenever it appeared; with an empty root all are, see ResultFolder.
    explicit TemporaryFile(const QString& finalName, const QString& root = {});

    /// Removes the file, unless Place() was successful.
    ~TemporaryFile();

    /// Creates the file and locks it. False when that fails, see Error(). Call it once.
    bool Create();

    /// The open file, for reading and writing at any position; -1 before Create(). This object closes it.
    int Descriptor() const { return descriptor; }

    /// Where the file was created; empty before Create() and after Place(). Only for people: its folder may have been
    /// replaced since.
    QString FileName() const;

    /// A path by which this process opens the file once more. It leads to this very file, where the system has such
    /// paths.
    QString OpenPath() const;

    /// Flushes the file to disk, renames it to its final name, and flushes the folder. A file of that name is replaced
    /// with `replaceExisting`, else it is never touched, whenever it appeared. After anything but Done the destructor
    /// removes the file.
    Placement Place(bool replaceExisting);

    /// Whether a file with the very bytes of this one has the final name. A link there is not followed: it is another
    /// file, wherever it leads. After Place() has found the name taken.
    bool HasTwin() const;

    /// Removes an empty file that has the final name, on file systems where Place() needs one for a moment: a process
    /// that was killed in that moment has left it. Returns whether it removed one; it
    /// leaves the file alone where Place() needs no such files. To be called after Create().
    bool RemovePlaceholder() const;

    /// What went wrong, for users.
    QString Error() const { return error; }

    /// Temporary files in a folder.
    struct Sweeping
    {
        int removed = 0;
        int unclear = 0; ///< that stay, as the file system has no locks to tell whether they are being written
    };

    /// Removes the temporary files in the folder `path` that no process is writing. May be called on any thread, while
    /// other processes do the same. Links are treated as in the constructor.
    static Sweeping Sweep(const QString& path, const QString& root = {});

private:
    Q_DISABLE_COPY(TemporaryFile)

    bool Fail(int errorNumber);

    QString finalName;
    QString root;
    ResultFolder folder;
    QString name; ///< in the folder
    QString error;
    int descriptor = -1;
};

} // namespace BatchProtocol
