// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchSupervisor {

/// The descriptor of the listening socket that the host made for this pipe, see HostPipe; -1 when it made none. Call it
/// once, before any other process is started: the socket and its variable are not passed on.
int TakePipeOfHost(const QString& pipeName);

} // namespace BatchSupervisor
