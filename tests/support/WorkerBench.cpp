// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WorkerBench.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>

using namespace BatchProtocol;
using namespace BatchWorker;

WorkerBench::WorkerBench()
{
    if (!folder.isValid() || !worker.IsReady()) {
        qFatal("There is no folder, or no worker.");
    }
}

void WorkerBench::WriteBytes(const QString& name, const QByteArray& bytes) const
{
    QFile file(Path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("%s cannot be written.", qUtf8Printable(name));
    }
}

QByteArray WorkerBench::Bytes(const QString& name) const
{
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

QStringList WorkerBench::Names() const
{
    return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

Report WorkerBench::Make(const QString& input, const QString& output, const QString& format, const QJsonObject& options,
                         const std::function<void(ZTBatchOutputSettings&)>& edit)
{
    return Make(input, output, format, JobOf(format, QJsonDocument(options).toJson(), edit));
}

Report WorkerBench::Make(const QString& input, const QString& output, const QString& format, const Job& job)
{
    worker.Send(job);
    PictureTask task;
    task.number = 1;
    task.inputFile = Path(input);
    task.outputFile = Path(output);
    task.format = format;
    task.replaceExisting = true;
    return worker.Do(task);
}

Report WorkerBench::Probe(const QString& input)
{
    worker.Send(JobOf(QStringLiteral("JPEG")));
    return worker.Do(ProbeTask{1, Path(input)});
}
