// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WorkerStreams.h"

#include <QMutex>
#include <QThread>
#include <QWaitCondition>

#include <array>
#include <functional>
#include <qt_windows.h>
#include <utility>

namespace BatchProtocol {

namespace {

constexpr int mostWaiting = 1 << 20; // bytes
constexpr int pieceSize = 64 << 10;

/// Reads a pipe on a thread of its own, until its writers have closed it.
class PipeReader : public QThread
{
public:
    /// `onArrival` is called on the reading thread when bytes have come and none were waiting.
    explicit PipeReader(std::function<void()> onArrival);
    ~PipeReader() override;

    HANDLE WriteEnd() const { return writeEnd; }
    void CloseWriteEnd();

    QByteArray Take();

    /// Ends the thread; what the pipe still holds is read before.
    QByteArray TakeRest();

protected:
    void run() override;

private:
    bool WaitForRoom();
    bool ReadPiece();

    const std::function<void()> onArrival;
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    QMutex mutex; // for the rest
    QWaitCondition hasRoom;
    QByteArray waiting;
    HANDLE thread = nullptr; ///< null until it runs
    bool isStopping = false;
};

PipeReader::PipeReader(std::function<void()> onArrival)
    : onArrival(std::move(onArrival))
{
    CreatePipe(&readEnd, &writeEnd, nullptr, pieceSize);
}

PipeReader::~PipeReader()
{
    CloseWriteEnd();
    TakeRest();
    CloseHandle(readEnd);
    CloseHandle(thread);
}

/// The pipe has no end as long as this process could write into it.
void PipeReader::CloseWriteEnd()
{
    if (writeEnd) {
        CloseHandle(std::exchange(writeEnd, nullptr));
    }
}

QByteArray PipeReader::Take()
{
    const QMutexLocker locker(&mutex);
    hasRoom.wakeOne();
    return std::exchange(waiting, QByteArray());
}

QByteArray PipeReader::TakeRest()
{
    constexpr unsigned long interval = 5; // ms
    do {
        // Another process may have inherited the end for writing by chance, so reading might not end by itself. To
        // cancel it has no effect between two reads.
        const QMutexLocker locker(&mutex);
        isStopping = true;
        hasRoom.wakeOne();
        if (thread) {
            CancelSynchronousIo(thread);
        }
    } while (!wait(interval));
    return Take();
}

void PipeReader::run()
{
    {
        const QMutexLocker locker(&mutex);
        thread = OpenThread(THREAD_TERMINATE, FALSE, GetCurrentThreadId()); // the right to cancel its reads
    }
    while (WaitForRoom() && ReadPiece()) {
    }
    DWORD available = 0;
    while (PeekNamedPipe(readEnd, nullptr, 0, nullptr, &available, nullptr) && available > 0 && ReadPiece()) {
    }
}

/// False when the reader is to stop.
bool PipeReader::WaitForRoom()
{
    const QMutexLocker locker(&mutex);
    while (waiting.size() >= mostWaiting && !isStopping) {
        hasRoom.wait(&mutex);
    }
    return !isStopping;
}

bool PipeReader::ReadPiece()
{
    std::array<char, pieceSize> piece;
    DWORD length = 0;
    if (!ReadFile(readEnd, piece.data(), DWORD(piece.size()), &length, nullptr)) {
        return false;
    }
    const QMutexLocker locker(&mutex);
    const bool isFirst = waiting.isEmpty() && length > 0;
    waiting.append(piece.data(), int(length));
    if (isFirst) {
        onArrival();
    }
    return true;
}

} // namespace

class WorkerStreams::Private
{
public:
    explicit Private(WorkerStreams* streams)
        : output([streams] { QMetaObject::invokeMethod(streams, &WorkerStreams::OutputArrived, Qt::QueuedConnection); })
        , errors([streams] { QMetaObject::invokeMethod(streams, &WorkerStreams::ErrorsArrived, Qt::QueuedConnection); })
    {
    }

    PipeReader output;
    PipeReader errors;
};

WorkerStreams::WorkerStreams(QProcess& process)
    : d(new Private(this))
{
    process.setCreateProcessArgumentsModifier([this](QProcess::CreateProcessArguments* arguments) {
        for (PipeReader* const reader : {&d->output, &d->errors}) {
            SetHandleInformation(reader->WriteEnd(), HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT);
        }
        arguments->startupInfo->hStdOutput = d->output.WriteEnd();
        arguments->startupInfo->hStdError = d->errors.WriteEnd();
    });
}

WorkerStreams::~WorkerStreams() = default;

void WorkerStreams::AfterLaunch()
{
    for (PipeReader* const reader : {&d->output, &d->errors}) {
        reader->CloseWriteEnd();
        reader->start();
    }
}

QByteArray WorkerStreams::TakeOutput()
{
    return d->output.Take();
}

QByteArray WorkerStreams::TakeErrors()
{
    return d->errors.Take();
}

QByteArray WorkerStreams::TakeRestOfOutput()
{
    return d->output.TakeRest();
}

QByteArray WorkerStreams::TakeRestOfErrors()
{
    return d->errors.TakeRest();
}

} // namespace BatchProtocol
