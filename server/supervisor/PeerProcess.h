// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

class QLocalSocket;

namespace BatchSupervisor {

/// The number of the process that opened the other end of `socket`, an accepted connection; 0 when it is not known.
qint64 PeerProcess(const QLocalSocket& socket);

} // namespace BatchSupervisor
