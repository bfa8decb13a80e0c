#include "InterruptWatcher.h"

#include "ExitCode.h"

#include <QPointer>

#include <atomic>
#include <windows.h>

namespace BatchCli {

namespace {

InterruptWatcher* watcher = nullptr;
std::atomic<bool> endsAtNext{false};

/// The system calls it on a thread of its own.
BOOL WINAPI Handle(DWORD)
{
    if (endsAtNext) {
        ExitProcess(UINT(ExitCode::Cancelled));
    }
    QMetaObject::invokeMethod(watcher, &InterruptWatcher::Interrupted, Qt::QueuedConnection);
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
