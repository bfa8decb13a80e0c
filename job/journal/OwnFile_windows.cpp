// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "OwnFile.h"

#include "job/values/FileProblem_windows.h"
#include "job/values/NativePath_windows.h"
#include "job/values/Phrase.h"

#include <QByteArray>

#include <qt_windows.h>

#include <aclapi.h>
#include <fcntl.h>
#include <io.h>

namespace BatchJob {

namespace {

/// The users as whom this process creates files: itself and, for administrators, their group.
bool IsOfThisProcess(PSID owner)
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token)) {
        return false;
    }
    bool isOwn = false;
    for (const TOKEN_INFORMATION_CLASS kind : {TokenUser, TokenOwner}) {
        DWORD size = 0;
        GetTokenInformation(token, kind, nullptr, 0, &size);
        QByteArray information(int(size), '\0');
        if (GetTokenInformation(token, kind, information.data(), size, &size)) {
            // Both records begin with the identifier.
            isOwn = isOwn || EqualSid(owner, *reinterpret_cast<PSID*>(information.data()));
        }
    }
    CloseHandle(token);
    return isOwn;
}

/// Memory cards often have a file system without owners.
bool HasOwners(HANDLE file)
{
    DWORD flags = 0;
    return GetVolumeInformationByHandleW(file, nullptr, 0, nullptr, nullptr, &flags, nullptr, 0) &&
           (flags & FILE_PERSISTENT_ACLS) != 0;
}

QString ProblemWith(HANDLE file)
{
    BY_HANDLE_FILE_INFORMATION found = {};
    if (!GetFileInformationByHandle(file, &found)) {
        return qt_error_string(int(GetLastError()));
    }
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        return Phrase::English("it is a link");
    }
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return Phrase::English("it is not a file");
    }
    PSID owner = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    const bool isOwn = GetSecurityInfo(file, SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, &owner, nullptr, nullptr,
                                       nullptr, &descriptor) == ERROR_SUCCESS &&
                       IsOfThisProcess(owner);
    LocalFree(descriptor);
    if (!isOwn && HasOwners(file)) {
        return Phrase::English("it belongs to another user");
    }
    return found.nNumberOfLinks == 1 ? QString() : Phrase::English("it has more than one name");
}

HANDLE OpenHandle(const QString& path, DWORD access, DWORD disposition)
{
    constexpr DWORD shared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    return CreateFileW(NativePath(path).c_str(), access | READ_CONTROL, shared, nullptr, disposition,
                       FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
}

bool Open(QFile& file, const QString& path, DWORD disposition, QIODevice::OpenMode mode, QString& problem)
{
    const bool isWritten = mode.testFlag(QIODevice::WriteOnly);
    const HANDLE handle = OpenHandle(path, GENERIC_READ | (isWritten ? GENERIC_WRITE : 0), disposition);
    if (handle == INVALID_HANDLE_VALUE) {
        problem = FileProblem(GetLastError());
        return false;
    }
    problem = ProblemWith(handle);
    if (!problem.isEmpty()) {
        CloseHandle(handle);
        return false;
    }
    const int flags =
        _O_BINARY | (isWritten ? _O_RDWR : _O_RDONLY) | (mode.testFlag(QIODevice::Append) ? _O_APPEND : 0);
    const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(handle), flags);
    if (!file.open(descriptor, mode | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle)) {
        problem = file.errorString();
        _close(descriptor);
        return false;
    }
    return true;
}

} // namespace

bool CreateOwnFile(QFile& file, const QString& path, QString& problem)
{
    return Open(file, path, CREATE_NEW, QIODevice::ReadWrite | QIODevice::Append, problem);
}

bool OpenOwnFile(QFile& file, const QString& path, OwnFileUse use, QString& problem)
{
    switch (use) {
    case OwnFileUse::Read:
        return Open(file, path, OPEN_EXISTING, QIODevice::ReadOnly, problem);
    case OwnFileUse::Append:
        return Open(file, path, OPEN_EXISTING, QIODevice::ReadWrite | QIODevice::Append, problem);
    case OwnFileUse::Change:
        break;
    }
    return Open(file, path, OPEN_EXISTING, QIODevice::ReadWrite, problem);
}

QString WhyNotOwnLock(const QString& path)
{
    const HANDLE handle = OpenHandle(path, 0, OPEN_EXISTING);
    if (handle == INVALID_HANDLE_VALUE) {
        return {};
    }
    const QString problem = ProblemWith(handle);
    CloseHandle(handle);
    return problem;
}

} // namespace BatchJob
