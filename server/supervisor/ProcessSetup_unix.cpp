// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ProcessSetup.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTextCodec>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif

namespace BatchSupervisor {

namespace {

// A signal handler may only write to a pipe; the event loop reads the other end.
std::array<int, 2> requestPipe{-1, -1};

void NoteRequest(int)
{
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(requestPipe[1], &byte, 1);
}

#ifdef Q_OS_LINUX
// Between sessions the niceness of processes says nothing where the kernel groups them; that of their groups does.
void KeepSessionInBackground()
{
    constexpr char niceness[] = "10";
    const int group = ::open("/proc/self/autogroup", O_WRONLY | O_CLOEXEC);
    if (group >= 0) {
        [[maybe_unused]] const ssize_t written = ::write(group, niceness, sizeof(niceness) - 1);
        ::close(group);
    }
}
#endif

} // namespace

void ProcessSetup::Prepare(bool isInBackground)
{
    ::setsid(); // Fails for the leader of a process group, which is detached already.
#ifdef Q_OS_LINUX
    if (isInBackground) {
        KeepSessionInBackground(); // While the system still lets this process write there.
    }
    // The host may have set it for the time until the server runs. From here on the server ends itself: when it loses
    // the connection it removes unfinished files first.
    ::prctl(PR_SET_PDEATHSIG, 0);
    // A worker that a picture has taken over is a process of the same user. It must not reach this one through /proc.
    ::prctl(PR_SET_DUMPABLE, 0);
#endif
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN); // A file that has grown too large is an error of writing it.
}

void ProcessSetup::OnEndRequest(const std::function<void()>& end)
{
    if (::pipe(requestPipe.data()) != 0) {
        return;
    }
    for (const int descriptor : requestPipe) {
        ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
    }
    auto* const notifier = new QSocketNotifier(requestPipe[0], QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, [notifier, end] {
        notifier->setEnabled(false);
        end();
    });
    struct sigaction action = {};
    action.sa_handler = NoteRequest;
    action.sa_flags = SA_RESTART;
    ::sigaction(SIGTERM, &action, nullptr);
    ::sigaction(SIGINT, &action, nullptr);
}

void ProcessSetup::OnStarterGone(const std::function<void()>&) {}

} // namespace BatchSupervisor
