// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// A process whose standard input, output and error are a terminal, with the test as the user before it.
class PseudoTerminal
{
public:
    /// Starts `program` in the current folder, on a screen with so many columns.
    PseudoTerminal(const QString& program, const QStringList& arguments, int columns = 100);

    /// Ends what still runs.
    ~PseudoTerminal();

    /// Waits until `text` has come since the last call; false when it has not within a minute, or will not come.
    bool WaitFor(const QByteArray& text);

    /// Everything that came.
    const QByteArray& Output() const { return output; }

    /// Types `keys`. "\x03" is Ctrl-C, "\x04" at the beginning of a line the end of input.
    void Type(const QByteArray& keys);

    /// Reads to the end of the process and returns its exit code; -1 when it did not end by itself in a minute.
    int ExitCode();

    qint64 ProcessId() const { return pid; }

private:
    Q_DISABLE_COPY(PseudoTerminal)

    bool ReadMore(int msecs);

    int terminal = -1;
    qint64 pid = -1;
    QByteArray output;
    int searchedTo = 0;
    bool isAtEnd = false;
};
