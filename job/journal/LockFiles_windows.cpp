// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "LockFiles.h"

#include "job/values/FileProblem_windows.h"
#include "job/values/NativePath_windows.h"

#include <QLockFile>

#include <qt_windows.h>

#include <array>

namespace BatchJob {

namespace {

/// Whether the disk has room for what a lock holds.
bool HasRoomFor(const QString& path)
{
    const HANDLE file = CreateFileW(NativePath(path + QStringLiteral(".room")).c_str(), GENERIC_WRITE, 0, nullptr,
                                    CREATE_ALWAYS, FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return IsOpenElsewhere(GetLastError()); // Another process is looking.
    }
    const std::array<char, 512> bytes{};
    DWORD count = 0;
    const bool isWritten = WriteFile(file, bytes.data(), DWORD(bytes.size()), &count, nullptr) &&
                           count == DWORD(bytes.size()) && FlushFileBuffers(file);
    CloseHandle(file);
    return isWritten;
}

} // namespace

bool HasHolderEnded(const QLockFile&)
{
    return false; // No other process can inherit a lock.
}

// A lock that cannot be written stays as an empty file, which QLockFile keeps open.
bool TakeLock(QLockFile& lock, const QString& path, int timeout)
{
    return HasRoomFor(path) && lock.tryLock(timeout);
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
