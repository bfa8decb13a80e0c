// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>
#include <QString>

/// Runs the helper executable "peer", the other end of a pipe in a process of its own. The process ends with this
/// object. Each call waits for the helper's answer, at most 40 seconds.
class PeerProcess
{
public:
    PeerProcess();
    ~PeerProcess();

    /// Gives one of the helper's commands; true when the answer is "ok". Any other answer goes to the test's log.
    bool Do(const QString& command);

    /// Opens the pipe `name`.
    bool Listen(const QString& name) { return Do(QStringLiteral("listen ") + name); }

    /// Waits for a connection.
    bool Accept() { return Do(QStringLiteral("accept")); }

    /// Closes the connection.
    bool Disconnect() { return Do(QStringLiteral("disconnect")); }

    /// Waits until the other side has closed the connection.
    bool WaitForEnd() { return Do(QStringLiteral("closed")); }

    /// Reads `count` bytes from the pipe; fewer at a timeout or at the end of the connection.
    QByteArray Read(int count);

    /// Writes `bytes` in one piece.
    bool Write(const QByteArray& bytes);

    /// Ends the process before it can close anything, and waits until it is gone.
    void Die();

private:
    Q_DISABLE_COPY(PeerProcess)

    QByteArray Ask(const QString& command);

    QProcess process;
};
