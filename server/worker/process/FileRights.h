// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

namespace BatchWorker {

/// The files that a process may still open, by Landlock: a list of what is allowed, which can only become shorter.
/// Where the kernel lacks Landlock, or a part of it, that part stays open.
class FileRights
{
public:
    FileRights();
    ~FileRights();

    /// Allows reading `path`, a file, or a folder with all that is in it. What does not exist is left out.
    void AllowReading(const QByteArray& path);

    /// Allows making, reading, writing and removing files, and reading folders, in the folder `path` and below.
    void AllowWriting(const QByteArray& path);

    /// From here on this process may open nothing else, signal no process outside, and reach no abstract socket of one.
    /// To be called before the first thread starts: it holds for the calling thread and what that starts later. False,
    /// with errno, when the kernel should be able to and is not.
    bool Restrict();

private:
    Q_DISABLE_COPY(FileRights)

    void Allow(const QByteArray& path, quint64 rights);

    quint64 handled = 0;
    int rules = -1; ///< the descriptor of the list; -1 where there is no Landlock
    bool hasFailed = false;
};

} // namespace BatchWorker
