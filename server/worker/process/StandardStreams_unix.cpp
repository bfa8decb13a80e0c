// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "StandardStreams.h"

#include <fcntl.h>
#include <unistd.h>

namespace BatchWorker {

int TakeStandardOutput()
{
    const int own = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    dup2(STDERR_FILENO, STDOUT_FILENO);
    return own;
}

int StandardInput()
{
    return STDIN_FILENO;
}

bool IsInputTyped()
{
    return isatty(STDIN_FILENO) == 1;
}

} // namespace BatchWorker
