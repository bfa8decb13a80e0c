#pragma once

#include "hosts/cli/options/CommandLine.h"

class ZTBatchDocument;

namespace BatchCli {

/// Builds the job that `arguments` describe: the saved job in the file `savedJob`, if that is not empty, with the
/// options applied and `inputs` added. Writes problems with folders to standard error and returns their number. Shows
/// progress on a terminal. Throws RequestError.
int BuildJob(ZTBatchDocument& job, const ParsedArguments& arguments, const QString& savedJob,
             const QStringList& inputs);

/// Removes the saved job from `inputs`, the first one if its name ends with ".xml", and returns it; empty when there is
/// none.
QString TakeSavedJob(QStringList& inputs);

} // namespace BatchCli
