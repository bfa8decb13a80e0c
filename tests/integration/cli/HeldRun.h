// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CliStage.h"

#include <QProcess>

/// A run of the command whose stand-in worker waits inside a file, so that a test can act in its middle. It has one
/// worker and prints its events.
class HeldRun
{
public:
    HeldRun(const CliStage& stage, const QString& arguments);

    /// Waits until standard output has had `text` `count` times.
    bool WaitFor(const QByteArray& text, int count = 1);

    /// The process id of the server; 0 when there is no server.
    qint64 Server() const;

    qint64 Id() const { return process.processId(); }

#ifdef Q_OS_UNIX
    /// Sends the signal `number` to the command.
    bool Signal(int number) const;
#endif

    /// Asks the command to end.
    bool RequestEnd() const;

    /// Kills the command, and returns when its server has followed it.
    bool Kill();

    /// Waits for the end of the run; its exit code, or -1.
    int End();

    QByteArray Out() const
    {
        return out;
    }
    QByteArray Err();

private:
    Q_DISABLE_COPY(HeldRun)

    /// Ignores the signal of a file that has grown too large, as a command started by such a program does.
    class Process : public QProcess
    {
        void setupChildProcess() override;
    };

    Process process;
    QByteArray out;
    QByteArray err;
};
