// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/protocol/WorkerMessages.h"

#include "ZTBatchOutputSettings.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QVector>

#include <functional>
#include <optional>

class ZTBatchDocument;

/// A real worker, with this test in the place of its supervisor.
class WorkerProcess
{
public:
    /// Starts the worker and takes its first report; IsReady() tells whether that came.
    ///
    /// The worker gets a temporary folder of its own, as from its supervisor, unless `environment` has another than
    /// this process.
    explicit WorkerProcess(QProcessEnvironment environment = QProcessEnvironment::systemEnvironment());

    /// Ends the worker, when it is still there.
    ~WorkerProcess();

    bool IsReady() const { return isReady; }

    void Send(const BatchProtocol::ToWorker& message);
    void SendBytes(const QByteArray& bytes);

    /// The next report; nothing when none comes within a minute, or when the worker has ended without one.
    std::optional<BatchProtocol::Report> NextReport();

    /// Sends `task` and takes its report.
    BatchProtocol::Report Do(const BatchProtocol::ToWorker& task);

    /// Closes the worker's input and waits for its end. -1 for a worker that crashed or did not end.
    int ExitCode();

    /// The numbers of the tasks that the worker has begun, as far as reports were taken.
    const QVector<int>& Begun() const { return begun; }

    QByteArray ErrorOutput() { return process.readAllStandardError(); }
    qint64 ProcessId() const { return process.processId(); }

private:
    QTemporaryDir temporaryFolder; ///< the worker's own
    QProcess process;
    BatchProtocol::FrameReader reader;
    QVector<int> begun;
    bool isReady = false;
};

/// A job whose document `edit` has filled.
BatchProtocol::Job JobOf(const std::function<void(ZTBatchDocument&)>& edit);

/// The same with output settings alone.
BatchProtocol::Job JobOf(const QString& format, const QByteArray& options = {},
                         const std::function<void(ZTBatchOutputSettings&)>& edit = {});
