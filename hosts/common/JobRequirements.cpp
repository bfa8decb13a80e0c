// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobRequirements.h"

#include "RequestError.h"

#include "job/settings/JobCheck.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"

#include <QDir>

namespace BatchHost {

namespace {

void RequireAccepted(const BatchJob::CheckedSettings& checked)
{
    if (!checked.IsAccepted()) {
        throw RequestError{checked.refusal.message};
    }
}

} // namespace

void RequireUsableSettings(const ZTBatchDocument& job)
{
    if (job.GetOutputSettings()->GetPath().isEmpty()) {
        throw RequestError{BatchJob::Phrase::English("no output folder"), RequestError::Kind::NoOutputFolder};
    }
    RequireAccepted(BatchJob::CheckSettings(job));
}

void RequireUsableSettingsButFolder(ZTBatchDocument& job)
{
    ZTBatchOutputSettings& output = *job.GetOutputSettings();
    const QString folder = output.GetPath();
    output.SetPath(QDir::rootPath()); // any that passes the check
    const BatchJob::CheckedSettings checked = BatchJob::CheckSettings(job);
    output.SetPath(folder);
    RequireAccepted(checked);
}

void RequireRunnableJob(const ZTBatchDocument& job)
{
    if (job.GetInputModel()->GetFileNodesCount() == 0) {
        throw RequestError{BatchJob::Phrase::English("no pictures"), RequestError::Kind::NoPictures};
    }
    RequireUsableSettings(job);
}

} // namespace BatchHost
