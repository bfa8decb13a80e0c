// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EndRequest.h"

#include <QProcess>

#include <qt_windows.h>

// The process gets a console of its own, so that Ctrl-C reaches nobody but it and what it has started.
void AllowEndRequests(QProcess& process)
{
    process.setCreateProcessArgumentsModifier([](QProcess::CreateProcessArguments* arguments) {
        arguments->flags |= CREATE_NO_WINDOW;
        SetConsoleCtrlHandler(nullptr, FALSE); // Otherwise the process would inherit that it ignores Ctrl-C.
    });
}

bool RequestEnd(const QProcess& process)
{
    FreeConsole();
    if (!AttachConsole(DWORD(process.processId()))) {
        return false;
    }
    // The keys are for the process, not for the test.
    SetConsoleCtrlHandler(nullptr, TRUE);
    const bool isAsked = GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0) != FALSE;
    FreeConsole();
    return isAsked;
}
