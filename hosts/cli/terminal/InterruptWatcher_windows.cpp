#include "InterruptWatcher.h"

#include "ExitCode.h"

#include <atomic>
#include <qt_windows.h>

namespace BatchCli {

namespace {

InterruptWatcher* watcher = nullptr;
std::atomic<bool> endsAtNext{false};

/// So many without an answer mean that the event loop hangs.
constexpr int patience = 3;
std::atomic<int> unanswered{0};

/// The system calls it on a thread of its own.
BOOL WINAPI Handle(DWORD event)
{
    if (endsAtNext || ++unanswered >= patience) {
        ExitProcess(UINT(ExitCode::Cancelled));
    }
    const auto tell = [] {
        unanswered = 0;
        Q_EMIT watcher->Interrupted();
    };
    QMetaObject::invokeMethod(watcher, tell, Qt::QueuedConnection);
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) {
        // The console is closed or the user goes: the process has until this returns, seconds at most.
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
    SetConsoleCtrlHandler(&Handle, FALSE);
    watcher = nullptr;
}

void InterruptWatcher::EndAtNext()
{
    endsAtNext = true;
}

} // namespace BatchCli
