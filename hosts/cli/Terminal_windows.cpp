#include "Console.h"

#include <io.h>
#include <windows.h>

namespace BatchCli {

bool Terminal::IsInputTerminal()
{
    return _isatty(0) != 0;
}

bool Terminal::IsErrorTerminal()
{
    return _isatty(2) != 0;
}

int Terminal::Columns()
{
    CONSOLE_SCREEN_BUFFER_INFO info;
    constexpr int fallback = 80;
    return GetConsoleScreenBufferInfo(GetStdHandle(STD_ERROR_HANDLE), &info) != 0
               ? info.srWindow.Right - info.srWindow.Left + 1
               : fallback;
}

} // namespace BatchCli
