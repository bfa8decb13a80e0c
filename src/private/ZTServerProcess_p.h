#pragma once

#include <QProcess>

/// The server's process. QProcess reports a process's end from inside the calls that end or await it, and the host's
/// slots may do anything then: these calls bear that. Its standard output goes nowhere, its standard error is the
/// host's.
class ZTServerProcess : public QProcess
{
public:
    explicit ZTServerProcess(QObject* parent);
    ~ZTServerProcess() override;

    /// Whether the process has ended, or never started. True already while a crash is being reported, when state()
    /// still says "running": whoever waited for such a process would wait in vain.
    bool HasEnded() const;

    /// Kills the process and returns when it is gone.
    void Close();

    /// Returns whether the process has ended within `msecs` milliseconds.
    bool WaitForEnd(int msecs);

    /// Gives the object up: from now on it belongs to nobody and goes with a later turn of the event loop, but not
    /// before the calls above have returned and the end of a process that ran has been reported.
    void Release();

private:
    class Call;

    void DeleteWhenIdle();

    int callsUnderWay = 0;
    bool isEndAwaited = false; ///< from the report of the start to the last report of the end
    bool isReleased = false;
};
