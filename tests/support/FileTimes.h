// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Gives the file `to` the time of the last change of the file `from`, in the finest unit that the system has.
bool CopyFileTime(const QString& from, const QString& to);

/// Makes a file or folder look as if it had been changed `seconds` ago.
bool MakeOlder(const QString& path, int seconds);
