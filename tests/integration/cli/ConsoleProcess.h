// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/// A process with a Windows console of its own, without a window. The test is the user: it reads the screen and types.
/// Only one at a time.
class ConsoleProcess
{
public:
    /// Starts `program` in `folder`. The test joins its console.
    ConsoleProcess(const QString& program, const QStringList& arguments, const QString& folder);

    /// Ends the process if it still runs, and leaves the console.
    ~ConsoleProcess();

    /// Everything on the screen, as rows without line ends. Includes the escape sequences that the console does not
    /// interpret.
    QString Screen() const;

    /// The rows of the screen that are not empty, without escape sequences.
    QStringList Rows() const;

    /// Waits until the screen shows `text` as often as wanted; false when it does not within a minute.
    bool WaitFor(const QString& text, int count = 1) const;

    /// Whether `text` has the colour of this number, as in escape sequences (32 is green): by its attributes, or by the
    /// escape sequence before it.
    bool HasColour(const QString& text, int colour) const;

    /// Whether the process has asked the console to interpret escape sequences.
    bool InterpretsSequences() const;

    void Type(const QString& line);
    static void PressCtrlC();

    /// Waits for the end of the process; -1 when it did not end by itself in a minute.
    int ExitCode() const;

private:
    Q_DISABLE_COPY(ConsoleProcess)

    void* process = nullptr;
    void* output = nullptr;
    void* input = nullptr;
};
