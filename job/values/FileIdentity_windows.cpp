// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FileIdentity.h"

#include "NativePath_windows.h"

#include <qt_windows.h>

namespace BatchJob {

namespace {

HANDLE Open(const QString& path, DWORD access, DWORD flags)
{
    return CreateFileW(NativePath(path).c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                       nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | flags, nullptr);
}

} // namespace

std::optional<FileIdentity> IdentityOf(const QString& path)
{
    const HANDLE file = Open(path, 0, 0);
    if (file == INVALID_HANDLE_VALUE) {
        return std::nullopt;
    }
    BY_HANDLE_FILE_INFORMATION found = {};
    const bool isKnown = GetFileInformationByHandle(file, &found) != 0;
    CloseHandle(file);
    if (!isKnown) {
        return std::nullopt;
    }
    return FileIdentity{found.dwVolumeSerialNumber, (quint64(found.nFileIndexHigh) << 32U) | found.nFileIndexLow};
}

std::optional<qint64> ChangeTimeOf(const QString& path)
{
    const HANDLE file = Open(path, FILE_READ_ATTRIBUTES, FILE_FLAG_OPEN_REPARSE_POINT);
    if (file == INVALID_HANDLE_VALUE) {
        return std::nullopt;
    }
    FILE_BASIC_INFO found = {};
    const bool isKnown = GetFileInformationByHandleEx(file, FileBasicInfo, &found, sizeof(found)) != 0;
    CloseHandle(file);
    if (!isKnown) {
        return std::nullopt;
    }
    // In units of 100 ns since 1601.
    constexpr qint64 fromUnixEpoch = 116'444'736'000'000'000;
    return (found.ChangeTime.QuadPart - fromUnixEpoch) * 100;
}

} // namespace BatchJob
