#include "TemporaryFile.h"

#include "TemporaryName.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace BatchProtocol {

namespace {

QString FolderOf(const QString& fileName)
{
    return QFileInfo(fileName).path();
}

bool IsStillThere(int descriptor)
{
    struct stat status;
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_nlink > 0;
}

// Renames without replacing. Not every file system supports this flag of renameat2(), and not every one hard links.
int RenameToFreeName(const QByteArray& from, const QByteArray& to)
{
#ifdef RENAME_NOREPLACE
    if (renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0) {
        return 0;
    }
    if (errno != EINVAL && errno != ENOSYS && errno != EOPNOTSUPP) {
        return errno;
    }
#endif
    if (link(from.constData(), to.constData()) != 0) {
        return errno;
    }
    unlink(from.constData());
    return 0;
}

// Failure is no error: the file itself is on disk, and not every file system can flush folders.
void FlushFolder(const QString& folder)
{
    const int descriptor = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        fsync(descriptor);
        close(descriptor);
    }
}

} // namespace

TemporaryFile::TemporaryFile(const QString& finalName)
    : finalName(finalName)
{
}

TemporaryFile::~TemporaryFile()
{
    if (descriptor >= 0) {
        if (!fileName.isEmpty()) {
            unlink(QFile::encodeName(fileName).constData());
        }
        close(descriptor);
    }
}

bool TemporaryFile::Create()
{
    Q_ASSERT(descriptor < 0);
    // A sweep of another process may lock or remove the file before it is locked here; then try again.
    for (int attempt = 0; attempt < 100; ++attempt) {
        const QString name = NewTemporaryName(FolderOf(finalName));
        const QByteArray path = QFile::encodeName(name);
        const int file = open(path.constData(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
        if (file < 0) {
            if (errno == EEXIST) {
                continue;
            }
            return Fail(errno);
        }
        const bool isHeldByOther = flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
        if (!isHeldByOther && IsStillThere(file)) {
            descriptor = file;
            fileName = name;
            return true;
        }
        unlink(path.constData());
        close(file);
    }
    return Fail(EBUSY);
}

TemporaryFile::Placement TemporaryFile::Place(bool replaceExisting)
{
    if (fsync(descriptor) != 0) {
        Fail(errno);
        return Placement::Failed;
    }
    const QByteArray from = QFile::encodeName(fileName);
    const QByteArray to = QFile::encodeName(finalName);
    int problem = 0;
    if (!replaceExisting) {
        problem = RenameToFreeName(from, to);
    } else if (rename(from.constData(), to.constData()) != 0) {
        problem = errno;
    }
    if (problem != 0) {
        Fail(problem);
        return problem == EEXIST ? Placement::NameTaken : Placement::Failed;
    }
    fileName.clear();
    FlushFolder(FolderOf(finalName));
    return Placement::Done;
}

int TemporaryFile::Sweep(const QString& folder)
{
    int count = 0;
    const QStringList names = QDir(folder).entryList({QStringLiteral(".velkora-*.tmp")}, QDir::Files | QDir::Hidden);
    for (const QString& name : names) {
        if (!IsTemporaryName(name)) {
            continue;
        }
        const QByteArray path = QFile::encodeName(folder + QLatin1Char('/') + name);
        const int file = open(path.constData(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
        if (file < 0) {
            continue;
        }
        if (flock(file, LOCK_EX | LOCK_NB) == 0 && IsStillThere(file) && unlink(path.constData()) == 0) {
            ++count;
        }
        close(file);
    }
    return count;
}

bool TemporaryFile::Fail(int errorNumber)
{
    error = qt_error_string(errorNumber);
    return false;
}

} // namespace BatchProtocol
