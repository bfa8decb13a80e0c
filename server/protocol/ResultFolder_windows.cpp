// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ResultFolder.h"

#include "job/values/FileProblem_windows.h"
#include "job/values/NativePath_windows.h"
#include "job/values/Phrase.h"

#include <QDir>

#include <qt_windows.h>

namespace BatchProtocol {

namespace {

/// Opens a folder so that it can be neither renamed nor removed meanwhile.
HANDLE OpenFolder(const QString& path, DWORD flags)
{
    return CreateFileW(BatchJob::NativePath(path).c_str(), FILE_LIST_DIRECTORY, FILE_SHARE_READ | FILE_SHARE_WRITE,
                       nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | flags, nullptr);
}

/// Whether the open folder stands for another one. Folders of clouds are reparse points too, but no links.
bool IsLink(HANDLE folder)
{
    FILE_ATTRIBUTE_TAG_INFO found = {};
    return GetFileInformationByHandleEx(folder, FileAttributeTagInfo, &found, sizeof(found)) &&
           (found.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 && IsReparseTagNameSurrogate(found.ReparseTag);
}

} // namespace

ResultFolder::~ResultFolder()
{
    for (void* const handle : handles) {
        CloseHandle(handle);
    }
}

bool ResultFolder::OpenRoot(const QString& root, Missing missing)
{
    if (missing == Missing::Make) {
        QDir().mkpath(root);
    }
    const HANDLE handle = OpenFolder(root, 0);
    if (handle == INVALID_HANDLE_VALUE) {
        error = QStringLiteral("%1: %2").arg(root, BatchJob::FileProblem(GetLastError()));
        return false;
    }
    handles.push_back(handle);
    return true;
}

bool ResultFolder::EnterAtOnce(const QString&)
{
    return false;
}

/// Goes into the folder `folder`. Its parent is open and cannot be replaced.
bool ResultFolder::Enter(const QString& folder, const QString&, Missing missing)
{
    if (missing == Missing::Make && !CreateDirectoryW(BatchJob::NativePath(folder).c_str(), nullptr) &&
        GetLastError() != ERROR_ALREADY_EXISTS) {
        error = BatchJob::Phrase::English("the folder %1 cannot be made: %2")
                    .arg(folder, BatchJob::FileProblem(GetLastError()));
        return false;
    }
    const HANDLE handle = OpenFolder(folder, FILE_FLAG_OPEN_REPARSE_POINT);
    if (handle == INVALID_HANDLE_VALUE) {
        error = QStringLiteral("%1: %2").arg(folder, BatchJob::FileProblem(GetLastError()));
        return false;
    }
    handles.push_back(handle);
    if (IsLink(handle)) {
        error = BatchJob::Phrase::English("%1 is a link; results are not written through it unless links are followed")
                    .arg(folder);
        return false;
    }
    return true;
}

} // namespace BatchProtocol
