// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "TempFolderHold.h"

#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace BatchHost {

/// A new folder of this process in `parent`, whose name is `start` and six letters or digits. Removed with this object,
/// or by the next object of another process with the same `start` if this process is killed.
class HeldFolder
{
public:
    HeldFolder(const QString& parent, const QString& start);
    ~HeldFolder();

    /// Why the folder could not be made; empty when it was.
    QString Error() const { return folder->isValid() ? QString() : folder->errorString(); }

    QString Path() const { return folder->path(); }
    QString FilePath(const QString& name) const { return folder->filePath(name); }

    void Remove() { folder->remove(); }

private:
    Q_DISABLE_COPY(HeldFolder)

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<TempFolderHold> hold; ///< released before the folder is removed
};

} // namespace BatchHost
