// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>
#include <QString>

/// Files of this user in folders that others may write too. What lies there under the name of a journal may be another
/// user's file, or a link to something else.
namespace BatchJob {

enum class OwnFileUse {
    Read,
    Append, ///< and read
    Change  ///< bytes in the middle
};

/// Creates the file `path`, which only this user may read and write, and opens it for OwnFileUse::Append. False if
/// there is anything of that name, even a dangling link; `problem` then says for users what is wrong.
bool CreateOwnFile(QFile& file, const QString& path, QString& problem);

/// Opens the file `path` if nobody but this user can have written it: a regular file of this user with one name, which
/// other users may not write. Never follows a link and never waits. False otherwise; `problem` then says for users what
/// is wrong.
bool OpenOwnFile(QFile& file, const QString& path, OwnFileUse use, QString& problem);

/// Why the file `path` cannot be the lock of a file of this user, for users; empty if it can be, or if there is no such
/// file. A lock that others may write locks nevertheless.
QString WhyNotOwnLock(const QString& path);

} // namespace BatchJob
