// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

/// Makes the system end this process when its parent ends, where the system supports that.
void EndWithParent();

/// Prevents a core file or an error window if this process crashes.
void CrashQuietly();

/// Ends this process in a way that its parent sees as a crash.
[[noreturn]] void Crash();

/// Ends this process at once, without any clean-up: that could wait for a thread that no longer exists.
[[noreturn]] void EndAtOnce(int exitCode);

bool IsProcessAlive(qint64 pid);
void KillProcess(qint64 pid);

/// The living child processes of `pid`; none where the system does not tell.
QList<qint64> ChildrenOf(qint64 pid);
