// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ProcessSetup.h"

#include "server/protocol/ParentProcess.h"

#include <QCoreApplication>

#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <qt_windows.h>

namespace BatchSupervisor {

namespace {

std::function<void()> endRequested;
std::function<void()> starterGone;

/// Called by the system on a thread of its own.
BOOL WINAPI Handle(DWORD event)
{
    if (event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT) {
        return TRUE; // It is for the host.
    }
    if (!endRequested) {
        return FALSE;
    }
    QMetaObject::invokeMethod(QCoreApplication::instance(), endRequested, Qt::QueuedConnection);
    // The console closes or the user logs off. The process lives until this returns, a few seconds at most.
    Sleep(INFINITE);
    return TRUE;
}

/// Called by the system on a thread of its own.
void CALLBACK OnParentEnd(void*, BOOLEAN)
{
    QMetaObject::invokeMethod(QCoreApplication::instance(), starterGone, Qt::QueuedConnection);
}

} // namespace

// File names are Unicode on this system.
void ProcessSetup::Prepare(bool)
{
    // The pipes between processes carry bytes, not text.
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
    SetConsoleCtrlHandler(&Handle, TRUE);
    // Child processes inherit that Ctrl-C is ignored.
    SetConsoleCtrlHandler(nullptr, TRUE);
}

void ProcessSetup::OnEndRequest(const std::function<void()>& end)
{
    endRequested = end;
}

void ProcessSetup::OnStarterGone(const std::function<void()>& gone)
{
    starterGone = gone;
    const HANDLE parent = BatchProtocol::OpenParentOf(GetCurrentProcessId());
    if (!parent) {
        OnParentEnd(nullptr, FALSE);
        return;
    }
    HANDLE wait = nullptr;
    RegisterWaitForSingleObject(&wait, parent, OnParentEnd, nullptr, INFINITE, WT_EXECUTEONLYONCE);
}

} // namespace BatchSupervisor
