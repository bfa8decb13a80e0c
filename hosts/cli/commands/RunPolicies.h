#pragma once

#include "hosts/cli/options/CommandLine.h"
#include "job/values/PolicyValues.h"

namespace BatchHost {
class JournaledJob;
}

namespace BatchCli {

/// Throws RequestError when an option has a word that is no policy.
void CheckPolicyOptions(const ParsedArguments& arguments);

/// The policies of a run: those of the options, else of the interrupted run, else of the settings folder. Without a
/// terminal asking becomes skipping, with a warning. Needs an instance of the manager. Throws RequestError for settings
/// that hold an invalid value.
BatchJob::PolicyValues PoliciesOfRun(const ParsedArguments& arguments, const BatchHost::JournaledJob& job,
                                     const QString& settingsFolder);

} // namespace BatchCli
