// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FileCalls.h"

#include "job/values/FileProblem_windows.h"
#include "job/values/NativePath_windows.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <limits>
#include <memory>
#include <qt_windows.h>

namespace BatchWorker {

namespace {

constexpr qint64 mostAtOnce = 1 << 30; // bytes of one call

std::atomic<qint64> largestFile{std::numeric_limits<qint64>::max()};

HANDLE HandleOf(int descriptor)
{
    return reinterpret_cast<HANDLE>(_get_osfhandle(descriptor));
}

void NoteProblem(DWORD problem)
{
    switch (problem) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
        errno = ENOENT;
        break;
    case ERROR_ACCESS_DENIED:
        errno = EACCES;
        break;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
        errno = EBUSY;
        break;
    case ERROR_TOO_MANY_OPEN_FILES:
        errno = EMFILE;
        break;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        errno = ENOSPC;
        break;
    case ERROR_FILE_TOO_LARGE:
        errno = EFBIG;
        break;
    case ERROR_WRITE_PROTECT:
        errno = EROFS;
        break;
    default:
        errno = EIO;
        break;
    }
}

int DescriptorOf(HANDLE file, int mode = _O_RDONLY)
{
    const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(file), mode | _O_BINARY | _O_NOINHERIT);
    if (descriptor < 0) {
        CloseHandle(file);
    }
    return descriptor;
}

// Folders can be opened too: what is no file is refused later, by its kind.
HANDLE Open(const QString& path, DWORD access)
{
    return CreateFileW(BatchJob::NativePath(path).c_str(), access,
                       FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                       FILE_FLAG_BACKUP_SEMANTICS, nullptr);
}

qint64 Number(const FILETIME& time)
{
    return qint64((quint64(time.dwHighDateTime) << 32U) | time.dwLowDateTime);
}

/// An open file that the imaging library reads through functions of the worker.
class SharedFile
{
public:
    explicit SharedFile(int original)
        : descriptor(DuplicateOf(original))
    {
    }
    ~SharedFile() { _close(descriptor); }

    gint64 Read(void* target, gint64 length)
    {
        const qint64 count = ReadAt(descriptor, target, length, position);
        position += std::max<qint64>(count, 0);
        return count;
    }

    gint64 Seek(gint64 offset, int whence)
    {
        const qint64 start = whence == SEEK_CUR ? position : whence == SEEK_END ? SizeOfFile(descriptor) : 0;
        if (start < 0 || start + offset < 0) {
            return -1;
        }
        position = start + offset;
        return position;
    }

private:
    Q_DISABLE_COPY(SharedFile)

    int descriptor;
    gint64 position = 0;
};

gint64 ReadShared(VipsSourceCustom*, void* target, gint64 length, void* file)
{
    return static_cast<SharedFile*>(file)->Read(target, length);
}

gint64 SeekShared(VipsSourceCustom*, gint64 offset, int whence, void* file)
{
    return static_cast<SharedFile*>(file)->Seek(offset, whence);
}

} // namespace

// The system has other numbers.
QString FileProblem(int number)
{
    switch (number) {
    case EBUSY:
        return BatchJob::FileProblem(ERROR_SHARING_VIOLATION);
    case EACCES:
        return BatchJob::FileProblem(ERROR_ACCESS_DENIED);
    case ENOSPC:
        return BatchJob::FileProblem(ERROR_DISK_FULL);
    case EFBIG:
        return BatchJob::FileProblem(ERROR_FILE_TOO_LARGE);
    case EROFS:
        return BatchJob::FileProblem(ERROR_WRITE_PROTECT);
    case EMFILE:
        return BatchJob::FileProblem(ERROR_TOO_MANY_OPEN_FILES);
    case ENOENT:
        return BatchJob::FileProblem(ERROR_FILE_NOT_FOUND);
    default:
        return BatchJob::FileProblem(ERROR_IO_DEVICE);
    }
}

int OpenForReading(const QString& file)
{
    const HANDLE opened = Open(file, GENERIC_READ);
    if (opened == INVALID_HANDLE_VALUE) {
        NoteProblem(GetLastError());
        return -1;
    }
    return DescriptorOf(opened);
}

int DuplicateOf(int descriptor)
{
    HANDLE duplicate = nullptr;
    if (!DuplicateHandle(GetCurrentProcess(), HandleOf(descriptor), GetCurrentProcess(), &duplicate, 0, FALSE,
                         DUPLICATE_SAME_ACCESS)) {
        NoteProblem(GetLastError());
        return -1;
    }
    return DescriptorOf(duplicate);
}

bool IsRegularFile(int descriptor)
{
    BY_HANDLE_FILE_INFORMATION found = {};
    const HANDLE file = HandleOf(descriptor);
    return GetFileType(file) == FILE_TYPE_DISK && GetFileInformationByHandle(file, &found) &&
           (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

qint64 SizeOfFile(int descriptor)
{
    LARGE_INTEGER size = {};
    if (!GetFileSizeEx(HandleOf(descriptor), &size)) {
        NoteProblem(GetLastError());
        return -1;
    }
    return size.QuadPart;
}

qint64 ReadAt(int descriptor, void* target, qint64 length, qint64 place)
{
    OVERLAPPED from = {};
    from.Offset = DWORD(quint64(place));
    from.OffsetHigh = DWORD(quint64(place) >> 32U);
    DWORD count = 0;
    if (ReadFile(HandleOf(descriptor), target, DWORD(std::clamp<qint64>(length, 0, mostAtOnce)), &count, &from)) {
        return count;
    }
    const DWORD problem = GetLastError();
    if (problem == ERROR_HANDLE_EOF) {
        return 0;
    }
    NoteProblem(problem);
    return -1;
}

void LimitFileSize(qint64 bytes)
{
    largestFile = bytes;
}

qint64 WriteSome(int descriptor, const void* bytes, qint64 length)
{
    if (MoveTo(descriptor, 0, SEEK_CUR) > largestFile - length) {
        errno = EFBIG;
        return -1;
    }
    DWORD count = 0;
    const auto size = DWORD(std::clamp<qint64>(length, 0, mostAtOnce));
    if (!WriteFile(HandleOf(descriptor), bytes, size, &count, nullptr)) {
        NoteProblem(GetLastError());
        return -1;
    }
    if (count == 0 && size > 0) {
        NoteProblem(ERROR_DISK_FULL);
        return -1;
    }
    return count;
}

qint64 MoveTo(int descriptor, qint64 offset, int whence)
{
    return _lseeki64(descriptor, offset, whence);
}

// The result is already open with the right to rename it. Another handle is refused unless it allows that, too.
bool OpenFile(QFile& file, const QString& path, QIODevice::OpenMode mode)
{
    const bool isWritten = (mode & QIODevice::WriteOnly) != 0;
    const HANDLE opened = Open(path, isWritten ? GENERIC_READ | GENERIC_WRITE : GENERIC_READ);
    if (opened == INVALID_HANDLE_VALUE) {
        NoteProblem(GetLastError());
        return false;
    }
    const int descriptor = DescriptorOf(opened, isWritten ? _O_RDWR : _O_RDONLY);
    return descriptor >= 0 && file.open(descriptor, mode & ~QIODevice::ExistingOnly, QFile::AutoCloseHandle);
}

vips::VSource SourceOf(int descriptor)
{
    auto file = std::make_unique<SharedFile>(descriptor);
    VipsSourceCustom* const source = vips_source_custom_new();
    g_signal_connect(source, "read", G_CALLBACK(ReadShared), file.get());
    g_signal_connect(source, "seek", G_CALLBACK(SeekShared), file.get());
    const auto deleteFile = [](gpointer held) { delete static_cast<SharedFile*>(held); };
    g_object_set_data_full(G_OBJECT(source), "shared-file", file.release(), deleteFile);
    return vips::VSource(VIPS_SOURCE(source));
}

void CopyTimes(const QString& path, int descriptor)
{
    const HANDLE from = Open(path, FILE_READ_ATTRIBUTES);
    if (from == INVALID_HANDLE_VALUE) {
        return;
    }
    FILETIME accessed = {};
    FILETIME modified = {};
    if (GetFileTime(from, nullptr, &accessed, &modified)) {
        SetFileTime(HandleOf(descriptor), nullptr, &accessed, &modified);
    }
    CloseHandle(from);
}

FileState StateOf(const QString& path)
{
    const HANDLE file = Open(path, FILE_READ_ATTRIBUTES);
    if (file == INVALID_HANDLE_VALUE) {
        return {};
    }
    FileState state;
    BY_HANDLE_FILE_INFORMATION found = {};
    FILE_BASIC_INFO times = {};
    if (GetFileInformationByHandle(file, &found) &&
        GetFileInformationByHandleEx(file, FileBasicInfo, &times, sizeof(times))) {
        state.device = found.dwVolumeSerialNumber;
        state.file = (quint64(found.nFileIndexHigh) << 32U) | found.nFileIndexLow;
        state.bytes = qint64((quint64(found.nFileSizeHigh) << 32U) | found.nFileSizeLow);
        state.modified = Number(found.ftLastWriteTime);
        state.changed = times.ChangeTime.QuadPart;
    }
    CloseHandle(file);
    return state;
}

} // namespace BatchWorker
