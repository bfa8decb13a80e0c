// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FileCalls.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace BatchWorker {

namespace {

qint64 Nanoseconds(const timespec& time)
{
    constexpr qint64 ofSecond = 1'000'000'000;
    return qint64(time.tv_sec) * ofSecond + qint64(time.tv_nsec);
}

} // namespace

QString FileProblem(int number)
{
    return qt_error_string(number);
}

int OpenForReading(const QString& file)
{
    return open(QFile::encodeName(file).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
}

int DuplicateOf(int descriptor)
{
    return fcntl(descriptor, F_DUPFD_CLOEXEC, 0);
}

bool IsRegularFile(int descriptor)
{
    struct stat status;
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

qint64 SizeOfFile(int descriptor)
{
    struct stat status;
    return fstat(descriptor, &status) == 0 ? qint64(status.st_size) : -1;
}

qint64 ReadAt(int descriptor, void* target, qint64 length, qint64 place)
{
    ssize_t count = 0;
    do {
        count = pread(descriptor, target, std::size_t(length), off_t(place));
    } while (count < 0 && errno == EINTR);
    return count;
}

void LimitFileSize(qint64) {}

qint64 WriteSome(int descriptor, const void* bytes, qint64 length)
{
    return ::write(descriptor, bytes, std::size_t(length));
}

qint64 MoveTo(int descriptor, qint64 offset, int whence)
{
    return lseek(descriptor, off_t(offset), whence);
}

bool OpenFile(QFile& file, const QString& path, QIODevice::OpenMode mode)
{
    file.setFileName(path);
    return file.open(mode);
}

vips::VSource SourceOf(int descriptor)
{
    return vips::VSource::new_from_descriptor(descriptor);
}

void CopyTimes(const QString& path, int descriptor)
{
    struct stat status;
    if (stat(QFile::encodeName(path).constData(), &status) == 0) {
        const timespec times[2] = {status.st_atim, status.st_mtim};
        futimens(descriptor, times);
    }
}

FileState StateOf(const QString& path)
{
    struct stat status;
    if (stat(QFile::encodeName(path).constData(), &status) != 0) {
        return {};
    }
    return {quint64(status.st_dev), quint64(status.st_ino), qint64(status.st_size), Nanoseconds(status.st_mtim),
            Nanoseconds(status.st_ctim)};
}

} // namespace BatchWorker
