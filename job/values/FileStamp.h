// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace BatchJob {

/// What a file looked like at one moment, from outside: a file that was changed or replaced looks different, unless
/// somebody has set its time.
struct FileStamp
{
    qint64 bytes = -1;
    qint64 modified = 0; ///< in nanoseconds since 1970

    /// Which file of its file system it is; 0 where numbers of files do not outlive the mounting of their file system,
    /// as on memory cards and in networks.
    quint64 number = 0;

    bool operator==(const FileStamp& other) const
    {
        return bytes == other.bytes && modified == other.modified && number == other.number;
    }
    bool operator!=(const FileStamp& other) const { return !(*this == other); }

    /// The same without the number: a copy that kept its time counts as the same file.
    bool LooksLike(const FileStamp& other) const { return bytes == other.bytes && modified == other.modified; }
};

/// The stamp of the file at `path`; links are followed. Nothing if there is no regular file. Safe on any thread.
std::optional<FileStamp> StampOf(const QString& path);

/// The same, and nothing if `path` is a link.
std::optional<FileStamp> StampOfResult(const QString& path);

/// The SHA-256 of the contents of the file at `path`, in hexadecimal digits; empty if it cannot be read.
QByteArray ChecksumOf(const QString& path);

} // namespace BatchJob
