// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QObject>
#include <QProcess>

#include <memory>

namespace BatchProtocol {

/// What a worker writes, bounded. On Windows QProcess reads as fast as a process writes, and does not return to the
/// event loop before the process pauses; so other threads read there, and stop while much waits to be taken.
class WorkerStreams : public QObject
{
    Q_OBJECT

public:
    /// To be called before `process`, which must outlive this object, is started.
    explicit WorkerStreams(QProcess& process);
    ~WorkerStreams() override;

    /// To be called when the process has been started, or was not.
    void AfterLaunch();

    /// Since the last call.
    QByteArray TakeOutput();
    QByteArray TakeErrors();

    /// The same after the end of the process: nothing comes afterwards.
    QByteArray TakeRestOfOutput();
    QByteArray TakeRestOfErrors();

Q_SIGNALS:
    void OutputArrived();
    void ErrorsArrived();

private:
    class Private;

    const std::unique_ptr<Private> d;
};

} // namespace BatchProtocol
