// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WorkerProcess.h"

#include "job/values/PathVariable.h"
#include "job/values/Phrase.h"

#include <QPointer>

#include <chrono>

using namespace std::chrono_literals;

namespace BatchProtocol {

namespace {

constexpr auto startTime = 30s;
constexpr int endTime = 3000;    // ms
constexpr int keptErrors = 1000; // bytes

// There is a worker for each core, so further threads would only compete. OpenMP reads the variable when its library is
// loaded, before a worker could set it.
QProcessEnvironment EnvironmentOfWorkers(const QString& temporaryFolder)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("OMP_NUM_THREADS"), QStringLiteral("1"));
    for (const char* const name : BatchJob::TemporaryFolderVariables()) {
        environment.insert(QLatin1String(name), QDir::toNativeSeparators(temporaryFolder));
    }
    return environment;
}

QString CrashText(int exitCode)
{
#ifdef Q_OS_WIN
    return BatchJob::Phrase::English("ended by exception 0x%1").arg(uint(exitCode), 8, 16, QLatin1Char('0'));
#else
    return BatchJob::Phrase::English("ended by signal %1").arg(exitCode);
#endif
}

} // namespace

WorkerProcess::WorkerProcess(const QString& program, const ServerLimits& limits, QObject* parent,
                             const QString& temporaryParent)
    : QObject(parent)
    , taskTime(limits.pictureSeconds * 1000)
    , temporaryFolder(QDir(temporaryParent).filePath(QStringLiteral("velkora-worker-XXXXXX")))
    , streams(process)
{
    clock.setSingleShot(true);
    connect(&clock, &QTimer::timeout, this, [this] { End(isReady ? WorkerEnd::Hung : WorkerEnd::FailedToStart); });
    connect(&streams, &WorkerStreams::OutputArrived, this, [this] { ReadReports(streams.TakeOutput()); });
    connect(&streams, &WorkerStreams::ErrorsArrived, this, [this] { NoteErrors(streams.TakeErrors()); });
    connect(&process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, &WorkerProcess::Finish);
    connect(&process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            FailToStart();
        }
    });
    clock.start(startTime);
    process.setProcessEnvironment(EnvironmentOfWorkers(temporaryFolder.path()));
    if (limits.isInBackground) {
        process.KeepInBackground();
    }
    process.Launch(program, QStringList());
    streams.AfterLaunch();
}

WorkerProcess::~WorkerProcess()
{
    process.disconnect(this);
    process.kill();
    process.waitForFinished(endTime);
}

void WorkerProcess::Give(const Assignment& task)
{
    Q_ASSERT(currentGroup.isEmpty() || currentGroup == task.Group());
    currentGroup = task.Group();
    if (currentJob != task.job) {
        currentJob = task.job;
        process.write(currentJob);
    }
    process.write(FrameToWorker(task.task));
    tasks.append(task);
    if (tasks.size() == 1) {
        clock.start(taskTime);
        Q_EMIT Begun(task);
    }
}

void WorkerProcess::Leave()
{
    isLeaving = true;
    if (tasks.isEmpty()) {
        End(WorkerEnd::Dropped);
    }
}

void WorkerProcess::End(WorkerEnd reason)
{
    if (!end) {
        end = reason;
        clock.stop();
        process.kill();
    }
}

QString WorkerProcess::EndText() const
{
    const QString errors = QString::fromUtf8(lastErrors).trimmed();
    return errors.isEmpty() ? exitText : BatchJob::Phrase::English("%1; its last output: %2").arg(exitText, errors);
}

int WorkerProcess::Culprit() const
{
    // The time limit is that of the first task.
    return end == WorkerEnd::Hung ? 0 : begun - 1;
}

void WorkerProcess::ReadReports(const QByteArray& bytes)
{
    if (end) {
        return;
    }
    reader.Append(bytes);
    const QPointer<WorkerProcess> self(this);
    while (self && !end) {
        const std::optional<FromWorker> message = reader.NextFromWorker();
        if (!message) {
            break;
        }
        if (const auto* beginning = std::get_if<Beginning>(&*message)) {
            OnBeginning(beginning->number);
        } else {
            OnReport(std::get<Report>(*message));
        }
    }
    if (self && reader.IsBroken()) {
        End(WorkerEnd::Garbage);
    }
}

void WorkerProcess::OnReport(const Report& report)
{
    if (!isReady) {
        if (report.number != workerIsReady) {
            End(WorkerEnd::Garbage);
            return;
        }
        isReady = true;
        if (tasks.isEmpty()) {
            clock.stop();
        } else {
            clock.start(taskTime); // It was given a task before it was ready.
        }
        Q_EMIT Ready();
        return;
    }
    if (begun == 0 || tasks.first().file != report.number) {
        End(WorkerEnd::Garbage);
        return;
    }
    const Assignment task = tasks.takeFirst();
    --begun;
    errorBytes = 0;
    if (tasks.isEmpty()) {
        clock.stop();
    } else {
        clock.start(taskTime);
    }
    const QPointer<WorkerProcess> self(this);
    const bool hasNext = !tasks.isEmpty();
    Q_EMIT Reported(task, report);
    if (!self || end) {
        return;
    }
    if (hasNext) {
        Q_EMIT Begun(tasks.first());
    } else if (isLeaving) {
        End(WorkerEnd::Dropped);
    }
}

void WorkerProcess::OnBeginning(qint32 number)
{
    if (begun == tasks.size() || tasks[begun].file != number) {
        End(WorkerEnd::Garbage);
        return;
    }
    ++begun;
}

void WorkerProcess::NoteErrors(const QByteArray& bytes)
{
    lastErrors = (lastErrors + bytes.right(keptErrors)).right(keptErrors);
    errorBytes += bytes.size();
    if (errorBytes > mostErrorsOfTask) {
        End(WorkerEnd::Noisy);
    }
}

void WorkerProcess::Finish(int exitCode, QProcess::ExitStatus status)
{
    // Messages from before the end still count.
    ReadReports(streams.TakeRestOfOutput());
    NoteErrors(streams.TakeRestOfErrors());
    clock.stop();
    exitText = status == QProcess::CrashExit ? CrashText(exitCode)
                                             : BatchJob::Phrase::English("ended with exit code %1").arg(exitCode);
    if (!end) {
        const bool isOutOfMemory = status == QProcess::NormalExit && exitCode == workerOutOfMemory;
        end = !isReady ? WorkerEnd::FailedToStart : isOutOfMemory ? WorkerEnd::OutOfMemory : WorkerEnd::Died;
    }
    Q_EMIT Ended(*end);
}

void WorkerProcess::FailToStart()
{
    clock.stop();
    exitText = process.errorString();
    end = WorkerEnd::FailedToStart;
    // In the constructor no signal is connected yet.
    QMetaObject::invokeMethod(
        this, [this] { Q_EMIT Ended(WorkerEnd::FailedToStart); }, Qt::QueuedConnection);
}

} // namespace BatchProtocol
