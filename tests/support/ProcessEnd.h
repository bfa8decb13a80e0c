#pragma once

#include <QList>

/// Makes the system end this process together with the one that started it, where the system can do that.
void EndWithParent();

/// A crash of this process leaves no core file and no window behind.
void CrashQuietly();

/// Ends this process in a way that its parent sees as a crash.
[[noreturn]] void Crash();

/// Ends this process as it is: no library gets the chance to clean up, and to wait for a thread that is gone.
[[noreturn]] void EndAtOnce(int exitCode);

bool IsProcessAlive(qint64 pid);
void KillProcess(qint64 pid);

/// The living processes that `pid` has started itself; none where that is not to be had.
QList<qint64> ChildrenOf(qint64 pid);
