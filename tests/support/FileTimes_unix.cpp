// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FileTimes.h"

#include <QFile>

#include <array>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

bool SetTime(const QString& path, const timespec& changed)
{
    timespec read{};
    read.tv_nsec = UTIME_OMIT;
    const std::array<timespec, 2> times{read, changed};
    return ::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times.data(), 0) == 0;
}

} // namespace

bool CopyFileTime(const QString& from, const QString& to)
{
    struct stat found = {};
    return ::stat(QFile::encodeName(from).constData(), &found) == 0 && SetTime(to, found.st_mtim);
}

bool MakeOlder(const QString& path, int seconds)
{
    timespec changed{};
    changed.tv_sec = std::time(nullptr) - seconds;
    return SetTime(path, changed);
}
