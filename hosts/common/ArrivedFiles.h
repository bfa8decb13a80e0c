// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QVector>

#include <optional>

namespace BatchHost {

/// By what a file of a watched folder is known to be the same as before.
struct FileFacts
{
    qint64 bytes = 0;
    qint64 modified = 0; ///< ms since 1970

    bool operator==(const FileFacts& other) const { return bytes == other.bytes && modified == other.modified; }
    bool operator!=(const FileFacts& other) const { return !(*this == other); }
};

struct SeenFile
{
    QString path;
    FileFacts facts;
};

/// Tells which files of a folder have arrived whole: those that stay the same for a while and that nobody is known to
/// be writing, and at once those that were moved to their places. Empty files have not arrived. Looks at nothing
/// itself: its user says what there is and which time it is, in milliseconds of a clock that does not jump.
class ArrivedFiles
{
public:
    /// A file has to stay the same for `settle` ms.
    explicit ArrivedFiles(qint64 settle)
        : settle(settle)
    {
    }

    /// What the system says of the file `path` between two looks.
    void NoteWriting(const QString& path, qint64 now);
    void NoteClosed(const QString& path) { writing.remove(path); }
    void NoteMovedIn(const QString& path);

    /// What the system said may have gaps.
    void ForgetNotes();

    /// This file is not wanted, as long as it stays as it is.
    void Settle(const SeenFile& file) { settled.insert(file.path, file.facts); }

    /// The file `path` is wanted again.
    void Unsettle(const QString& path) { settled.remove(path); }

    /// All files that there are.
    void Look(const QVector<SeenFile>& files, qint64 now);

    /// The files that have arrived by the last look, in its order. Each is settled with that.
    QVector<SeenFile> Take(qint64 now);

    /// After how many ms another look may find a file that has arrived; nothing if only changes can make one arrive.
    std::optional<qint64> NextLook(qint64 now) const;

private:
    struct Waiting
    {
        SeenFile file;
        qint64 since = 0; ///< it has been like this
        bool isMovedIn = false;
    };

    bool IsWriting(const QString& path, qint64 now) const;
    bool HasArrived(const Waiting& each, qint64 now) const;

    const qint64 settle;
    QHash<QString, FileFacts> settled;
    QVector<Waiting> waiting;       ///< in the order of the last look
    QHash<QString, qint64> writing; ///< and when that was last noticed
    QSet<QString> movedIn;
};

} // namespace BatchHost
