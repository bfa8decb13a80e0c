// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TempFolderHold.h"

#include "job/values/NativePath_windows.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <qt_windows.h>

namespace BatchHost {

namespace {

/// A file in the folder that cannot be removed while its process lives.
std::wstring HoldIn(const QString& folder)
{
    return BatchJob::NativePath(folder + QStringLiteral("/in-use"));
}

bool IsLink(const QString& folder)
{
    const DWORD attributes = GetFileAttributesW(BatchJob::NativePath(folder).c_str());
    return attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

} // namespace

TempFolderHold::TempFolderHold(const QString& folder)
{
    const HANDLE file = CreateFileW(HoldIn(folder).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    isHeld = file != INVALID_HANDLE_VALUE;
    handle = isHeld ? reinterpret_cast<qintptr>(file) : -1;
}

TempFolderHold::~TempFolderHold()
{
    if (isHeld) {
        CloseHandle(reinterpret_cast<HANDLE>(handle));
    }
}

void TempFolderHold::Sweep(const QString& parent, const QString& start)
{
    // The temporary folder belongs to the user here. A killed process leaves its folder without the file that holds it;
    // one that is just being made lacks that file too, so that a folder has to be of some age.
    constexpr int age = 60; // s
    const QRegularExpression form(QStringLiteral("\\A%1[A-Za-z0-9]{6}\\z").arg(QRegularExpression::escape(start)));
    const QFileInfoList folders =
        QDir(parent).entryInfoList({start + QLatin1Char('*')}, QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QFileInfo& folder : folders) {
        const bool isHeld = GetFileAttributesW(HoldIn(folder.filePath()).c_str()) != INVALID_FILE_ATTRIBUTES;
        if (!isHeld && form.match(folder.fileName()).hasMatch() && !IsLink(folder.filePath()) &&
            folder.lastModified().secsTo(QDateTime::currentDateTime()) > age) {
            QDir(folder.filePath()).removeRecursively();
        }
    }
}

} // namespace BatchHost
