#pragma once

#include "hosts/cli/options/CommandLine.h"
#include "hosts/common/LeftOutFiles.h"

class ZTBatchDocument;

namespace BatchCli {

/// What was not taken from the inputs of a job.
struct InputLosses
{
    int problems = 0; ///< files and folders that could not be taken
    BatchHost::LeftOutFiles leftOut;
};

/// Builds the job that `arguments` describe without adding inputs: the preset that they name or the saved job in the
/// file `savedJob`, if that is not empty, with the options applied. Throws RequestError.
void BuildSettings(ZTBatchDocument& job, const ParsedArguments& arguments, const QString& savedJob);

/// The same with `inputs`, which may have wildcards, and those of --files-from added; a relative output folder starts at
/// the current folder. Writes problems with folders to standard error; with --verbose, files that were left out too.
/// Shows progress on a terminal. Throws RequestError.
InputLosses BuildJob(ZTBatchDocument& job, const ParsedArguments& arguments, const QString& savedJob,
                     const QStringList& inputs);

/// Whether the job that was built with `inputs` has pictures. Without any, throws RequestError unless `arguments` allow
/// that, and then says so.
bool HasPictures(const ZTBatchDocument& job, const ParsedArguments& arguments, const QStringList& inputs);

/// Writes how many files were left out to standard error, if there are any and the options do not ask for silence.
void TellLeftOut(const BatchHost::LeftOutFiles& files, const ParsedArguments& arguments);

/// Removes the saved job from `inputs`, the first one if its name ends with ".xml" or it holds a job, and returns it;
/// empty when there is none.
QString TakeSavedJob(QStringList& inputs);

} // namespace BatchCli
