// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WorkerJob.h"

#include "WorkerFiles.h"

#include "ZTBatchDocument.h"

#include <QSet>

using namespace BatchJob;

namespace BatchProtocol {

WorkerJob WorkerJob::Of(const QString& document, const QVector<JobFile>& files)
{
    ZTBatchDocument withoutInputs;
    withoutInputs.Deserialize(document);
    const CheckedSettings checked = CheckSettings(withoutInputs);
    WorkerJob job;
    job.refusal = checked.refusal;
    if (checked.IsAccepted()) {
        job.document = document;
        job.settings = checked.settings;
        job.rightsToRead = RightsToRead(checked.settings, files);
        job.rightsToMake = RightsToWrite(job.rightsToRead, checked.settings);
    }
    return job;
}

QVector<WorkerJob> WorkerJob::Of(const QStringList& documents, const QVector<JobFile>& files, const QString& folder)
{
    QVector<WorkerJob> jobs;
    QSet<QString> readable;
    bool usesFonts = false;
    for (const QString& document : documents) {
        jobs.append(Of(document, jobs.isEmpty() ? files : QVector<JobFile>()));
        const WorkerRights& rights = jobs.last().rightsToRead;
        readable += QSet<QString>(rights.readable.begin(), rights.readable.end());
        usesFonts = usesFonts || rights.usesFonts;
    }
    QStringList together = readable.values();
    together.sort();
    for (WorkerJob& job : jobs) {
        job.rightsToRead = {together, {}, usesFonts};
        job.rightsToMake = {together, {folder}, usesFonts};
    }
    return jobs;
}

} // namespace BatchProtocol
