// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WorkerProcess.h"

#include "ZTBatchDocument.h"

#include <QDir>

using namespace BatchProtocol;

namespace {

constexpr int longestWait = 240'000; // ms; a picture of 24 megapixels takes its time in a debug build

} // namespace

WorkerProcess::WorkerProcess(QProcessEnvironment environment)
{
    const QString variable = QStringLiteral("TMPDIR");
    if (environment.value(variable) == qEnvironmentVariable("TMPDIR")) {
        environment.insert(variable, temporaryFolder.path());
    }
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(WORKER_PATH), QStringList());
    const std::optional<Report> first = NextReport();
    isReady = first && first->number == workerIsReady;
}

WorkerProcess::~WorkerProcess()
{
    ExitCode();
}

void WorkerProcess::Send(const ToWorker& message)
{
    SendBytes(FrameToWorker(message));
}

void WorkerProcess::SendBytes(const QByteArray& bytes)
{
    process.write(bytes);
    process.waitForBytesWritten(longestWait);
}

std::optional<Report> WorkerProcess::NextReport()
{
    for (;;) {
        if (const std::optional<FromWorker> message = reader.NextFromWorker()) {
            if (const Report* report = std::get_if<Report>(&*message)) {
                return *report;
            }
            begun.append(std::get<Beginning>(*message).number);
            continue;
        }
        if (reader.IsBroken() || !process.waitForReadyRead(longestWait)) {
            return std::nullopt;
        }
        reader.Append(process.readAllStandardOutput());
    }
}

Report WorkerProcess::Do(const ToWorker& task)
{
    Send(task);
    Report none;
    none.number = workerIsReady;
    none.reason = QStringLiteral("no report came");
    return NextReport().value_or(none);
}

int WorkerProcess::ExitCode()
{
    if (process.state() != QProcess::NotRunning) {
        process.closeWriteChannel();
        if (!process.waitForFinished(longestWait)) {
            process.kill();
            process.waitForFinished(longestWait);
            return -1;
        }
    }
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

Job JobOf(const std::function<void(ZTBatchDocument&)>& edit)
{
    ZTBatchDocument document;
    document.GetOutputSettings()->SetPath(QDir::tempPath());
    edit(document);
    Job job;
    job.document = document.Serialize(nullptr);
    // The tests keep their files there.
    job.rights.readable = QStringList(QDir::tempPath());
    job.rights.writable = QStringList(QDir::tempPath());
    job.rights.usesFonts = true;
    return job;
}

Job JobOf(const QString& format, const QByteArray& options, const std::function<void(ZTBatchOutputSettings&)>& edit)
{
    return JobOf([&](ZTBatchDocument& document) {
        document.GetOutputSettings()->SetFormat(format, options);
        if (edit) {
            edit(*document.GetOutputSettings());
        }
    });
}
