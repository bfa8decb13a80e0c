// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Links.h"

#include <QDir>
#include <QFileInfo>

#include <qt_windows.h>

namespace {

std::wstring Native(const QString& path)
{
    return QDir::toNativeSeparators(path).toStdWString();
}

} // namespace

bool MakeLink(const QString& target, const QString& path)
{
    // Windows makes links for administrators and developers only. Wine 8.0 makes none, and says that it did.
    const DWORD kind = QFileInfo(target).isDir() ? SYMBOLIC_LINK_FLAG_DIRECTORY : 0;
    if (!CreateSymbolicLinkW(Native(path).c_str(), Native(target).c_str(), kind)) {
        return false;
    }
    const DWORD attributes = GetFileAttributesW(Native(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

bool MakeHardLink(const QString& path, const QString& name)
{
    return CreateHardLinkW(Native(name).c_str(), Native(path).c_str(), nullptr) != FALSE;
}
