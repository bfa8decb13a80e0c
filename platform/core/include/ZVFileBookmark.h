// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZVCoreGlobal.h"

#include <QString>

/// A persistent reference to a file or folder that the user chose.
///
/// Where the platform grants access by path, storing the path is enough; a sandboxed product replaces this class with
/// one that also stores the grant. A value type; use each object on one thread at a time.
class VELKORA_CORE_EXPORT ZVFileBookmark
{
public:
    /// An empty bookmark, which refers to nothing.
    ZVFileBookmark() = default;

    /// A bookmark of `path`, which need not exist. An empty path gives an empty bookmark.
    explicit ZVFileBookmark(const QString& path);

    /// Whether the bookmark refers to nothing.
    bool IsEmpty() const;

    /// The path given to the constructor; empty for an empty bookmark.
    QString Path() const;

    /// Whether the path exists. Checks the file system at each call; false for an empty bookmark and for a dangling
    /// symbolic link.
    bool Exists() const;

private:
    QString path;
};
