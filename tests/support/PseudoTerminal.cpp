// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PseudoTerminal.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QVector>

#include <cerrno>
#include <csignal>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int timeLimit = 60'000;

} // namespace

PseudoTerminal::PseudoTerminal(const QString& program, const QStringList& arguments, int columns)
{
    // Prepared before the fork: behind it nothing may allocate.
    QVector<QByteArray> texts{QFile::encodeName(program)};
    for (const QString& argument : arguments) {
        texts.append(argument.toUtf8());
    }
    QVector<char*> pointers;
    for (QByteArray& text : texts) {
        pointers.append(text.data());
    }
    pointers.append(nullptr);

    winsize size{};
    size.ws_col = static_cast<unsigned short>(columns);
    size.ws_row = 30;
    pid = forkpty(&terminal, nullptr, nullptr, &size);
    if (pid == 0) {
        execv(pointers[0], pointers.data());
        _exit(127);
    }
    if (pid < 0) {
        qFatal("There is no pseudo-terminal.");
    }
}

PseudoTerminal::~PseudoTerminal()
{
    if (pid > 0) {
        kill(static_cast<pid_t>(pid), SIGKILL);
        waitpid(static_cast<pid_t>(pid), nullptr, 0);
    }
    close(terminal);
}

bool PseudoTerminal::WaitFor(const QByteArray& text)
{
    const QDeadlineTimer deadline(timeLimit);
    for (;;) {
        const int found = output.indexOf(text, searchedTo);
        if (found >= 0) {
            searchedTo = found + text.size();
            return true;
        }
        if (isAtEnd || deadline.hasExpired()) {
            return false;
        }
        ReadMore(static_cast<int>(deadline.remainingTime()));
    }
}

void PseudoTerminal::Type(const QByteArray& keys)
{
    if (write(terminal, keys.constData(), static_cast<size_t>(keys.size())) != keys.size()) {
        qFatal("The pseudo-terminal takes no keys.");
    }
}

int PseudoTerminal::ExitCode()
{
    const QDeadlineTimer deadline(timeLimit);
    while (!isAtEnd && !deadline.hasExpired()) {
        ReadMore(static_cast<int>(deadline.remainingTime()));
    }
    if (!isAtEnd) {
        return -1;
    }
    int status = 0;
    const bool isReaped = waitpid(static_cast<pid_t>(pid), &status, 0) == pid;
    pid = -1;
    return isReaped && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

bool PseudoTerminal::ReadMore(int msecs)
{
    pollfd ready{terminal, POLLIN, 0};
    if (poll(&ready, 1, msecs) <= 0) {
        return false;
    }
    char bytes[4096];
    const ssize_t count = read(terminal, bytes, sizeof bytes);
    if (count <= 0) {
        isAtEnd = count == 0 || errno != EINTR; // EIO, when the last process has let the terminal go.
        return false;
    }
    output.append(bytes, static_cast<int>(count));
    return true;
}
