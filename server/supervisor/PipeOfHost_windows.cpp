// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PipeOfHost.h"

namespace BatchSupervisor {

int TakePipeOfHost(const QString&)
{
    return -1;
}

} // namespace BatchSupervisor
