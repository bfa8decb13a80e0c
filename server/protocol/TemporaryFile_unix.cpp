// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TemporaryFile.h"

#include "TemporaryName.h"

#include "job/values/Phrase.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

using BatchJob::Phrase;

namespace BatchProtocol {

namespace {

constexpr mode_t ownerMayWrite = 0600;

bool IsStillThere(int descriptor)
{
    struct stat status;
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_nlink > 0;
}

bool IsUnknownToFileSystem(int problem)
{
    return problem == EINVAL || problem == ENOSYS || problem == EOPNOTSUPP || problem == EPERM;
}

// Renames without replacing, by what most file systems know.
int RenameAtOnce(int folder, const QByteArray& from, const QByteArray& to)
{
#ifdef RENAME_NOREPLACE
    if (renameat2(folder, from.constData(), folder, to.constData(), RENAME_NOREPLACE) == 0) {
        return 0;
    }
    if (!IsUnknownToFileSystem(errno)) {
        return errno;
    }
#endif
    if (linkat(folder, from.constData(), folder, to.constData(), 0) != 0) {
        return errno;
    }
    unlinkat(folder, from.constData(), 0);
    return 0;
}

// Some file systems of networks know neither that flag nor hard links. There an empty file, a placeholder, takes the
// name, which only one process can do, and is replaced.
int RenameToFreeName(int folder, const QByteArray& from, const QByteArray& to)
{
    const int problem = RenameAtOnce(folder, from, to);
    if (!IsUnknownToFileSystem(problem)) {
        return problem;
    }
    const int placeholder =
        openat(folder, to.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, ownerMayWrite);
    if (placeholder < 0) {
        return errno;
    }
    close(placeholder);
    if (renameat(folder, from.constData(), folder, to.constData()) == 0) {
        return 0;
    }
    const int problemOfRename = errno;
    unlinkat(folder, to.constData(), 0);
    return problemOfRename;
}

bool IsEmptyFile(int folder, const QByteArray& name)
{
    struct stat status;
    return fstatat(folder, name.constData(), &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(status.st_mode) &&
           status.st_size == 0;
}

/// Opens the folder anew, to read it or to flush it.
int OpenForReading(int folder)
{
    return openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

// Failure is no error: the file itself is on disk, and not every file system can flush folders.
void FlushFolder(int folder)
{
    const int descriptor = OpenForReading(folder);
    if (descriptor >= 0) {
        fsync(descriptor);
        close(descriptor);
    }
}

/// Reads `size` bytes at `place`. False if there are fewer.
bool ReadBlock(int file, char* bytes, std::size_t size, off_t place)
{
    while (size > 0) {
        const ssize_t count = pread(file, bytes, size, place);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return false;
        }
        bytes += count;
        place += count;
        size -= std::size_t(count);
    }
    return true;
}

bool HaveSameBytes(int one, int other, off_t size)
{
    constexpr off_t blockSize = 256 << 10;
    std::vector<char> ofOne(blockSize);
    std::vector<char> ofOther(blockSize);
    for (off_t place = 0; place < size; place += blockSize) {
        const auto count = std::size_t(std::min(blockSize, size - place));
        if (!ReadBlock(one, ofOne.data(), count, place) || !ReadBlock(other, ofOther.data(), count, place) ||
            !std::equal(ofOne.begin(), ofOne.begin() + off_t(count), ofOther.begin())) {
            return false;
        }
    }
    return true;
}

void SweepFile(int folder, const char* name, TemporaryFile::Sweeping& sweeping)
{
    const int file = openat(folder, name, O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) {
        return;
    }
    if (flock(file, LOCK_EX | LOCK_NB) == 0) {
        sweeping.removed += IsStillThere(file) && unlinkat(folder, name, 0) == 0 ? 1 : 0;
    } else if (errno != EWOULDBLOCK && IsStillThere(file)) {
        ++sweeping.unclear;
    }
    close(file);
}

} // namespace

TemporaryFile::TemporaryFile(const QString& finalName, const QString& root)
    : finalName(finalName)
    , root(root)
{
}

TemporaryFile::~TemporaryFile()
{
    if (descriptor >= 0) {
        if (!name.isEmpty()) {
            unlinkat(folder.Descriptor(), QFile::encodeName(name).constData(), 0);
        }
        close(descriptor);
    }
}

QString TemporaryFile::FileName() const
{
    return name.isEmpty() ? QString() : QFileInfo(finalName).path() + QLatin1Char('/') + name;
}

bool TemporaryFile::Create()
{
    Q_ASSERT(descriptor < 0);
    if (!folder.Open(root, QFileInfo(finalName).path(), ResultFolder::Missing::Fail)) {
        error = folder.Error();
        return false;
    }
    // A sweep of another process may lock or remove the file before it is locked here; then try again.
    for (int attempt = 0; attempt < 100; ++attempt) {
        const QString newName = NewTemporaryName();
        const QByteArray native = QFile::encodeName(newName);
        const int file =
            openat(folder.Descriptor(), native.constData(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
        if (file < 0) {
            if (errno == EEXIST) {
                continue;
            }
            return Fail(errno);
        }
        const bool isHeldByOther = flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
        if (!isHeldByOther && IsStillThere(file)) {
            descriptor = file;
            name = newName;
            return true;
        }
        unlinkat(folder.Descriptor(), native.constData(), 0);
        close(file);
    }
    return Fail(EBUSY);
}

QString TemporaryFile::OpenPath() const
{
    const QString path = QStringLiteral("/proc/self/fd/%1").arg(descriptor);
    struct stat here;
    struct stat there;
    const bool isSame = fstat(descriptor, &here) == 0 && stat(QFile::encodeName(path).constData(), &there) == 0 &&
                        here.st_dev == there.st_dev && here.st_ino == there.st_ino;
    return isSame ? path : FileName();
}

TemporaryFile::Placement TemporaryFile::Place(bool replaceExisting)
{
    if (fsync(descriptor) != 0) {
        Fail(errno);
        return Placement::Failed;
    }
    const QByteArray from = QFile::encodeName(name);
    const QByteArray to = QFile::encodeName(QFileInfo(finalName).fileName());
    int problem = 0;
    if (!replaceExisting) {
        problem = RenameToFreeName(folder.Descriptor(), from, to);
    } else if (renameat(folder.Descriptor(), from.constData(), folder.Descriptor(), to.constData()) != 0) {
        problem = errno;
    }
    if (problem == EEXIST) {
        error = Phrase::English("\"%1\" exists already").arg(finalName);
        return Placement::NameTaken;
    }
    if (problem != 0) {
        Fail(problem);
        return Placement::Failed;
    }
    name.clear();
    FlushFolder(folder.Descriptor());
    return Placement::Done;
}

bool TemporaryFile::HasTwin() const
{
    const QByteArray finalFile = QFile::encodeName(QFileInfo(finalName).fileName());
    // Nobody may keep the worker waiting at the end of a pipe.
    const int twin = openat(folder.Descriptor(), finalFile.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (twin < 0) {
        return false;
    }
    struct stat own;
    struct stat other;
    const bool isEqual = fstat(descriptor, &own) == 0 && fstat(twin, &other) == 0 && S_ISREG(other.st_mode) &&
                         own.st_size == other.st_size && HaveSameBytes(descriptor, twin, own.st_size);
    close(twin);
    return isEqual;
}

bool TemporaryFile::RemovePlaceholder() const
{
    const int inFolder = folder.Descriptor();
    const QByteArray finalFile = QFile::encodeName(QFileInfo(finalName).fileName());
    if (!IsEmptyFile(inFolder, finalFile)) {
        return false;
    }
    // The system itself says of a name that is taken that it is; so a free one is tried.
    const QByteArray own = QFile::encodeName(name);
    const QByteArray other = QFile::encodeName(NewTemporaryName());
    const int problem = RenameAtOnce(inFolder, own, other);
    if (problem == 0) {
        renameat(inFolder, other.constData(), inFolder, own.constData());
        return false;
    }
    return IsUnknownToFileSystem(problem) && IsEmptyFile(inFolder, finalFile) &&
           unlinkat(inFolder, finalFile.constData(), 0) == 0;
}

TemporaryFile::Sweeping TemporaryFile::Sweep(const QString& path, const QString& root)
{
    Sweeping sweeping;
    ResultFolder folder;
    if (!folder.Open(root, path, ResultFolder::Missing::Fail)) {
        return sweeping;
    }
    const int readable = OpenForReading(folder.Descriptor());
    DIR* const entries = readable < 0 ? nullptr : fdopendir(readable);
    if (!entries) {
        return sweeping;
    }
    while (const dirent* const entry = readdir(entries)) {
        if (IsTemporaryName(QFile::decodeName(entry->d_name))) {
            SweepFile(folder.Descriptor(), entry->d_name, sweeping);
        }
    }
    closedir(entries);
    return sweeping;
}

bool TemporaryFile::Fail(int errorNumber)
{
    error = qt_error_string(errorNumber);
    return false;
}

} // namespace BatchProtocol
