// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "JobInputs.h"

#include "job/settings/JobBundle.h"

class ZTBatchDocument;

namespace BatchCli {

/// Builds the job that `arguments` describe without adding inputs: the preset that they name or the saved job in the
/// file `savedJob`, if that is not empty, with the options applied. Throws RequestError.
void BuildSettings(ZTBatchDocument& job, const ParsedArguments& arguments, const QString& savedJob);

/// The same with inputs, see AddInputs(); a relative output folder starts at the current folder. Throws RequestError.
InputLosses BuildJob(ZTBatchDocument& job, const ParsedArguments& arguments, const QString& savedJob,
                     const QStringList& inputs);

/// What the arguments of run and plan describe: one job, or several that make results of the same inputs.
struct GivenJobs
{
    BatchJob::JobBundle bundle; ///< empty for one job; the document of its first part is empty until WriteInputs()
    InputLosses losses;

    /// Completes the bundle, if there is one; `job` is the first one, with the inputs.
    void WriteInputs(const ZTBatchDocument& job);

    /// Where all results go; `job` is the first one.
    QString OutputFolder(const ZTBatchDocument& job) const;
};

/// The same as BuildJob(), but there may be several presets in `arguments`, or several saved jobs at the beginning of
/// `inputs`, which are removed. `job` becomes the only job, or the first, which has the inputs. Throws RequestError.
GivenJobs BuildJobs(ZTBatchDocument& job, const ParsedArguments& arguments, QStringList& inputs);

/// Removes all saved jobs at the beginning of `inputs` and returns them.
QStringList TakeSavedJobs(QStringList& inputs);

/// Removes the saved job from `inputs`, the first one if its name ends with ".xml" or it holds a job, and returns it;
/// empty if the first input is something else.
QString TakeSavedJob(QStringList& inputs);

} // namespace BatchCli
