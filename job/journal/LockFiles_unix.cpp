// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "LockFiles.h"

#include "job/values/Phrase.h"

#include <QFile>
#include <QLockFile>
#include <QSysInfo>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace BatchJob {

namespace {

struct Holder
{
    qint64 process = 0;
    QString host;
};

Holder HolderOf(const QLockFile& lock)
{
    Holder holder;
    QString program;
    lock.getLockInfo(&holder.process, &holder.host, &program);
    return holder;
}

/// Whether the file system of the file `path` has locks. A file that is gone, or cannot be opened, says nothing.
bool HasLocks(const QString& path)
{
    const int file = open(QFile::encodeName(path).constData(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) {
        return true;
    }
    const bool hasLocks = flock(file, LOCK_SH | LOCK_NB) == 0 || errno == EWOULDBLOCK;
    close(file);
    return hasLocks;
}

} // namespace

bool HasHolderEnded(const QLockFile& lock)
{
    const Holder holder = HolderOf(lock);
    return holder.process > 0 && holder.host == QSysInfo::machineHostName() && kill(pid_t(holder.process), 0) != 0 &&
           errno == ESRCH;
}

bool TakeLock(QLockFile& lock, const QString& path, int timeout)
{
    if (lock.tryLock(0)) {
        return true;
    }
    if (lock.error() == QLockFile::LockFailedError && HasHolderEnded(lock) && !HasLocks(path)) {
        QFile::remove(path);
    }
    return lock.tryLock(timeout);
}

QString HintAtHolder(const QLockFile& lock, const QString& path)
{
    if (lock.error() != QLockFile::LockFailedError || HasLocks(path)) {
        return {};
    }
    const Holder holder = HolderOf(lock);
    return Phrase::English("%1 says that process %2 of %3 holds it, and the file system has no locks to tell whether "
                           "that process is still there; if it is not, remove that file")
        .arg(path, QString::number(holder.process), holder.host);
}

bool IsWarningOfLocks(const QString& text)
{
    return text.startsWith(QLatin1String("setNativeLocks failed"));
}

} // namespace BatchJob
