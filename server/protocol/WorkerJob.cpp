// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WorkerJob.h"

#include "WorkerFiles.h"

#include "ZTBatchDocument.h"

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

} // namespace BatchProtocol
