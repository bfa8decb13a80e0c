// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FileIdentity.h"

#include <QFile>

#include <sys/stat.h>

namespace BatchJob {

std::optional<FileIdentity> IdentityOf(const QString& path)
{
    struct stat found = {};
    if (::stat(QFile::encodeName(path).constData(), &found) != 0) {
        return std::nullopt;
    }
    return FileIdentity{quint64(found.st_dev), quint64(found.st_ino)};
}

std::optional<qint64> ChangeTimeOf(const QString& path)
{
    constexpr qint64 nanoseconds = 1'000'000'000;
    struct stat found = {};
    if (::lstat(QFile::encodeName(path).constData(), &found) != 0) {
        return std::nullopt;
    }
#ifdef Q_OS_DARWIN
    const timespec time = found.st_ctimespec;
#else
    const timespec time = found.st_ctim;
#endif
    return qint64(time.tv_sec) * nanoseconds + qint64(time.tv_nsec);
}

} // namespace BatchJob
