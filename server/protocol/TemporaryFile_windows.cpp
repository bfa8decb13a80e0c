// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TemporaryFile.h"

#include "TemporaryName.h"

#include "job/values/FileProblem_windows.h"
#include "job/values/NativePath_windows.h"
#include "job/values/Phrase.h"

#include <QDir>
#include <QFileInfo>
#include <QThread>

#include <qt_windows.h>

#include <algorithm>
#include <cstring>
#include <fcntl.h>
#include <io.h>
#include <vector>

using BatchJob::NativePath;
using BatchJob::Phrase;

namespace BatchProtocol {

namespace {

HANDLE HandleOf(int descriptor)
{
    return reinterpret_cast<HANDLE>(_get_osfhandle(descriptor));
}

/// While the file is open nobody else may remove or rename it: that is the lock here. What encoders leave out is
/// written by libraries that open the file once more.
int OpenLocked(const QString& path)
{
    const HANDLE file =
        CreateFileW(NativePath(path).c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                    nullptr, CREATE_NEW, FILE_ATTRIBUTE_HIDDEN, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return -1;
    }
    return _open_osfhandle(reinterpret_cast<intptr_t>(file), _O_RDWR | _O_BINARY);
}

/// Renames an open file, so that its lock holds until it has its final name.
DWORD Rename(HANDLE file, const QString& to, bool replaceExisting)
{
    const std::wstring name = NativePath(QFileInfo(to).absoluteFilePath());
    const std::size_t nameBytes = name.size() * sizeof(wchar_t);
    std::vector<char> memory(sizeof(FILE_RENAME_INFO) + nameBytes);
    auto* const info = reinterpret_cast<FILE_RENAME_INFO*>(memory.data());
    info->ReplaceIfExists = replaceExisting ? TRUE : FALSE;
    info->FileNameLength = static_cast<DWORD>(nameBytes);
    std::memcpy(info->FileName, name.data(), nameBytes);
    const auto size = static_cast<DWORD>(memory.size());
    return SetFileInformationByHandle(file, FileRenameInfo, info, size) ? ERROR_SUCCESS : GetLastError();
}

/// Whether a program has the file open, whatever it lets others do meanwhile.
bool IsOpen(const QString& path)
{
    const HANDLE file = CreateFileW(NativePath(path).c_str(), DELETE, 0, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return BatchJob::IsOpenElsewhere(GetLastError());
    }
    CloseHandle(file);
    return false;
}

/// Renames the file, which may have to wait a moment: other programs look at new files, such as those that search for
/// viruses.
DWORD RenamePatiently(HANDLE file, const QString& to, bool replaceExisting)
{
    constexpr int attempts = 31;
    constexpr unsigned long pause = 100; // ms
    for (int attempt = 1;; ++attempt) {
        const DWORD problem = Rename(file, to, replaceExisting);
        const bool isRefused = problem == ERROR_ACCESS_DENIED || BatchJob::IsOpenElsewhere(problem);
        if (!isRefused || attempt == attempts || !IsOpen(to)) {
            return problem;
        }
        QThread::msleep(pause);
    }
}

/// Why `path` cannot be replaced, beyond what `problem` says; empty if nothing more is known.
QString WhyNotReplaced(const QString& path, DWORD problem)
{
    if (problem != ERROR_ACCESS_DENIED && !BatchJob::IsOpenElsewhere(problem)) {
        return {};
    }
    if (IsOpen(path)) {
        return Phrase::English("\"%1\" cannot be replaced: it is open in another program").arg(path);
    }
    const DWORD attributes = GetFileAttributesW(NativePath(path).c_str());
    const bool isReadOnly = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
    return isReadOnly ? Phrase::English("\"%1\" cannot be replaced: it is read-only").arg(path) : QString();
}

/// Reads `size` bytes at `place`. False if there are fewer.
bool ReadBlock(HANDLE file, char* bytes, DWORD size, qint64 place)
{
    OVERLAPPED from{};
    from.Offset = DWORD(place);
    from.OffsetHigh = DWORD(place >> 32);
    DWORD count = 0;
    return ReadFile(file, bytes, size, &count, &from) && count == size;
}

bool HaveSameBytes(HANDLE one, HANDLE other)
{
    constexpr qint64 blockSize = 256 << 10;
    LARGE_INTEGER size;
    LARGE_INTEGER sizeOfOther;
    if (!GetFileSizeEx(one, &size) || !GetFileSizeEx(other, &sizeOfOther) || size.QuadPart != sizeOfOther.QuadPart) {
        return false;
    }
    std::vector<char> ofOne(blockSize);
    std::vector<char> ofOther(blockSize);
    for (qint64 place = 0; place < size.QuadPart; place += blockSize) {
        const auto count = DWORD(std::min<qint64>(blockSize, size.QuadPart - place));
        if (!ReadBlock(one, ofOne.data(), count, place) || !ReadBlock(other, ofOther.data(), count, place) ||
            !std::equal(ofOne.begin(), ofOne.begin() + qint64(count), ofOther.begin())) {
            return false;
        }
    }
    return true;
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
        _close(descriptor);
        if (!name.isEmpty()) {
            DeleteFileW(NativePath(FileName()).c_str());
        }
    }
}

QString TemporaryFile::FileName() const
{
    return name.isEmpty() ? QString() : QFileInfo(finalName).path() + QLatin1Char('/') + name;
}

bool TemporaryFile::Create()
{
    Q_ASSERT(descriptor < 0);
    // While the folder is open, it cannot be replaced, so that its path leads to it.
    if (!folder.Open(root, QFileInfo(finalName).path(), ResultFolder::Missing::Fail)) {
        error = folder.Error();
        return false;
    }
    for (int attempt = 0; attempt < 100; ++attempt) {
        name = NewTemporaryName();
        descriptor = OpenLocked(FileName());
        if (descriptor >= 0) {
            return true;
        }
        const DWORD problem = GetLastError();
        name.clear();
        if (problem != ERROR_FILE_EXISTS) {
            return Fail(static_cast<int>(problem));
        }
    }
    return Fail(ERROR_FILE_EXISTS);
}

QString TemporaryFile::OpenPath() const
{
    return FileName();
}

TemporaryFile::Placement TemporaryFile::Place(bool replaceExisting)
{
    const HANDLE file = HandleOf(descriptor);
    // Only the temporary file is hidden, not the result.
    const bool isReady =
        FlushFileBuffers(file) && SetFileAttributesW(NativePath(FileName()).c_str(), FILE_ATTRIBUTE_NORMAL);
    const DWORD problem = isReady ? RenamePatiently(file, finalName, replaceExisting) : GetLastError();
    if (problem == ERROR_ALREADY_EXISTS || problem == ERROR_FILE_EXISTS) {
        error = Phrase::English("\"%1\" exists already").arg(finalName);
        return Placement::NameTaken;
    }
    if (problem != ERROR_SUCCESS) {
        Fail(static_cast<int>(problem));
        const QString more = isReady ? WhyNotReplaced(finalName, problem) : QString();
        error = more.isEmpty() ? error : more;
        return Placement::Failed;
    }
    name.clear();
    return Placement::Done;
}

bool TemporaryFile::HasTwin() const
{
    const HANDLE twin = CreateFileW(NativePath(finalName).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (twin == INVALID_HANDLE_VALUE) {
        return false;
    }
    FILE_ATTRIBUTE_TAG_INFO kind;
    constexpr DWORD noFile = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    const bool isFile = GetFileInformationByHandleEx(twin, FileAttributeTagInfo, &kind, sizeof(kind)) &&
                        (kind.FileAttributes & noFile) == 0;
    const bool isEqual = isFile && HaveSameBytes(HandleOf(descriptor), twin);
    CloseHandle(twin);
    return isEqual;
}

bool TemporaryFile::RemovePlaceholder() const
{
    return false; // Every file system renames without replacing.
}

TemporaryFile::Sweeping TemporaryFile::Sweep(const QString& path, const QString& root)
{
    Sweeping sweeping;
    ResultFolder folder;
    if (!folder.Open(root, path, ResultFolder::Missing::Fail)) {
        return sweeping;
    }
    const QStringList names = QDir(path).entryList({QStringLiteral(".velkora-*.tmp")}, QDir::Files | QDir::Hidden);
    for (const QString& name : names) {
        if (IsTemporaryName(name) && DeleteFileW(NativePath(path + QLatin1Char('/') + name).c_str())) {
            ++sweeping.removed;
        }
    }
    return sweeping;
}

bool TemporaryFile::Fail(int errorNumber)
{
    error = BatchJob::FileProblem(DWORD(errorNumber));
    return false;
}

} // namespace BatchProtocol
