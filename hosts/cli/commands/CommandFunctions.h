#pragma once

#include "hosts/cli/options/CommandLine.h"
#include "hosts/cli/terminal/ExitCode.h"

class ZTBatchDocument;

namespace BatchCli {

ExitCode CreateJob(const ParsedArguments& arguments);
ExitCode ShowJob(const ParsedArguments& arguments);
ExitCode PlanJob(const ParsedArguments& arguments);
ExitCode RunJob(const ParsedArguments& arguments);

/// Throws UsageError for a job that the server would refuse.
void CheckJob(const ZTBatchDocument& job);

} // namespace BatchCli
