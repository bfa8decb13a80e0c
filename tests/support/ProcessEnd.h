#pragma once

/// Makes the system end this process together with the one that started it, where the system can do that.
void EndWithParent();

/// A crash of this process leaves no core file behind.
void AbortQuietly();
