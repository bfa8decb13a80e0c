// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Console.h"

#include <sys/ioctl.h>
#include <unistd.h>

namespace BatchCli {

namespace {

int ColumnsOf(int channel)
{
    winsize size{};
    constexpr int fallback = 80;
    return ioctl(channel, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : fallback;
}

} // namespace

bool Terminal::IsInputTerminal()
{
    return isatty(STDIN_FILENO) == 1;
}

bool Terminal::IsErrorTerminal()
{
    return isatty(STDERR_FILENO) == 1;
}

int Terminal::Columns()
{
    return ColumnsOf(STDERR_FILENO);
}

int Terminal::OutputColumns()
{
    return ColumnsOf(STDOUT_FILENO);
}

} // namespace BatchCli
