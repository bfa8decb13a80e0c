// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Lines of the server's log that answer commands which change nothing. A host that has heard nothing for a while sends
/// one, to see whether the server is alive.
namespace BatchJob::CommandLog {

/// The run is not paused.
inline QString NotPaused()
{
    return QStringLiteral("There is nothing to resume.");
}

/// The session has no run, or none any more.
inline QString NoRun()
{
    return QStringLiteral("No run is active: the command is ignored.");
}

} // namespace BatchJob::CommandLog
