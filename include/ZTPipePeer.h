// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchGlobal.h"

class QLocalSocket;

/// Who is at the other end of a pipe. Its name may lie in a folder that all users share.
namespace ZTPipePeer {

/// Whether the process at the other end of `socket`, a connection in either direction, belongs to the user of this
/// process. False when that cannot be determined. On the thread of the socket.
BATCHCORE_EXPORT bool IsOfThisUser(const QLocalSocket& socket);

} // namespace ZTPipePeer
