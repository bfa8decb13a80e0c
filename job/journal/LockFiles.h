// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QLockFile;

/// Lock files, also where the file system has no locks of open files, as some of networks.
namespace BatchJob {

/// Takes `lock`, whose file is `path`, within `timeout` milliseconds. Where the file system has no locks, Qt leaves the
/// file of a process that was killed for ever; here it is removed, if that process was one of this machine.
bool TakeLock(QLockFile& lock, const QString& path, int timeout = 0);

/// Whether `lock`, which cannot be taken, names a process of this machine that has ended.
bool HasHolderEnded(const QLockFile& lock);

/// Who holds `lock` and what to do if that is not so, for users, where the file system has no locks to tell. Empty
/// elsewhere.
QString HintAtHolder(const QLockFile& lock, const QString& path);

/// Whether `text` is Qt's warning that a lock file has no lock. What follows from that is told otherwise.
bool IsWarningOfLocks(const QString& text);

} // namespace BatchJob
