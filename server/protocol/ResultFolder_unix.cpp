// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ResultFolder.h"

#include "job/values/Phrase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#ifdef Q_OS_LINUX
#include <linux/openat2.h>
#include <sys/syscall.h>
#endif

namespace BatchProtocol {

namespace {

#ifdef O_PATH
constexpr int folderFlags = O_PATH | O_DIRECTORY | O_CLOEXEC; // Needs no right to read the folder.
#else
constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
#endif

bool IsLink(int folder, const QByteArray& name)
{
    struct stat status;
    return fstatat(folder, name.constData(), &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISLNK(status.st_mode);
}

int OpenBelow(int root, const QByteArray& path)
{
#ifdef SYS_openat2
    open_how how = {};
    how.flags = folderFlags;
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS;
    return int(syscall(SYS_openat2, root, path.constData(), &how, sizeof(how)));
#else
    Q_UNUSED(root)
    Q_UNUSED(path)
    return -1;
#endif
}

} // namespace

ResultFolder::~ResultFolder()
{
    if (descriptor >= 0) {
        close(descriptor);
    }
}

bool ResultFolder::OpenRoot(const QString& root, Missing missing)
{
    if (missing == Missing::Make) {
        QDir().mkpath(root);
    }
    descriptor = open(QFile::encodeName(root).constData(), folderFlags);
    if (descriptor < 0) {
        error = QStringLiteral("%1: %2").arg(root, qt_error_string(errno));
    }
    return descriptor >= 0;
}

bool ResultFolder::EnterAtOnce(const QString& below)
{
    const int opened = OpenBelow(descriptor, QFile::encodeName(below));
    if (opened >= 0) {
        close(std::exchange(descriptor, opened));
    }
    return opened >= 0;
}

/// Goes from the open folder into its folder `name`, whose path is `folder`.
bool ResultFolder::Enter(const QString& folder, const QString& name, Missing missing)
{
    const QByteArray nativeName = QFile::encodeName(name);
    if (missing == Missing::Make && mkdirat(descriptor, nativeName.constData(), 0777) != 0 && errno != EEXIST) {
        error = BatchJob::Phrase::English("the folder %1 cannot be made: %2").arg(folder, qt_error_string(errno));
        return false;
    }
    const int next = openat(descriptor, nativeName.constData(), folderFlags | O_NOFOLLOW);
    if (next < 0) {
        const int problem = errno;
        error = IsLink(descriptor, nativeName)
                    ? BatchJob::Phrase::English(
                          "%1 is a link; results are not written through it unless links are followed")
                          .arg(folder)
                    : QStringLiteral("%1: %2").arg(folder, qt_error_string(problem));
        return false;
    }
    close(std::exchange(descriptor, next));
    return true;
}

} // namespace BatchProtocol
