// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobReader.h"

#include "job/values/Phrase.h"

#include "server/protocol/ChildProcess.h"

#include "ZTBatchDocument.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QFile>

#include <cstdio>

using namespace BatchJob;
using namespace BatchProtocol;

namespace BatchSupervisor {

namespace {

constexpr int cancelInterval = 100; // ms

JobReader::Job ReadHere(const QString& text)
{
    ZTBatchDocument document;
    if (!document.Deserialize(text)) {
        return {{ZTBatchMessage::EmptyBatchDocument, Phrase::English("The job is not a batch document")}, {}, {}};
    }
    JobReader::Job job;
    job.refusal = CheckJob(document).refusal;
    if (job.refusal.code == ZTBatchMessage::NoError) {
        job.files = FilesOfJob(*document.GetInputModel());
        job.settings = TakeSettingsText(document);
    }
    return job;
}

// A folder is written with the first of its files only: 100,000 files share a few folders.
void Write(QDataStream& stream, const JobReader::Job& job)
{
    stream << qint32(job.refusal.code) << job.refusal.message << job.settings << qint32(job.files.size());
    QString folder;
    for (const JobFile& file : job.files) {
        const bool isNew = file.folder != folder;
        stream << file.path.toUtf8() << isNew;
        if (isNew) {
            folder = file.folder;
            stream << folder;
        }
    }
}

bool ReadBack(QDataStream& stream, JobReader::Job& job)
{
    qint32 code = 0;
    qint32 count = 0;
    stream >> code >> job.refusal.message >> job.settings >> count;
    job.refusal.code = ZTBatchMessage::Error(code);
    QString folder;
    for (qint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        QByteArray path;
        bool isNew = false;
        stream >> path >> isNew;
        if (isNew) {
            stream >> folder;
        }
        job.files.append({QString::fromUtf8(path), folder});
    }
    return stream.status() == QDataStream::Ok;
}

} // namespace

JobReader::Job JobReader::Read(QString text, const std::function<bool()>& isCancelled)
{
    ChildProcess reader;
    reader.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    reader.Launch(QCoreApplication::applicationFilePath(), {QLatin1String(argument)});
    reader.write(text.toUtf8());
    text.clear();
    reader.closeWriteChannel();
    while (!reader.waitForFinished(cancelInterval) && reader.state() != QProcess::NotRunning) {
        if (isCancelled()) {
            reader.kill();
            reader.waitForFinished();
            return {};
        }
    }
    Job job;
    QDataStream stream(&reader);
    if (reader.exitStatus() != QProcess::NormalExit || reader.exitCode() != 0 || !ReadBack(stream, job)) {
        return {
            {ZTBatchMessage::EmptyBatchDocument, Phrase::English("The job cannot be read: its reader failed")}, {}, {}};
    }
    return job;
}

int JobReader::RunProcess()
{
    QFile input;
    QFile output;
    if (!input.open(stdin, QIODevice::ReadOnly) || !output.open(stdout, QIODevice::WriteOnly)) {
        return 1;
    }
    const Job job = ReadHere(QString::fromUtf8(input.readAll()));
    QDataStream stream(&output);
    Write(stream, job);
    return output.flush() && stream.status() == QDataStream::Ok ? 0 : 1;
}

} // namespace BatchSupervisor
