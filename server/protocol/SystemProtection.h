// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

namespace BatchProtocol {

/// What this system has to keep workers, which decode pictures from anywhere, away from everything else.
struct SystemProtection
{
    /// Whether the system can confine a process at all in the way that workers are.
    bool canConfine = false;

    int fileAccess = 0;         ///< the version (ABI) of Landlock; 0: access to files is not restricted
    bool hasCallFilter = false; ///< seccomp: system calls are restricted

    /// What holds here, for people, a line each.
    QStringList Description() const;

    /// What is missing here, and what follows from that, for logs, a sentence each. Empty when nothing is missing.
    QStringList Missing() const;

    static SystemProtection OfThisSystem();
};

} // namespace BatchProtocol
