// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Console.h"

#include <qt_windows.h>

namespace BatchCli {

namespace {

/// The console at standard error, with escape sequences switched on until this process ends. A console without them
/// counts as no terminal.
class ErrorConsole
{
public:
    ErrorConsole()
        : console(GetStdHandle(STD_ERROR_HANDLE))
    {
        constexpr DWORD wanted = ENABLE_PROCESSED_OUTPUT | ENABLE_VIRTUAL_TERMINAL_PROCESSING;
        isThere = GetConsoleMode(console, &before) && SetConsoleMode(console, before | wanted);
    }

    ~ErrorConsole()
    {
        if (isThere) {
            SetConsoleMode(console, before);
        }
    }

    bool IsThere() const { return isThere; }

private:
    Q_DISABLE_COPY(ErrorConsole)

    const HANDLE console;
    DWORD before = 0;
    bool isThere = false;
};

int ColumnsOf(DWORD channel)
{
    CONSOLE_SCREEN_BUFFER_INFO info;
    constexpr int fallback = 80;
    return GetConsoleScreenBufferInfo(GetStdHandle(channel), &info) != 0 ? info.srWindow.Right - info.srWindow.Left + 1
                                                                         : fallback;
}

} // namespace

bool Terminal::IsInputTerminal()
{
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(STD_INPUT_HANDLE), &mode);
}

bool Terminal::IsErrorTerminal()
{
    static const ErrorConsole console;
    return console.IsThere();
}

int Terminal::Columns()
{
    return ColumnsOf(STD_ERROR_HANDLE);
}

int Terminal::OutputColumns()
{
    return ColumnsOf(STD_OUTPUT_HANDLE);
}

} // namespace BatchCli
