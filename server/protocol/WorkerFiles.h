// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "WorkerMessages.h"

#include "job/plan/OutputPlan.h"
#include "job/settings/JobCheck.h"
#include "job/settings/JobFiles.h"

#include <QVector>

namespace BatchProtocol {

/// What workers of a job with `settings` read: `files`, and what effects and framing name. A folder that belongs to the
/// job is readable with all that is in it; single files are readable alone, unless there are very many. Asks the file
/// system about each file.
WorkerRights RightsToRead(const BatchJob::JobSettings& settings, const QVector<BatchJob::JobFile>& files);

/// The same for workers that write the results, too. The output folder has to exist when the first of them starts.
WorkerRights RightsToWrite(const WorkerRights& rightsToRead, const BatchJob::JobSettings& settings);

/// The folders outside the output folder that links below it lead to: what a run that follows links writes to as well.
QStringList LinkedFolders(const BatchJob::OutputPlan& plan);

} // namespace BatchProtocol
