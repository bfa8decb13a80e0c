#include "Surroundings.h"

#include <QCoreApplication>

#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <qt_windows.h>

namespace BatchSupervisor {

namespace {

std::function<void()> endRequested;

/// The system calls it on a thread of its own.
BOOL WINAPI Handle(DWORD event)
{
    if (event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT) {
        return TRUE; // For the host.
    }
    if (!endRequested) {
        return FALSE;
    }
    QMetaObject::invokeMethod(QCoreApplication::instance(), endRequested, Qt::QueuedConnection);
    // The console is closed or the user goes: the process has until this returns, seconds at most.
    Sleep(INFINITE);
    return TRUE;
}

} // namespace

// File names are Unicode here.
void Surroundings::Prepare()
{
    // What processes tell each other are bytes, not lines of text.
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
    SetConsoleCtrlHandler(&Handle, TRUE);
    // Processes that are started from here inherit this one, as far as Ctrl-C goes.
    SetConsoleCtrlHandler(nullptr, TRUE);
}

void Surroundings::OnEndRequest(const std::function<void()>& end)
{
    endRequested = end;
}

} // namespace BatchSupervisor
