#pragma once

#include "hosts/cli/options/CommandLine.h"

class ZTBatchDocument;

namespace BatchCli {

/// Makes the job that `arguments` describe: a saved one, `savedJob` if that is not empty, changed by the options and
/// with the inputs `inputs` added. Problems with folders go to standard error; their count is returned. While folders
/// are read, a terminal shows how far it is. Throws RequestError.
int BuildJob(ZTBatchDocument& job, const ParsedArguments& arguments, const QString& savedJob,
             const QStringList& inputs);

/// The saved job among `arguments`, the first input when its name ends with ".xml"; empty when there is none. It is
/// taken out of `inputs`.
QString TakeSavedJob(QStringList& inputs);

} // namespace BatchCli
