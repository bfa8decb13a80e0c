// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/// Commands as a user would type them.
namespace BatchHost {

/// `arguments` as one line for the shells of POSIX: each arrives as it is, whatever characters it has.
QString PosixShellLine(const QStringList& arguments);

/// The same for the command prompt of Windows. A line break cannot be said there and becomes a blank.
QString WindowsShellLine(const QStringList& arguments);

/// The line for the shell of this system.
QString ShellLine(const QStringList& arguments);

} // namespace BatchHost
