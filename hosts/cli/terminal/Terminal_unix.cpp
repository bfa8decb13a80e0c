#include "Console.h"

#include <sys/ioctl.h>
#include <unistd.h>

namespace BatchCli {

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
    winsize size{};
    constexpr int fallback = 80;
    return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : fallback;
}

} // namespace BatchCli
