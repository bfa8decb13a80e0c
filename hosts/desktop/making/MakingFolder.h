// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/common/HeldFolder.h"

#include <QString>

namespace BatchDesktop {

/// The private folders of what this process makes, previews above all. They are removed with this object, or by the
/// next process if this one is killed.
class MakingFolder
{
public:
    MakingFolder();

    /// Why there is no folder; empty when there is one.
    QString Error() const;

    /// Where the files are: in memory, if the system has such a place for this user and it has room.
    QString Path() const { return files.Path(); }
    QString FilePath(const QString& name) const { return files.FilePath(name); }

    /// Where the workers put what does not fit into their memory.
    QString TemporaryPath() const { return temporary.Path(); }

private:
    const BatchHost::HeldFolder files;
    const BatchHost::HeldFolder temporary;
};

} // namespace BatchDesktop
