// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QFileInfo>
#include <QString>

#include <string>

namespace BatchJob {

/// `path` as Windows' own functions take it, however long it is. They refuse longer ones without the prefix.
inline std::wstring NativePath(const QString& path)
{
    constexpr int longestPlain = 247; // what a folder may have; files may have 12 more
    const QString native = QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    if (native.size() <= longestPlain || native.startsWith(QLatin1String("\\\\?\\"))) {
        return QDir::toNativeSeparators(path).toStdWString();
    }
    if (native.startsWith(QLatin1String("\\\\"))) {
        return (QStringLiteral("\\\\?\\UNC") + native.mid(1)).toStdWString();
    }
    return (QStringLiteral("\\\\?\\") + native).toStdWString();
}

} // namespace BatchJob
