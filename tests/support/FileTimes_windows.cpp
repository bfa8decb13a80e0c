// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FileTimes.h"

#include <QDir>

#include <qt_windows.h>

namespace {

HANDLE Open(const QString& path, DWORD access)
{
    return CreateFileW(QDir::toNativeSeparators(path).toStdWString().c_str(), access,
                       FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                       FILE_FLAG_BACKUP_SEMANTICS, nullptr); // The flag opens folders too.
}

bool SetTime(const QString& path, const FILETIME& changed)
{
    const HANDLE file = Open(path, FILE_WRITE_ATTRIBUTES);
    const bool isSet = SetFileTime(file, nullptr, nullptr, &changed) != FALSE;
    CloseHandle(file);
    return isSet;
}

} // namespace

bool CopyFileTime(const QString& from, const QString& to)
{
    FILETIME changed{};
    const HANDLE file = Open(from, FILE_READ_ATTRIBUTES);
    const bool isKnown = GetFileTime(file, nullptr, nullptr, &changed) != FALSE;
    CloseHandle(file);
    return isKnown && SetTime(to, changed);
}

bool MakeOlder(const QString& path, int seconds)
{
    constexpr quint64 unitsOfSecond = 10'000'000;
    FILETIME now{};
    GetSystemTimeAsFileTime(&now);
    const quint64 then = (quint64(now.dwHighDateTime) << 32 | now.dwLowDateTime) - quint64(seconds) * unitsOfSecond;
    return SetTime(path, {DWORD(then), DWORD(then >> 32)});
}
