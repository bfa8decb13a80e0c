// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchHost {

/// Holds a temporary folder of this process as long as the process lives, so that others can tell it from one that a
/// killed process has left.
class TempFolderHold
{
public:
    explicit TempFolderHold(const QString& folder);
    ~TempFolderHold();

    /// False if another process took the new folder for one that was left, and removed it.
    bool IsHeld() const { return isHeld; }

    /// Removes the folders in `parent` that nobody holds, as far as they belong to this user and their names consist of
    /// `start` and six letters or digits. Follows no links.
    static void Sweep(const QString& parent, const QString& start);

private:
    Q_DISABLE_COPY(TempFolderHold)

    qintptr handle = -1; ///< of the system, to the folder or to a file in it
    bool isHeld = false;
};

} // namespace BatchHost
