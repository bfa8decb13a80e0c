// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTServerProcess_p.h"

#include <QCoreApplication>
#include <QTest>

#include <cstdio>
#include <string>

#ifdef Q_OS_UNIX
#include <csignal>
#include <pthread.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace {

constexpr int megabyte = 1 << 20;

/// A server that writes a megabyte to standard output and a line to standard error.
int RunChatter()
{
    // Windows' runtime writes single characters to a device, even to the null device.
    std::setvbuf(stdout, nullptr, _IOFBF, megabyte / 16);
    const std::string line(1023, 'x');
    for (int i = 0; i < megabyte / 1024; ++i) {
        std::fprintf(stdout, "%s\n", line.c_str());
    }
    std::fprintf(stderr, "a word from the server\n");
    return 0;
}

/// A host that runs such a server.
int RunHost(int& argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    ZTServerProcess server(nullptr);
    server.Launch(QCoreApplication::applicationFilePath(), {QStringLiteral("chatter")});
    return server.WaitForEnd(30'000) ? 0 : 1;
}

#ifdef Q_OS_UNIX
bool isEarlyEndWanted = false;

/// Kills forked copies of this process at once, and delays their parent until they are gone.
void KillForkedCopies()
{
    pthread_atfork(
        nullptr,
        [] {
            siginfo_t information = {};
            if (isEarlyEndWanted) {
                ::waitid(P_ALL, 0, &information, WEXITED | WNOWAIT);
            }
        },
        [] {
            if (isEarlyEndWanted) {
                ::kill(::getpid(), SIGKILL);
            }
        });
}
#endif

} // namespace

class tst_ZTServerProcess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standardOutputIsNotKept()
    {
        ZTServerProcess server(nullptr);
        server.Launch(QCoreApplication::applicationFilePath(), {QStringLiteral("chatter")});
        QVERIFY(server.WaitForEnd(30'000));
        QCOMPARE(server.exitCode(), 0);
        QCOMPARE(server.readAllStandardOutput(), QByteArray());
    }

    void standardErrorIsTheHosts()
    {
        QProcess host;
        host.start(QCoreApplication::applicationFilePath(), {QStringLiteral("host")});
        QVERIFY(host.waitForFinished(30'000));
        QCOMPARE(host.exitCode(), 0);
        QCOMPARE(host.readAllStandardOutput(), QByteArray());
        QCOMPARE(host.readAllStandardError().trimmed(), QByteArray("a word from the server"));
    }

#ifdef Q_OS_UNIX
    void endsBeforeTheProgramRuns()
    {
        KillForkedCopies();
        ZTServerProcess server(nullptr);
        isEarlyEndWanted = true;
        server.Launch(QCoreApplication::applicationFilePath(), {QStringLiteral("chatter")});
        isEarlyEndWanted = false;
        QTRY_COMPARE_WITH_TIMEOUT(server.state(), QProcess::NotRunning, 10'000);
        QCOMPARE(server.exitStatus(), QProcess::CrashExit);
    }
#endif
};

int main(int argc, char** argv)
{
    const std::string role = argc == 2 ? argv[1] : "";
    if (role == "chatter") {
        return RunChatter();
    }
    if (role == "host") {
        return RunHost(argc, argv);
    }
    const QCoreApplication application(argc, argv);
    tst_ZTServerProcess test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ztserverprocess.moc"
