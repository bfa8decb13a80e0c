// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

namespace BatchCli {

/// Prepares the process: replaces standard channels that are closed, makes file names and texts UTF-8 and the system's
/// messages English for this process and its children whatever the locale, binds forked copies to it, see
/// EndForkedCopiesWithThisProcess(), and makes files that exceed a limit of the system fail instead of ending the
/// process. Must be called on the main thread, before anything of Qt.
void PrepareProcess();

/// From now on the process continues when the reader of its output has gone.
void OutliveReaders();

/// The arguments without the program's name. Throws RequestError for one that a QString cannot hold.
QStringList Arguments(int argc, char** argv);

} // namespace BatchCli
