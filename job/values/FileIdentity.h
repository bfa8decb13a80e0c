// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>

#include <optional>

namespace BatchJob {

/// Which file a path leads to, with links resolved. Two paths to one file have equal identities; two files that exist
/// at the same time have different ones.
struct FileIdentity
{
    quint64 device = 0;
    quint64 file = 0;

    /// The identity as text.
    QString Text() const { return QStringLiteral("%1:%2").arg(device).arg(file); }

    bool operator==(const FileIdentity& other) const { return device == other.device && file == other.file; }
};

inline uint qHash(const FileIdentity& identity, uint seed = 0)
{
    return ::qHash(identity.file ^ (identity.device << 48U), seed);
}

/// The identity of the file at `path`; nothing if there is no file. Safe on any thread.
std::optional<FileIdentity> IdentityOf(const QString& path);

/// When the file at `path`, a link itself, was last created, renamed or changed in any way, in nanoseconds by the clock
/// of its file system. A program cannot set that time. Nothing if there is no file. Safe on any thread.
std::optional<qint64> ChangeTimeOf(const QString& path);

} // namespace BatchJob
