// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TempFolderHold.h"

#include <QByteArray>
#include <QFile>
#include <QRegularExpression>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace BatchHost {

namespace {

constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

bool IsDot(const char* name)
{
    return qstrcmp(name, ".") == 0 || qstrcmp(name, "..") == 0;
}

/// Removes what is in the open folder, and closes it. Deeper than `levels` it removes nothing: a folder of this program
/// has no such folders.
void RemoveContent(int folder, int levels)
{
    DIR* const entries = fdopendir(folder);
    if (!entries) {
        close(folder);
        return;
    }
    while (const dirent* const entry = readdir(entries)) {
        if (IsDot(entry->d_name) || unlinkat(folder, entry->d_name, 0) == 0 || levels == 0) {
            continue;
        }
        const int below = openat(folder, entry->d_name, folderFlags);
        if (below >= 0) {
            RemoveContent(below, levels - 1);
            unlinkat(folder, entry->d_name, AT_REMOVEDIR);
        }
    }
    closedir(entries);
}

void RemoveIfLeft(int parent, const char* name)
{
    constexpr int levels = 20;
    const int folder = openat(parent, name, folderFlags);
    struct stat status;
    if (folder < 0) {
        return;
    }
    if (fstat(folder, &status) != 0 || status.st_uid != geteuid() || flock(folder, LOCK_EX | LOCK_NB) != 0) {
        close(folder);
        return;
    }
    // The folder stays locked until it is gone.
    RemoveContent(fcntl(folder, F_DUPFD_CLOEXEC, 0), levels);
    unlinkat(parent, name, AT_REMOVEDIR);
    close(folder);
}

} // namespace

TempFolderHold::TempFolderHold(const QString& folder)
    : handle(open(QFile::encodeName(folder).constData(), folderFlags))
{
    struct stat status;
    isHeld = handle >= 0 && flock(int(handle), LOCK_SH) == 0 && fstat(int(handle), &status) == 0 && status.st_nlink > 0;
}

TempFolderHold::~TempFolderHold()
{
    if (handle >= 0) {
        close(int(handle));
    }
}

void TempFolderHold::Sweep(const QString& parent, const QString& start)
{
    const int folder = open(QFile::encodeName(parent).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    DIR* const entries = folder < 0 ? nullptr : fdopendir(folder);
    if (!entries) {
        return;
    }
    const QRegularExpression form(QStringLiteral("\\A%1[A-Za-z0-9]{6}\\z").arg(QRegularExpression::escape(start)));
    while (const dirent* const entry = readdir(entries)) {
        if (form.match(QFile::decodeName(entry->d_name)).hasMatch()) {
            RemoveIfLeft(folder, entry->d_name);
        }
    }
    closedir(entries);
}

} // namespace BatchHost
