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
{
    const QString parent = ParentFolder();
    TempFolderHold::Sweep(parent, nameStart);
    // Another process that sweeps may take the new folder for one that was left, until it is held.
    constexpr int attempts = 10;
    for (int attempt = 0; attempt < attempts && !(hold && hold->IsHeld()); ++attempt) {
        folder = std::make_unique<QTemporaryDir>(parent + QLatin1Char('/') + nameStart + QStringLiteral("XXXXXX"));
        hold = folder->isValid() ? std::make_unique<TempFolderHold>(folder->path()) : nullptr;
    }
    if (folder->isValid()) {
        qputenv("TMPDIR", QFile::encodeName(folder->path()));
    }
}

PrivateTempFolder::~PrivateTempFolder() = default;

} // namespace BatchHost
