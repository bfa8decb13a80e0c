// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TemporaryFile.h"

#include "TemporaryName.h"

#include <QDir>
#include <QFileInfo>

#include <qt_windows.h>

#include <cstring>
#include <fcntl.h>
#include <io.h>
#include <vector>

namespace BatchProtocol {

namespace {

std::wstring Native(const QString& path)
{
    return QDir::toNativeSeparators(path).toStdWString();
}

HANDLE HandleOf(int descriptor)
{
    return reinterpret_cast<HANDLE>(_get_osfhandle(descriptor));
}

/// While the file is open nobody else may remove or rename it: that is the lock here. What encoders leave out is
/// written by libraries that open the file once more.
int OpenLocked(const QString& path)
{
    const HANDLE file =
        CreateFileW(Native(path).c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                    nullptr, CREATE_NEW, FILE_ATTRIBUTE_HIDDEN, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return -1;
    }
    return _open_osfhandle(reinterpret_cast<intptr_t>(file), _O_RDWR | _O_BINARY);
}

/// Renames an open file, so that its lock holds until it has its final name.
DWORD Rename(HANDLE file, const QString& to, bool replaceExisting)
{
    const std::wstring name = Native(QFileInfo(to).absoluteFilePath());
    const std::size_t nameBytes = name.size() * sizeof(wchar_t);
    std::vector<char> memory(sizeof(FILE_RENAME_INFO) + nameBytes);
    auto* const info = reinterpret_cast<FILE_RENAME_INFO*>(memory.data());
    info->ReplaceIfExists = replaceExisting ? TRUE : FALSE;
    info->FileNameLength = static_cast<DWORD>(nameBytes);
    std::memcpy(info->FileName, name.data(), nameBytes);
    const auto size = static_cast<DWORD>(memory.size());
    return SetFileInformationByHandle(file, FileRenameInfo, info, size) ? ERROR_SUCCESS : GetLastError();
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
            DeleteFileW(Native(FileName()).c_str());
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
        FlushFileBuffers(file) && SetFileAttributesW(Native(FileName()).c_str(), FILE_ATTRIBUTE_NORMAL);
    const DWORD problem = isReady ? Rename(file, finalName, replaceExisting) : GetLastError();
    if (problem != ERROR_SUCCESS) {
        Fail(static_cast<int>(problem));
        const bool isTaken = problem == ERROR_ALREADY_EXISTS || problem == ERROR_FILE_EXISTS;
        return isTaken ? Placement::NameTaken : Placement::Failed;
    }
    name.clear();
    return Placement::Done;
}

int TemporaryFile::Sweep(const QString& path, const QString& root)
{
    ResultFolder folder;
    if (!folder.Open(root, path, ResultFolder::Missing::Fail)) {
        return 0;
    }
    int count = 0;
    const QStringList names = QDir(path).entryList({QStringLiteral(".velkora-*.tmp")}, QDir::Files | QDir::Hidden);
    for (const QString& name : names) {
        if (IsTemporaryName(name) && DeleteFileW(Native(path + QLatin1Char('/') + name).c_str())) {
            ++count;
        }
    }
    return count;
}

bool TemporaryFile::Fail(int errorNumber)
{
    error = qt_error_string(errorNumber);
    return false;
}

} // namespace BatchProtocol
