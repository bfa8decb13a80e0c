// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "WorkerMessages.h"

#include "job/settings/JobCheck.h"
#include "job/settings/JobFiles.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace BatchProtocol {

/// A job as its workers get it, and what has to be known of it to give it to them. A caller that wants the bytes that a
/// run would write makes the job with these functions.
struct WorkerJob
{
    BatchJob::Refusal refusal; ///< if there is one, the rest is empty
    QString document;          ///< the text of the job without its inputs
    BatchJob::JobSettings settings;
    WorkerRights rightsToRead;
    WorkerRights rightsToMake; ///< the output folder has to exist when the first worker starts with them

    /// `document` is the text of a job without inputs, `files` are the inputs. Asks the file system about each file.
    static WorkerJob Of(const QString& document, const QVector<BatchJob::JobFile>& files);

    /// The same of jobs that share `files` and their workers: each has the rights of all. The output folders are in
    /// `folder`, which has to exist instead of them.
    static QVector<WorkerJob> Of(const QStringList& documents, const QVector<BatchJob::JobFile>& files,
                                 const QString& folder);
};

} // namespace BatchProtocol
