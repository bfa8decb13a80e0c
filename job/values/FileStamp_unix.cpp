// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FileStamp.h"

#include <QFile>

#include <sys/stat.h>

#ifdef Q_OS_LINUX
#include <sys/vfs.h>

#include <algorithm>
#include <array>
#endif

namespace BatchJob {

namespace {

#ifdef Q_OS_LINUX
/// Whether the file system of `path` numbers its files anew when it is mounted. The numbers are those of
/// <linux/magic.h>.
bool AskForPassingNumbers(const char* path)
{
    constexpr std::array<quint32, 7> types{
        0x4d44,     // FAT
        0x2011bab0, // exFAT
        0x517b,     // SMB
        0xfe534d42, // SMB 2
        0xff534d42, // CIFS
        0x65735546, // FUSE
        0x01021997, // 9P
    };
    struct statfs found = {};
    return ::statfs(path, &found) != 0 || std::find(types.begin(), types.end(), quint32(found.f_type)) != types.end();
}

/// The same of a file on `device`. Many files in a row are on one.
bool HasPassingNumbers(const char* path, dev_t device)
{
    static thread_local dev_t lastDevice = 0;
    static thread_local bool wasPassing = true;
    if (device != lastDevice) {
        wasPassing = AskForPassingNumbers(path);
        lastDevice = device;
    }
    return wasPassing;
}
#else
bool HasPassingNumbers(const char*, dev_t)
{
    return true; // Nothing is known about them.
}
#endif

qint64 ModifiedOf(const struct stat& found)
{
    constexpr qint64 nanoseconds = 1'000'000'000;
#ifdef Q_OS_DARWIN
    const timespec time = found.st_mtimespec;
#else
    const timespec time = found.st_mtim;
#endif
    return qint64(time.tv_sec) * nanoseconds + qint64(time.tv_nsec);
}

} // namespace

std::optional<FileStamp> StampOf(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat found = {};
    if (::stat(name.constData(), &found) != 0 || !S_ISREG(found.st_mode)) {
        return std::nullopt;
    }
    return FileStamp{qint64(found.st_size), ModifiedOf(found),
                     HasPassingNumbers(name.constData(), found.st_dev) ? 0 : quint64(found.st_ino)};
}

std::optional<FileStamp> StampOfResult(const QString& path)
{
    struct stat found = {};
    if (::lstat(QFile::encodeName(path).constData(), &found) != 0 || !S_ISREG(found.st_mode)) {
        return std::nullopt;
    }
    return FileStamp{qint64(found.st_size), ModifiedOf(found), 0};
}

} // namespace BatchJob
