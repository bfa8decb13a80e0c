// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace BatchHost {

/// The names of files and folders in the file `path`, or on standard input for "-": one a line, or separated by NUL.
/// Empty lines are ignored. Relative names start at the current folder. Throws RequestError, which says in which line,
/// when the list cannot be read, is too long, is not UTF-8, or names what does not exist.
QStringList ReadInputList(const QString& path, bool isNulSeparated);

} // namespace BatchHost
