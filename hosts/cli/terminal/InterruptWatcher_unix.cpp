// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InterruptWatcher.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace BatchCli {

namespace {

constexpr std::array watched{SIGINT, SIGTERM, SIGHUP, SIGALRM};
std::array<struct sigaction, watched.size()> actionsBefore{};

// A signal handler may do little more than write to a pipe, which the event loop reads.
std::array<int, 2> channel{-1, -1};

/// After so many interrupts without an answer the event loop must be stuck: the process ends itself.
constexpr int patience = 3;
volatile std::sig_atomic_t unanswered = 0;

/// The same after one interrupt and this time. A run is cancelled, or its server killed, within half of it.
constexpr unsigned lastMoment = 60; // s

volatile std::sig_atomic_t exitCode = int(ExitCode::Cancelled);
volatile std::sig_atomic_t isOver = 0;

void Handle(int number)
{
    unanswered = unanswered + 1;
    if (isOver != 0 || number == SIGALRM || unanswered >= patience) {
        _exit(exitCode);
    }
    alarm(lastMoment);
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
    for (std::size_t i = 0; i < watched.size(); ++i) {
        sigaction(watched[i], nullptr, &actionsBefore[i]);
        if (actionsBefore[i].sa_handler != SIG_IGN || watched[i] == SIGALRM) { // nohup has SIGHUP ignored.
            sigaction(watched[i], &action, nullptr);
        }
    }
}

InterruptWatcher::~InterruptWatcher()
{
    if (isFinished || channel[0] < 0) {
        return;
    }
    alarm(0);
    for (std::size_t i = 0; i < watched.size(); ++i) {
        sigaction(watched[i], &actionsBefore[i], nullptr);
    }
    for (int& end : channel) {
        close(end);
        end = -1;
    }
}

void InterruptWatcher::Finish(ExitCode code)
{
    isFinished = true;
    exitCode = int(code);
    isOver = 1;
}

} // namespace BatchCli
