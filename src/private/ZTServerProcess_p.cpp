#include "ZTServerProcess_p.h"

/// Keeps a released process while one of its calls is under way. Without it the first event loop that a slot runs
/// would delete the process when the call was not made from an event loop itself.
class ZTServerProcess::Call
{
public:
    explicit Call(ZTServerProcess& process)
        : process(process)
    {
        ++process.callsUnderWay;
    }

    ~Call()
    {
        if (--process.callsUnderWay == 0 && process.isReleased) {
            process.deleteLater();
        }
    }

private:
    Q_DISABLE_COPY(Call)

    ZTServerProcess& process;
};

ZTServerProcess::ZTServerProcess(QObject* parent)
    : QProcess(parent)
{
}

bool ZTServerProcess::HasEnded() const
{
    return state() == QProcess::NotRunning || exitStatus() == QProcess::CrashExit;
}

void ZTServerProcess::Close()
{
    const Call call(*this);
    close();
}

bool ZTServerProcess::WaitForEnd(int msecs)
{
    const Call call(*this);
    if (!HasEnded()) {
        waitForFinished(msecs);
    }
    return HasEnded();
}

void ZTServerProcess::Release()
{
    setParent(nullptr);
    isReleased = true;
    if (callsUnderWay == 0) {
        deleteLater();
    }
}
