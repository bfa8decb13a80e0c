// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "OwnFile.h"

#include "job/values/Phrase.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace BatchJob {

namespace {

constexpr mode_t ownerOnly = S_IRUSR | S_IWUSR;
constexpr mode_t writableByOthers = S_IWGRP | S_IWOTH;

QString ProblemWith(const struct stat& status)
{
    if (S_ISLNK(status.st_mode)) {
        return Phrase::English("it is a link");
    }
    if (!S_ISREG(status.st_mode)) {
        return Phrase::English("it is not a file");
    }
    if (status.st_uid != geteuid()) {
        return Phrase::English("it belongs to another user");
    }
    return status.st_nlink == 1 ? QString() : Phrase::English("it has more than one name");
}

/// Whether other users may write the open file. File systems without permissions, as on memory cards, show every file
/// as writable for all, and do not let that be changed; there, permissions say nothing.
bool IsWritableByOthers(int descriptor, const struct stat& status)
{
    if ((status.st_mode & writableByOthers) == 0) {
        return false;
    }
    struct stat narrowed;
    const bool hasPermissions = fchmod(descriptor, ownerOnly) == 0 && fstat(descriptor, &narrowed) == 0 &&
                                (narrowed.st_mode & writableByOthers) == 0;
    // What others may have written stays suspicious the next time too.
    fchmod(descriptor, status.st_mode & ALLPERMS);
    return hasPermissions;
}

QString ProblemWithOpen(int descriptor)
{
    struct stat status;
    if (fstat(descriptor, &status) != 0) {
        return qt_error_string(errno);
    }
    const QString problem = ProblemWith(status);
    if (problem.isEmpty() && IsWritableByOthers(descriptor, status)) {
        return Phrase::English("other users may write it");
    }
    return problem;
}

bool Open(QFile& file, const QString& path, int flags, QIODevice::OpenMode mode, QString& problem)
{
    constexpr int safely = O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const int descriptor = open(QFile::encodeName(path).constData(), flags | safely, ownerOnly);
    if (descriptor < 0) {
        problem = errno == ELOOP ? Phrase::English("it is a link") : qt_error_string(errno);
        return false;
    }
    problem = ProblemWithOpen(descriptor);
    if (!problem.isEmpty() || !file.open(descriptor, mode | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle)) {
        problem = problem.isEmpty() ? file.errorString() : problem;
        close(descriptor);
        return false;
    }
    return true;
}

} // namespace

bool CreateOwnFile(QFile& file, const QString& path, QString& problem)
{
    return Open(file, path, O_RDWR | O_APPEND | O_CREAT | O_EXCL, QIODevice::ReadWrite | QIODevice::Append, problem);
}

bool OpenOwnFile(QFile& file, const QString& path, OwnFileUse use, QString& problem)
{
    switch (use) {
    case OwnFileUse::Read:
        return Open(file, path, O_RDONLY, QIODevice::ReadOnly, problem);
    case OwnFileUse::Append:
        return Open(file, path, O_RDWR | O_APPEND, QIODevice::ReadWrite | QIODevice::Append, problem);
    case OwnFileUse::Change:
        break;
    }
    return Open(file, path, O_RDWR, QIODevice::ReadWrite, problem);
}

QString WhyNotOwnLock(const QString& path)
{
    struct stat status;
    return lstat(QFile::encodeName(path).constData(), &status) == 0 ? ProblemWith(status) : QString();
}

} // namespace BatchJob
