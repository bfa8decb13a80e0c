// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/PolicyValues.h"

#include <QString>
#include <QStringList>

class ZTBatchDocument;

namespace BatchHost {

/// The options of "velkora-batch run" that give a new job the settings of `job`, and its run the policies. Values that
/// a new job has anyway are left out, and so is the name of the job.
///
/// An option takes a colour profile from a file: `profileFile` must hold the one of `job` if that has one. Throws
/// RequestError if options cannot say what `job` holds.
QStringList CommandOptions(const ZTBatchDocument& job, const BatchJob::PolicyValues& policies,
                           const QString& profileFile);

/// The options for the policies alone.
QStringList CommandOptions(const BatchJob::PolicyValues& policies);

} // namespace BatchHost
