// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "HeldRun.h"

#include "EndRequest.h"
#include "ProcessEnd.h"

#include <QTest>

#include <csignal>
#ifdef Q_OS_UNIX
#include <sys/types.h>
#endif

namespace {

constexpr int patience = 60'000; // ms

} // namespace

void HeldRun::Process::setupChildProcess()
{
#ifdef Q_OS_UNIX
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

HeldRun::HeldRun(const CliStage& stage, const QString& arguments)
{
    process.setProcessEnvironment(stage.Environment());
    process.setWorkingDirectory(stage.Folder());
    AllowEndRequests(process);
    process.start(stage.Program(), stage.Arguments(arguments + QStringLiteral(" --workers 1 --json")));
}

bool HeldRun::WaitFor(const QByteArray& text, int count)
{
    while (out.count(text) < count) {
        if (!process.waitForReadyRead(patience)) {
            return false;
        }
        out += process.readAllStandardOutput();
    }
    return true;
}

qint64 HeldRun::Server() const
{
    return ChildrenOf(process.processId()).value(0);
}

#ifdef Q_OS_UNIX
bool HeldRun::Signal(int number) const
{
    return ::kill(pid_t(process.processId()), number) == 0;
}
#endif

bool HeldRun::RequestEnd() const
{
    return ::RequestEnd(process);
}

bool HeldRun::Kill()
{
    const qint64 server = Server();
    process.kill();
    return process.waitForFinished(patience) && server != 0 &&
           QTest::qWaitFor([server] { return !IsProcessAlive(server); }, patience);
}

int HeldRun::End()
{
    const bool hasEnded = process.waitForFinished(patience) && process.exitStatus() == QProcess::NormalExit;
    out += process.readAllStandardOutput();
    return hasEnded ? process.exitCode() : -1;
}

QByteArray HeldRun::Err()
{
    err += process.readAllStandardError();
    return err;
}
