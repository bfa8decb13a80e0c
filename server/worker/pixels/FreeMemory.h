// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

namespace BatchWorker {

/// How many bytes this process may still take, by the limit that it was given; very many without a limit. Libraries
/// that end the process where memory is short are asked for no more than this.
qint64 FreeMemory();

/// Opens what FreeMemory() reads, for a process that cannot open it later.
void OpenMemoryAccount();

} // namespace BatchWorker
