// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "JobInputs.h"

class ZTBatchDocument;

namespace BatchCli {

/// Builds the job that `arguments` describe without adding inputs: the preset that they name or the saved job in the
/// file `savedJob`, if that is not empty, with the options applied. Throws RequestError.
void BuildSettings(ZTBatchDocument& job, const ParsedArguments& arguments, const QString& savedJob);

/// The same with inputs, see AddInputs(); a relative output folder starts at the current folder. Throws RequestError.
InputLosses BuildJob(ZTBatchDocument& job, const ParsedArguments& arguments, const QString& savedJob,
                     const QStringList& inputs);

/// Removes the saved job from `inputs`, the first one if its name ends with ".xml" or it holds a job, and returns it;
/// empty if the first input is something else.
QString TakeSavedJob(QStringList& inputs);

} // namespace BatchCli
