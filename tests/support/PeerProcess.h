#pragma once

#include <QProcess>
#include <QString>

/// Drives the helper executable "peer", the other end of a pipe in a process of its own. The process ends with this
/// object. Each call waits for its answer, at most 40 seconds.
class PeerProcess
{
public:
    PeerProcess();
    ~PeerProcess();

    /// Gives one command; true when the answer was "ok". Otherwise the answer is written to the test's log.
    bool Do(const QString& command);

    /// Reads exactly `count` bytes from the pipe; fewer when the wait ran out or the pipe ended.
    QByteArray Read(int count);

    /// Writes `bytes` in one piece.
    bool Write(const QByteArray& bytes);

    /// Ends the process without letting it close anything, and waits until it is gone.
    void Die();

private:
    Q_DISABLE_COPY(PeerProcess)

    QByteArray Ask(const QString& command);

    QProcess process;
};
