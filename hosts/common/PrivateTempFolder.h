// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "HeldFolder.h"
#include "TempVariables.h"

#include <optional>

namespace BatchHost {

/// A temporary folder for this process and its server only, which becomes theirs for all temporary files. On Unix the
/// pipe between them has a fixed name in it; in a shared folder two hosts would get in each other's way. Removed with
/// this object, or by the next object of another process if this process is killed.
class PrivateTempFolder
{
public:
    PrivateTempFolder();
    ~PrivateTempFolder();

    /// Why the folder could not be made; empty when it was. The server cannot be reached without it.
    QString Error() const { return folder.Error(); }

    void Remove() { folder.Remove(); }

private:
    Q_DISABLE_COPY(PrivateTempFolder)

    HeldFolder folder;
    std::optional<TempVariables> variables;
};

} // namespace BatchHost
