// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>

/// The server's process. QProcess reports the end of a process from inside the calls that end it or wait for it. The
/// functions of this class remain safe when slots of the host release the object then. The standard output of the
/// process is discarded; its standard error is the host's.
class ZTServerProcess : public QProcess
{
public:
    explicit ZTServerProcess(QObject* parent);
    ~ZTServerProcess() override;

    /// Whether the process has ended or was never started. Already true while a crash is being reported, when state()
    /// is still Running: a wait for such a process would time out.
    bool HasEnded() const;

    /// Starts the process. QProcess misses the end of a process that is killed before its program runs; this does not.
    void Launch(const QString& program, const QStringList& arguments);

    /// Kills the process and returns when it has ended.
    void Close();

    /// Waits up to `msecs` milliseconds for the end of the process. Returns whether it has ended.
    bool WaitForEnd(int msecs);

    /// Removes the object from its parent and schedules its deletion in the event loop: as soon as the calls above have
    /// returned and the end of a started process has been reported.
    void Release();

private:
    class Call;

    void DeleteWhenIdle();

    int callsUnderWay = 0;
    bool isEndAwaited = false; ///< from the signal of the start to the last signal of the end
    bool isReleased = false;
};
