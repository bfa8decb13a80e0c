// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "hosts/cli/terminal/Startup.h"

#include <QTest>

#include <array>
#include <csignal>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

/// The preparations of the process that runs of the command cannot show reliably.
class tst_CliStartup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copiesEndWithTheirProcess();
};

// The copy holds one end of a pipe, and nobody writes. So the other end shows when the copy is gone.
void tst_CliStartup::copiesEndWithTheirProcess()
{
    std::array<int, 2> pipe{};
    QCOMPARE(::pipe(pipe.data()), 0);
    const pid_t process = fork();
    if (process == 0) {
        BatchCli::PrepareProcess();
        if (fork() == 0) {
            const char isThere = 0;
            [[maybe_unused]] const ssize_t written = write(pipe[1], &isThere, 1);
        }
        for (;;) {
            pause();
        }
    }
    QVERIFY(process > 0);
    close(pipe[1]);
    char isThere = 1;
    QCOMPARE(read(pipe[0], &isThere, 1), ssize_t(1));
    QCOMPARE(kill(process, SIGKILL), 0);
    QCOMPARE(waitpid(process, nullptr, 0), process);
    pollfd end{pipe[0], POLLIN, 0};
    constexpr int patience = 30'000; // ms
    QCOMPARE(poll(&end, 1, patience), 1);
    QCOMPARE(read(pipe[0], &isThere, 1), ssize_t(0));
}

QTEST_GUILESS_MAIN(tst_CliStartup)
#include "tst_clistartup.moc"
