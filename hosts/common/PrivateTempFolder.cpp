// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PrivateTempFolder.h"

#include <QDir>
#include <QFile>

namespace BatchHost {

namespace {

/// The path of a socket may have 107 bytes; this is left for its folder.
constexpr int longestFolder = 70;

const QString nameStart = QStringLiteral("velkora-batch-");

QString ParentFolder()
{
    const QString preferred = QDir::tempPath();
#ifdef Q_OS_UNIX
    if (QFile::encodeName(preferred).size() + nameStart.size() + 7 > longestFolder) {
        return QStringLiteral("/tmp");
    }
#endif
    return preferred;
}

} // namespace

PrivateTempFolder::PrivateTempFolder()
    : folder(ParentFolder(), nameStart)
{
    if (folder.Error().isEmpty()) {
        variables.emplace(folder.Path());
    }
}

PrivateTempFolder::~PrivateTempFolder() = default;

} // namespace BatchHost
