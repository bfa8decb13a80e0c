// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InterruptWatcher.h"

#include <atomic>
#include <qt_windows.h>

namespace BatchCli {

namespace {

std::atomic<InterruptWatcher*> watcher{nullptr};

/// After so many interrupts without an answer the event loop must be stuck: the process ends itself.
constexpr int patience = 3;
std::atomic<int> unanswered{0};

std::atomic<int> exitCode{int(ExitCode::Cancelled)};
std::atomic<bool> isOver{false};

/// The system calls this on a thread of its own.
BOOL WINAPI Handle(DWORD event)
{
    if (isOver || ++unanswered >= patience) {
        ExitProcess(UINT(exitCode));
    }
    const auto tell = [] {
        unanswered = 0;
        Q_EMIT watcher.load()->Interrupted();
    };
    QMetaObject::invokeMethod(watcher, tell, Qt::QueuedConnection);
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) {
        // The console is being closed or the user logs out: returning would end the process now instead of in a few
        // seconds.
        Sleep(INFINITE);
    }
    return TRUE;
}

} // namespace

InterruptWatcher::InterruptWatcher(QObject* parent)
    : QObject(parent)
{
    watcher = this;
    SetConsoleCtrlHandler(&Handle, TRUE);
}

InterruptWatcher::~InterruptWatcher()
{
    if (!isFinished) {
        SetConsoleCtrlHandler(&Handle, FALSE);
        watcher = nullptr;
    }
}

void InterruptWatcher::Finish(ExitCode code)
{
    isFinished = true;
    exitCode = int(code);
    isOver = true;
}

} // namespace BatchCli
