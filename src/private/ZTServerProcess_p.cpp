// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTServerProcess_p.h"

#ifdef Q_OS_UNIX
#include <csignal>
#endif

/// Delays the deletion of a released process until a call of it has returned. Otherwise, if the call was not made from
/// an event loop, the first event loop that a slot runs would delete the process.
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
        --process.callsUnderWay;
        process.DeleteWhenIdle();
    }

private:
    Q_DISABLE_COPY(Call)

    ZTServerProcess& process;
};

ZTServerProcess::ZTServerProcess(QObject* parent)
    : QProcess(parent)
{
    // Nobody reads this output, and QProcess would buffer all of it.
    setStandardOutputFile(nullDevice());
    setProcessChannelMode(ForwardedErrorChannel);

    connect(this, &QProcess::started, this, [this] { isEndAwaited = true; });
    connect(this, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, [this] {
        isEndAwaited = false;
        DeleteWhenIdle();
    });
}

ZTServerProcess::~ZTServerProcess()
{
    // The base class kills a running process and emits when this part of the object is already destroyed.
    disconnect(this, nullptr, this, nullptr);
}

bool ZTServerProcess::HasEnded() const
{
    return state() == QProcess::NotRunning || exitStatus() == QProcess::CrashExit;
}

void ZTServerProcess::Launch(const QString& program, const QStringList& arguments)
{
    start(program, arguments, QIODevice::ReadWrite);
#ifdef Q_OS_UNIX
    // If the process was gone before Qt knew its number, the system's signal found nothing. At each such signal Qt
    // looks at all processes that it knows.
    std::raise(SIGCHLD);
#endif
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
    DeleteWhenIdle();
}

void ZTServerProcess::DeleteWhenIdle()
{
    if (isReleased && callsUnderWay == 0 && !isEndAwaited) {
        deleteLater();
    }
}
