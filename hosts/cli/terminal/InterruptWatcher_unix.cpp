#include "InterruptWatcher.h"

#include "ExitCode.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace BatchCli {

namespace {

constexpr std::array watched{SIGINT, SIGTERM, SIGHUP};

// A signal handler may do little more than write to a pipe, which the event loop reads.
std::array<int, 2> channel{-1, -1};

/// After so many interrupts without an answer the event loop must be stuck: the process ends itself.
constexpr int patience = 3;
volatile std::sig_atomic_t unanswered = 0;

void Handle(int)
{
    unanswered = unanswered + 1;
    if (unanswered >= patience) {
        _exit(int(ExitCode::Cancelled));
    }
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(channel[1], &byte, 1);
}

} // namespace

InterruptWatcher::InterruptWatcher(QObject* parent)
    : QObject(parent)
{
    if (pipe(channel.data()) != 0) {
        return;
    }
    for (const int end : channel) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
    }
    auto* const notifier = new QSocketNotifier(channel[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        if (read(channel[0], &byte, 1) == 1) {
            unanswered = 0;
            Q_EMIT Interrupted();
        }
    });
    struct sigaction action = {};
    action.sa_handler = &Handle;
    action.sa_flags = SA_RESTART;
    for (const int number : watched) {
        struct sigaction before = {};
        sigaction(number, nullptr, &before);
        if (before.sa_handler != SIG_IGN) { // nohup has it ignored.
            sigaction(number, &action, nullptr);
        }
    }
}

InterruptWatcher::~InterruptWatcher()
{
    for (const int number : watched) {
        std::signal(number, SIG_DFL);
    }
    for (int& end : channel) {
        close(end);
        end = -1;
    }
}

} // namespace BatchCli
