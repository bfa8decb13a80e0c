// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "LockFiles.h"

#include <QLockFile>

namespace BatchJob {

bool HasHolderEnded(const QLockFile&)
{
    return false; // No other process can inherit a lock.
}

bool TakeLock(QLockFile& lock, const QString&, int timeout)
{
    return lock.tryLock(timeout);
}

QString HintAtHolder(const QLockFile&, const QString&)
{
    return {};
}

bool IsWarningOfLocks(const QString&)
{
    return false;
}

} // namespace BatchJob
