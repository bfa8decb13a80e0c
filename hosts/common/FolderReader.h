// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/FileIdentity.h"

#include <QDateTime>
#include <QString>
#include <QVector>

#include <optional>

/// Reads a folder with the system's own calls, so that names that Qt cannot represent are found too.
namespace BatchHost {

struct FolderEntry
{
    enum class Kind { File, Folder, Other };

    QString name;        ///< for a name that a QString cannot hold, a readable form of it with \xNN
    bool hasName = true; ///< false: a QString cannot hold the name, so the entry cannot be opened by it
    Kind kind = Kind::Other;
    bool isLink = false; ///< `kind` and the fields below describe the link's target
    bool isDangling = false;
    QDateTime modified;                             ///< of files, UTC
    std::optional<BatchJob::FileIdentity> identity; ///< of folders
};

struct FolderContent
{
    QString error; ///< why the folder cannot be read; empty when it was
    std::optional<BatchJob::FileIdentity> identity;
    QVector<FolderEntry> entries; ///< unsorted, without "." and ".."
};

FolderContent ReadFolder(const QString& path);

} // namespace BatchHost
