// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "OfferedPipe.h"

namespace BatchHost {

// A named pipe has a server's end for each connection, and the process that made an end is the one that a host asks for
// its user. There is nothing that could be made beforehand and handed over.
OfferedPipe::OfferedPipe() = default;

OfferedPipe::~OfferedPipe() = default;

} // namespace BatchHost
