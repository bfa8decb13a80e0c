#pragma once

#include "ZVCoreGlobal.h"

#include <QString>

/// A lasting reference to a file or folder that the user chose.
///
/// Where the platform grants access by path, the path is all that has to be kept; a sandboxed product replaces this
/// class with one that keeps the grant too. A value type; use one object on one thread at a time.
class VELKORA_CORE_EXPORT ZVFileBookmark
{
public:
    /// An empty bookmark: it refers to no place.
    ZVFileBookmark() = default;

    /// A bookmark of `path`, which need not exist. An empty path gives an empty bookmark.
    explicit ZVFileBookmark(const QString& path);

    /// Whether it refers to no place at all.
    bool IsEmpty() const;

    /// The path it was made from; empty for an empty bookmark.
    QString Path() const;

    /// Whether the place exists now. Asks the file system at each call; false for an empty bookmark and for a
    /// symbolic link that leads nowhere.
    bool Exists() const;

private:
    QString path;
};
