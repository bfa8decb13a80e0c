// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/cli/options/CommandLine.h"
#include "hosts/common/InputCollector.h"

class ZTBatchDocument;

namespace BatchCli {

/// What was not taken from the inputs of a job.
struct InputLosses
{
    int problems = 0; ///< files and folders that could not be taken
    BatchHost::LeftOutFiles leftOut;
};

/// Adds `inputs`, which may have wildcards, and those of --files-from to `job`, in the order that `arguments` ask for.
/// Writes problems with folders to standard error; with --verbose, files that were left out too. Shows progress on a
/// terminal. Throws RequestError.
InputLosses AddInputs(ZTBatchDocument& job, const ParsedArguments& arguments, const QStringList& inputs);

/// Which files of folders `arguments` let into `job`.
BatchHost::InputFilter FilterOf(const ParsedArguments& arguments, const ZTBatchDocument& job);

/// Whether the job that was built with `inputs` has pictures. Without any, throws RequestError unless `arguments` allow
/// that, and then says so.
bool HasPictures(const ZTBatchDocument& job, const ParsedArguments& arguments, const QStringList& inputs);

/// Writes how many files were left out to standard error, if any were and the options do not ask for silence.
void TellLeftOut(const BatchHost::LeftOutFiles& files, const ParsedArguments& arguments);

} // namespace BatchCli
