// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobReader.h"

#include "job/settings/JobBundle.h"
#include "job/values/Phrase.h"

#include "server/protocol/ChildProcess.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QDir>
#include <QFile>

#include <cstdio>

using namespace BatchJob;
using namespace BatchProtocol;

namespace BatchSupervisor {

namespace {

constexpr int cancelInterval = 100; // ms

JobReader::Job Refused(ZTBatchMessage::Error code, const QString& message)
{
    return {{code, message}, {}, {}, {}};
}

JobReader::Job ReadJob(const QString& text)
{
    ZTBatchDocument document;
    if (!document.Deserialize(text)) {
        return Refused(ZTBatchMessage::EmptyBatchDocument, Phrase::English("The job is not a batch document"));
    }
    JobReader::Job job;
    job.refusal = CheckJob(document).refusal;
    if (job.refusal.code == ZTBatchMessage::NoError) {
        job.files = FilesOfJob(*document.GetInputModel());
        job.settings.append(TakeSettingsText(document));
    }
    return job;
}

/// What is wrong with a later part of a bundle, whose inputs are those of the first.
Refusal RefusalOfLaterPart(const JobBundle::Part& part)
{
    ZTBatchDocument document;
    if (!document.Deserialize(part.document)) {
        return {ZTBatchMessage::EmptyBatchDocument, Phrase::English("The job is not a batch document")};
    }
    if (document.GetInputModel()->rowCount() > 0) {
        return {ZTBatchMessage::EmptyBatchDocument,
                Phrase::English("It has inputs, but those of a bundle belong in its first job")};
    }
    return CheckSettings(document).refusal;
}

JobReader::Job ReadBundle(const QString& text)
{
    QString problem;
    const JobBundle bundle = JobBundle::Read(text, problem);
    if (bundle.IsEmpty()) {
        return Refused(ZTBatchMessage::EmptyBatchDocument,
                       Phrase::English("The bundle of jobs cannot be read: %1").arg(problem));
    }
    const auto refused = [](const JobBundle::Part& part, const Refusal& refusal) {
        return Refused(refusal.code, Phrase::English("Job \"%1\": %2").arg(part.name, refusal.message));
    };
    JobReader::Job job = ReadJob(bundle.parts.first().document);
    if (job.refusal.code != ZTBatchMessage::NoError) {
        return refused(bundle.parts.first(), job.refusal);
    }
    job.folder = bundle.folder;
    for (const JobBundle::Part& part : bundle.parts.mid(1)) {
        const Refusal refusal = RefusalOfLaterPart(part);
        if (refusal.code != ZTBatchMessage::NoError) {
            return refused(part, refusal);
        }
        job.settings.append(part.document);
    }
    for (int i = 0; i < bundle.parts.size(); ++i) {
        ZTBatchDocument document;
        document.Deserialize(job.settings.at(i));
        const QString folder = document.GetOutputSettings()->GetPath();
        if (QDir::cleanPath(folder) != QDir::cleanPath(bundle.parts.at(i).outputFolder)) {
            return refused(bundle.parts.at(i),
                           {ZTBatchMessage::ReadOutputSettingsError,
                            Phrase::English("Its output folder is \"%1\", but the bundle says \"%2\"")
                                .arg(folder, bundle.parts.at(i).outputFolder)});
        }
    }
    return job;
}

JobReader::Job ReadHere(const QString& text)
{
    return JobBundle::IsIn(text) ? ReadBundle(text) : ReadJob(text);
}

// A folder is written with the first of its files only: 100,000 files share a few folders.
void Write(QDataStream& stream, const JobReader::Job& job)
{
    stream << qint32(job.refusal.code) << job.refusal.message << job.settings << job.folder << qint32(job.files.size());
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
    stream >> code >> job.refusal.message >> job.settings >> job.folder >> count;
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
        return Refused(ZTBatchMessage::EmptyBatchDocument,
                       Phrase::English("The job cannot be read: its reader failed"));
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
