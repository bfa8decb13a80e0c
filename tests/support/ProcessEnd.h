#pragma once

#include <QtGlobal>

/// Makes the system end this process together with the one that started it, where the system can do that.
void EndWithParent();

/// A crash of this process leaves no core file and no window behind.
void CrashQuietly();

/// Ends this process in a way that its parent sees as a crash.
[[noreturn]] void Crash();

bool IsProcessAlive(qint64 pid);
void KillProcess(qint64 pid);
