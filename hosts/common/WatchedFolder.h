// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ArrivedFiles.h"
#include "InputCollector.h"

class ZTBatchDocument;

namespace BatchHost {

/// A folder into which pictures come one by one.
class WatchedFolder
{
public:
    /// `path` is absolute.
    WatchedFolder(const QString& path, const InputFilter& filter)
        : path(path)
        , filter(filter)
    {
    }

    struct Content
    {
        QString error; ///< why the folder itself cannot be read; empty when it was
        QVector<SeenFile> files;
        QStringList folders;  ///< itself, and those below it that are read
        QStringList problems; ///< one sentence each
    };

    /// The files that may become inputs. Those with names of temporary files are left out.
    Content Look() const;

    /// Adds those of `files` that are still there to `job`, in their folders.
    void AddTo(ZTBatchDocument& job, const QVector<SeenFile>& files) const;

private:
    const QString path;
    const InputFilter filter;
};

} // namespace BatchHost
