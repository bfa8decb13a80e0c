// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchSupervisor {

/// The descriptor of the socket that listens on the pipe already because the host made it, see HostPipe; -1 when there
/// is none. To be called once, before other processes are started: they neither inherit the socket nor hear of it.
int TakePipeOfHost(const QString& pipeName);

} // namespace BatchSupervisor
